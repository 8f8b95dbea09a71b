#include "board/board_screen.h"

#include <string>

#include "board/marks.h"
#include "platform/translation.h"
#include "records/fastest_times.h"
#include "records/highscores.h"
#include "shell/common.h"
#include "shell/module1.h"
#include "tables/pictures.h"
#include "tables/texts.h"

namespace board {
namespace {

constexpr std::uint32_t kYellow = 0x0000FFFF;
constexpr std::uint32_t kBlack = 0x00000000;
constexpr int kTimerInterval = 1000;  // both timers: one-second clock, one-second check delay

platform::LabelLook lookOf(const LabelDesign& design) {
    platform::LabelLook look;
    look.foreColor = platform::bgr(kYellow);
    look.alignment = Qt::AlignHCenter;
    // Every caption wraps at word boundaries within its box: " Time Taken"
    // and "Fastest Times" are laid out as two lines, the rules as a paragraph.
    look.wordWrap = true;
    look.font = platform::designFont(QStringLiteral("Arial Rounded MT Bold"), design.points, true);
    switch (design.look) {
        case LabelLookKind::Command:
            look.backColor = platform::bgr(kBlack);
            look.framed = true;
            break;
        case LabelLookKind::LevelNumber:
            look.backColor = platform::bgr(tables::kBoardDesignBackground);
            look.framed = true;
            look.font = platform::designFont(QStringLiteral("Tahoma"), design.points, true);
            break;
        case LabelLookKind::Text:
            look.transparent = true;
            break;
        case LabelLookKind::FramedText:
            look.transparent = true;
            look.framed = true;
            break;
    }
    return look;
}

template <class Control>
void place(Control& control, const Rect& r) {
    control.setBounds(r.left, r.top, r.width, r.height);
}

}  // namespace

Board::Board(const BoardLayout& layout)
    : Form(tables::boardScreen(layout.boardsize), platform::FormKind::FullSize),
      Timer1(this, kTimerInterval),
      Timer2(this, kTimerInterval),
      layout_(layout),
      game_(layout.boardsize, *this, random_),
      picking_(game_, *this),
      ring_(ringLayout(layout)) {
    setBackColor(platform::bgr(tables::kBoardDesignBackground));
    wireEvents();
    createControls();
    pickMark_ = new Mark(this, Mark::Kind::Pick);
    ringMark_ = new Mark(this, Mark::Kind::Ring);
    describeControls();
}

// Creation order is stacking order: the regions at the back, then the texts,
// the cells and slots, the thumbnails (above the panel's text, which they lie
// on), the pieces, and the markers on top.
void Board::createControls() {
    for (int i = 0; i < layout_.regions.size(); ++i) {
        auto* shape = new platform::Shape(this, platform::bgr(layout_.regions[i].colour));
        place(*shape, layout_.regions[i].rect);
        Shape1.add(i, shape);
    }
    createLabels();
    createPictures();
}

void Board::createLabels() {
    for (const LabelDesign& design : layout_.labels) {
        auto* label = new platform::Label(this);
        label->setLook(lookOf(design));
        label->setCaption(design.caption);
        place(*label, design.rect);
        label->setVisible(design.visible);
        switch (design.array) {
            case LabelArray::Label1:
                Label1.add(design.index, label);
                break;
            case LabelArray::Label2:
                Label2.add(design.index, label);
                break;
            case LabelArray::Label3:
                Label3.add(design.index, label);
                break;
            case LabelArray::Label7:
                Label7 = label;
                break;
        }
    }
}

void Board::createPictures() {
    auto framedBox = [this](const Rect& r, bool visible) {
        auto* box = new platform::PictureBox(this);
        box->setFramed(true);
        place(*box, r);
        box->setVisible(visible);
        return box;
    };
    const int n = layout_.n;
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) Image1.add(x + n * y, framedBox(layout_.cell(x, y), true));
    }
    // Start-up moves the slot under its piece; only its size matters here.
    Image3.add(0, framedBox(layout_.home(0), false));
    const int sets = layout_.thumbnails.size();
    for (int i = 0; i < sets; ++i) Image4.add(i, framedBox(layout_.thumbnails[i], false));
    // The 4x4 logo is the panel's last element; the others show it apart.
    if (layout_.logoInPanel)
        Image4.add(sets, framedBox(layout_.logo, false));
    else
        Image6 = framedBox(layout_.logo, true);
    // The pieces' design places are their homes in the tray.
    for (int k = 0; k < n * n; ++k) Image2.add(k, framedBox(layout_.home(k), true));

    auto* marker = new platform::PictureBox(this);
    place(*marker, layout_.marker);
    marker->hide();
    if (!layout_.markerByRegion) marker->loadPicture(layout_.markerPictures[0]);
    Image5.add(0, marker);
}

void Board::wireEvents() {
    Image1.wire = [this](int i, platform::PictureBox& cell) {
        cell.on.click = [this, i] { chooseCell(i); };
    };
    Image2.wire = [this](int i, platform::PictureBox& piece) {
        piece.on.mouseDown = [this, i](int b, int s, float x, float y) {
            Image2_MouseDown(i, b, s, x, y);
        };
        piece.on.mouseMove = [this, i](int b, int s, float x, float y) {
            Image2_MouseMove(i, b, s, x, y);
        };
        piece.on.mouseUp = [this, i](int b, int s, float x, float y) {
            Image2_MouseUp(i, b, s, x, y);
        };
    };
    Image3.wire = [this](int i, platform::PictureBox& slot) {
        slot.on.click = [this, i] { chooseSlot(i); };
    };
    Image4.wire = [this](int i, platform::PictureBox& thumbnail) {
        thumbnail.on.click = [this, i] { runCommand(kThumbnail + i); };
    };
    // A marker lies on a given piece, so a click on it is a click on its cell.
    Image5.wire = [this](int i, platform::PictureBox& marker) {
        marker.on.click = [this, i] { chooseCell(i); };
    };
    Label3.wire = [this](int i, platform::Label& command) {
        command.on.mouseMove = [this, i](int b, int s, float x, float y) {
            Label3_MouseMove(i, b, s, x, y);
        };
        command.on.click = [this, i] { runCommand(i); };
        // The ring walks the commands (hand_play.cpp) and hands them the focus.
        command.makeCommand(platform::CommandFocus::GivenByScreen, [] {
            return platform::translated("Board", tables::board_text::kCommandDescription);
        });
    };
    Timer1.onTimer = [this] { Timer1_Timer(); };
    Timer2.onTimer = [this] { Timer2_Timer(); };
}

void Board::Form_Load() {
    shell::placeform(*this);
    if (Image6) Image6->loadPicture(tables::kBoardLogo.path);

    random_.seedFromClock();
    pictureset = engine::drawBelow(random_, layout_.pictureSets);

    const auto& m = shell::module1();
    Label1(0).setCaption(std::to_string(m.level + 1));
    if (auto colour = levelColour(m.level)) Label1(0).setBackColor(platform::bgr(*colour));
    setBackColor(Label1(0).BackColor());

    if (m.timerson == 1) {
        for (int i = 0; i <= 2; ++i) Label2(i).show();
        Label3(3).show();
        Timer1.setEnabled(true);
        game_.seconds = 0;
    }

    const int pieces = layout_.n * layout_.n;
    for (int k = 1; k < pieces; ++k) Image3.load(k);
    for (int k = 0; k < pieces; ++k) {
        Image3(k).moveTo(Image2(k).Left(), Image2(k).Top());
        Image3(k).lower();
        Image3(k).show();
    }
    for (int k = 1; k < pieces; ++k) Image5.load(k);

    seticons();
    setpicture();
    game_.setsolution();
    game_.setstart(options());
}

void Board::seticons() {
    const auto sets = tables::catalogue(layout_.boardsize);
    for (int s = 0; s < sets.size(); ++s) Image4(s).loadPicture(sets[s].thumbnailPath());
    if (layout_.logoInPanel) Image4(layout_.pictureSets).loadPicture(tables::kBoardLogo.path);
}

void Board::setpicture() {
    const int n = layout_.n;
    for (int i = 0; i < n * n; ++i) {
        Image2(i).setEnabled(true);
        Image5(i).hide();
    }
    // Each file is read once; the other copies of a symbol share its picture.
    const tables::PictureSet& set = tables::catalogue(layout_.boardsize)[pictureset];
    for (int k = 1; k <= n; ++k) Image2(n * (k - 1)).loadPicture(set.symbolPath(k));
    for (int c = 1; c < n; ++c) {
        for (int k = 1; k <= n; ++k)
            Image2(n * (k - 1) + c).setPicture(Image2(n * (k - 1)).picture());
    }
}

void Board::Form_MouseMove(int, int, float, float) {
    clearMouseIcon();
}

void Board::Form_QueryUnload() {
    Label3_Click(0);
}

void Board::Image2_MouseDown(int index, int button, int, float x, float y) {
    picking_.pressed(index, button, x, y);
}

void Board::Image2_MouseMove(int index, int button, int, float x, float y) {
    if (picking_.moved(index, button, x, y)) showMarks();
    if (game_.pieceMouseMove(index, button, x, y, {Width(), Height()}))
        setMouseIcon(tables::kHandCursor);
}

void Board::Image2_MouseUp(int index, int button, int, float, float) {
    game_.pieceMouseUp(index, options());
    picking_.released(index, button);
    showMarks();
}

void Board::Label3_MouseMove(int, int, int, float, float) {
    setMouseIcon(tables::kHandCursor);
}

void Board::Timer1_Timer() {
    game_.timer1Tick();
}

void Board::Timer2_Timer() {
    game_.timer2Tick(options());
    showMarks();  // the verdict may have hidden the command the ring was on
}

// A copy, as the options stood when the procedure was called.
engine::Options Board::options() const {
    return shell::module1();
}

void Board::play(const char* path) const {
    if (shell::module1().playsound == 1) shell::playwav(path);
}

// --- engine::BoardView ---

platform::PictureBox& Board::picture(engine::Pic pic, int index) const {
    switch (pic) {
        case engine::Pic::Image1:
            return Image1(index);
        case engine::Pic::Image2:
            return Image2(index);
        case engine::Pic::Image3:
            return Image3(index);
        case engine::Pic::Image5:
            break;
    }
    return Image5(index);
}

platform::Label& Board::label(engine::Lab which) const {
    switch (which) {
        case engine::Lab::Label2_0:
            return Label2(0);
        case engine::Lab::Label2_1:
            return Label2(1);
        case engine::Lab::Label2_2:
            return Label2(2);
        case engine::Lab::Label3_2:
            return Label3(2);
        case engine::Lab::Label3_4:
            return Label3(4);
        case engine::Lab::Label7:
            break;
    }
    return *Label7;
}

float Board::left(engine::Pic pic, int index) const {
    return picture(pic, index).Left();
}
float Board::top(engine::Pic pic, int index) const {
    return picture(pic, index).Top();
}
float Board::width(engine::Pic pic, int index) const {
    return picture(pic, index).Width();
}
float Board::height(engine::Pic pic, int index) const {
    return picture(pic, index).Height();
}
void Board::setLeft(engine::Pic pic, int index, float value) {
    picture(pic, index).setLeft(value);
}
void Board::setTop(engine::Pic pic, int index, float value) {
    picture(pic, index).setTop(value);
}
void Board::setVisible(engine::Pic pic, int index, bool visible) {
    picture(pic, index).setVisible(visible);
}
void Board::setEnabled(engine::Pic pic, int index, bool enabled) {
    picture(pic, index).setEnabled(enabled);
}
void Board::loadPicture(engine::Pic pic, int index, const std::string& path) {
    picture(pic, index).loadPicture(path);
}
void Board::bringToFront(engine::Pic pic, int index) {
    picture(pic, index).raise();
    pickMark_->keepOnTop();
    ringMark_->keepOnTop();
}
std::string Board::caption(engine::Lab which) const {
    return label(which).Caption();
}
void Board::setCaption(engine::Lab which, const std::string& text) {
    // The timed congratulation is shown as the translated pattern with the
    // clock's seconds; the engine keeps reading back the English.
    const std::string seconds = which == engine::Lab::Label7 ? Label2(1).Caption() : "";
    if (which == engine::Lab::Label7 && text == engine::correctIn(seconds)) {
        Label7->setCaption(text, platform::translated("Board", tables::board_text::kCorrectIn)
                                     .arg(QString::fromStdString(seconds)));
        return;
    }
    label(which).setCaption(text);
}
void Board::setVisible(engine::Lab which, bool visible) {
    label(which).setVisible(visible);
}
void Board::setTimerEnabled(engine::Tmr timer, bool enabled) {
    (timer == engine::Tmr::Timer1 ? Timer1 : Timer2).setEnabled(enabled);
}
void Board::playwav(const std::string& path) {
    shell::playwav(path);
}

// The table part is the records' ranking; a placed time opens the
// fastest-times screen over the board with the name box on the new entry.
// The time goes into this board's table; the screen shows the tables of the
// chosen size, none when a hand-edited size lies outside 0..2.
void Board::checkhighscore() {
    auto& m = shell::module1();
    if (records::rankTime(m, layout_.boardsize, m.level, Label2(1).Caption(), m.loadfailed,
                          m.newrank))
        records::openForNameEntry(m, m.boardsize, {layout_.boardsize, m.level, m.newrank});
}

}  // namespace board
