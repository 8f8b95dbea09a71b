#include "records/highscores.h"

#include <QFontMetrics>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <cstdlib>
#include <exception>
#include <string>

#include "platform/desktop.h"
#include "tables/geometry.h"
#include "tables/texts.h"

namespace records {

namespace {

using platform::bgr;
using platform::designFont;
using platform::Label;
using platform::LabelLook;
namespace text = tables::fastest_text;

// The window lies over a full-size board screen (11520 twips high), 15 twips
// below its top edge.
constexpr float kClientWidth = 15210, kClientHeight = 4050;
constexpr float kBelowBoardTop = 15;

constexpr float kFrameLefts[kLevels] = {180, 5190, 10200};
constexpr float kFrameTop = 720, kFrameWidth = 4815, kFrameHeight = 2535;
constexpr float kFirstRowTop = 600, kRowPitch = 360, kRowHeight = 360;
constexpr float kNameLeft = 480, kNameWidth = 3480;
constexpr float kTimeLeft = 3960, kTimeWidth = 960;
constexpr float kNameBoxWidth = 3375, kNameBoxHeight = 405;
// The box stands a little above the row so that it covers the empty name.
constexpr float kNameBoxAboveRow = 60;
constexpr int kMaxNameLength = 25;
constexpr int kNameCopyIntervalMs = 100;

QColor yellow() {
    return bgr(0x0000FFFF);
}
QColor red() {
    return bgr(0x000000FF);
}
QColor black() {
    return bgr(0x00000000);
}

bool inRange(int value, int count) {
    return value >= 0 && value < count;
}
int row(int level, int rank) {
    return level * kRanks + rank;
}

LabelLook textLook(const QColor& fore, double points, Qt::Alignment alignment) {
    LabelLook look;
    look.foreColor = fore;
    look.transparent = true;
    look.alignment = alignment;
    look.font = designFont(QStringLiteral("Arial"), points, true);
    return look;
}

Label* makeLabel(QWidget* parent, const LabelLook& look, const std::string& caption, float left,
                 float top, float width, float height) {
    auto* label = new Label(parent);
    label->setLook(look);
    label->setCaption(caption);
    label->setBounds(left, top, width, height);
    return label;
}

// The number a time label's text starts with; text that is no number is 0.
// The design text "88888" counts as a time, so it shows.
double numericValue(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}

// The start of a name that shows in its label: whole characters up to the
// first one that reaches the label's edge, which is drawn cut there. A name
// read from an edited file may be far longer than the row, and laying out
// text nobody sees would hold up the screen. Characters here are what the
// player sees as one (grapheme clusters): a letter with its accent marks, or
// an emoji of two UTF-16 units, is kept or dropped whole.
QString visiblePart(const QString& name, const Label& label) {
    const QFontMetrics metrics = label.fontMetrics();
    const int width = label.contentsRect().width();
    // Hardly a character is narrower than a pixel, so more than `width` of
    // them never show; a binary search then finds the one at the edge.
    QList<qsizetype> ends;  // ends[i]: where the first i + 1 characters end
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, name);
    while (ends.size() <= width && characters.toNextBoundary() > 0) {
        ends.append(characters.position());
    }
    if (ends.isEmpty()) return {};
    if (metrics.horizontalAdvance(name.left(ends.last())) <= width) return name.left(ends.last());
    qsizetype fits = -1, beyond = ends.size() - 1;  // -1: no character, which always fits
    while (beyond - fits > 1) {
        const qsizetype middle = (fits + beyond) / 2;
        (metrics.horizontalAdvance(name.left(ends[middle])) <= width ? fits : beyond) = middle;
    }
    return name.left(ends[beyond]);
}

// The start-up goes on past a step that fails, so a damaged table or an odd
// desktop never keeps the screen from opening.
template <class Step>
void skipOnError(Step step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}

}  // namespace

Highscores::Highscores()
    : Form(kScreen, platform::FormKind::Overlay), Timer1(this, kNameCopyIntervalMs) {
    buildLayout();
    Timer1.onTimer = [this] { Timer1_Timer(); };
}

void Highscores::buildLayout() {
    setClientSize(kClientWidth, kClientHeight);
    setBackColor(red());

    Label2 = makeLabel(client(), textLook(yellow(), 20.25, Qt::AlignHCenter), text::kTitles[0], 0,
                       120, 15240, 600);

    LabelLook button = textLook(yellow(), 18, Qt::AlignHCenter);
    button.transparent = false;
    button.backColor = black();
    button.framed = true;
    Label3.wire = [this](int, Label& label) { label.on.click = [this] { Label3_Click(); }; };
    Label3.add(0, makeLabel(client(), button, text::kContinue, 12960, 120, 1935, 495));
    // The name box is the only control that takes the keyboard; "Continue"
    // is still a button a screen reader can press.
    Label3(0).makeCommand(platform::CommandFocus::GivenByScreen);

    const LabelLook heading = textLook(yellow(), 12, Qt::AlignHCenter);
    // Names and times are coloured yellow by the start-up, not by the design.
    const LabelLook entry = textLook(black(), 12, Qt::AlignLeft);
    for (int j = 0; j < kLevels; ++j) {
        auto* frame = new platform::Frame(client());
        frame->setBounds(kFrameLefts[j], kFrameTop, kFrameWidth, kFrameHeight);
        frame->setBackColor(red());
        frame->setFrameStyle(QFrame::Box | QFrame::Plain);
        Frame1.add(j, frame);

        Label6.add(j, makeLabel(frame, heading, text::kLevels[j], 120, 240, 5040, 360));
        for (int r = 0; r < kRanks; ++r) {
            const float top = kFirstRowTop + kRowPitch * r;
            Label* name =
                makeLabel(frame, entry, text::kDesignName, kNameLeft, top, kNameWidth, kRowHeight);
            Label* time =
                makeLabel(frame, entry, text::kDesignTime, kTimeLeft, top, kTimeWidth, kRowHeight);
            // Typed names are shown as typed, never read as markup.
            name->setTextFormat(Qt::PlainText);
            name->hide();
            time->hide();
            Label8.add(row(j, r), name);
            Label9.add(row(j, r), time);
        }

        auto* box = new platform::TextBox(frame);
        box->setBounds(kNameLeft, 0, kNameBoxWidth, kNameBoxHeight);
        box->setFont(designFont(QStringLiteral("Arial"), 12, true));
        box->setMaxCharacters(kMaxNameLength);
        box->hide();
        // Enter ends the typing as "Continue" does, the name kept.
        QObject::connect(box, &QLineEdit::returnPressed, this, [this] { Label3_Click(); });
        Text1.add(j, box);
    }

    Label1 = makeLabel(client(), textLook(yellow(), 20.25, Qt::AlignHCenter), text::kTypeYourName,
                       0, 3360, 15240, 600);
    Label1->hide();
}

// The start-up only places the window: what it shows comes with the opening
// (fill), from the tables the board passes in.
void Highscores::Form_Load() {
    skipOnError([this] { placeWindow(); });
}

void Highscores::fill(const FastestTimes& tables, int boardsize) {
    skipOnError([&] { fillTables(tables, boardsize); });
    skipOnError([this] { colourRows(); });
}

void Highscores::placeWindow() {
    setLeft((platform::screenWidthTwips() - Width()) / 2);
    setTop((platform::screenHeightTwips() - tables::kWindowHeight) / 2 + kBelowBoardTop);
}

// Only a known board size is filled; any other (a hand-edited lastgame.inf)
// leaves the design texts.
void Highscores::fillTables(const FastestTimes& tables, int s) {
    if (!inRange(s, kSizes)) return;
    Label2->setCaption(text::kTitles[s]);
    for (int r = 0; r < kRanks; ++r) {
        for (int j = 0; j < kLevels; ++j) {
            Label& name = Label8(row(j, r));
            name.setText(visiblePart(QString::fromStdString(tables.bestname[s][j][r]), name));
            Label9(row(j, r)).setCaption(std::to_string(tables.besttime[s][j][r]));
        }
    }
}

// Empty entries (time 0) show an empty name and no time.
void Highscores::colourRows() {
    for (int k = 0; k < kLevels * kRanks; ++k) {
        Label8(k).setForeColor(yellow());
        Label9(k).setForeColor(yellow());
        Label8(k).show();
        Label9(k).setVisible(numericValue(Label9(k).Caption()) > 0);
    }
}

bool Highscores::nameEntryOpen() const {
    return namedTables_ && Text1(entry_.level).Visible();
}

void Highscores::takeNameFor(FastestTimes& tables, const NewEntry& entry) {
    namedTables_ = &tables;
    entry_ = entry;
}

void Highscores::copyTypedName() {
    if (!nameEntryOpen()) return;
    namedTables_->bestname[entry_.boardsize][entry_.level][entry_.rank] =
        Text1(entry_.level).Text();
}

void Highscores::Label3_Click() {
    // The last keys may have come after the latest copy.
    copyTypedName();
    platform::screens::unload(kScreen);
}

// Closing the window through the desktop keeps the typed name, as "Continue" does.
void Highscores::Form_QueryUnload() {
    Label3_Click();
}

void Highscores::Timer1_Timer() {
    copyTypedName();
}

Highscores& highscores() {
    if (!platform::screens::isRegistered(Highscores::kScreen)) registerScreens();
    return platform::screens::get<Highscores>(Highscores::kScreen);
}

void registerScreens() {
    platform::screens::registerScreen(Highscores::kScreen, [] { return new Highscores; });
}

void openForNameEntry(FastestTimes& tables, int boardsize, const NewEntry& entry) {
    if (!inRange(entry.boardsize, kSizes) || !inRange(entry.level, kLevels) ||
        !inRange(entry.rank, kRanks))
        return;

    // A screen still open for viewing wears the board's colour: start it
    // afresh. One taking a name keeps its box, so a second record in a row
    // (a picture-set click leaves the screen open) keeps what was typed.
    const auto* open = static_cast<Highscores*>(platform::screens::loaded(Highscores::kScreen));
    if (open && !open->nameEntryOpen()) platform::screens::unload(Highscores::kScreen);
    Highscores& screen = highscores();
    screen.fill(tables, boardsize);
    screen.takeNameFor(tables, entry);
    platform::TextBox& box = screen.Text1(entry.level);
    box.setTop(screen.Label8(row(entry.level, entry.rank)).Top() - kNameBoxAboveRow);
    box.show();
    screen.Label1->show();
    screen.Timer1.setEnabled(true);
    screen.Show();
    // The box is the only control that takes the keyboard, so typing goes in at once.
    box.setFocus();
}

void openForViewing(const FastestTimes& tables, int boardsize, const QColor& boardColour) {
    Highscores& screen = highscores();
    screen.fill(tables, boardsize);
    for (int j = 0; j < kLevels; ++j) screen.Frame1(j).setBackColor(boardColour);
    screen.setBackColor(boardColour);
    screen.Show();
}

}  // namespace records
