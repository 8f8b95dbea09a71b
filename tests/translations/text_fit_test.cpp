// Every text fits its control, in English and in every translation:
//
//   text_fit_test <game folder> <translations folder>
//
// walks through every screen (screen_tour.h) once in English and once with
// each pimbalo_*.qm of the folder, and at each stop measures every text
// control of the screen, shown or hidden, in its own font: a label's text
// (wrapped when the label wraps) must lie within the label's contents, a
// check box's or option button's box and text within the button. The
// board's verdicts are each put in the banner in turn. Every text that does
// not fit is reported, all in one list, with the room it needs and has.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QRadioButton>
#include <QSet>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "board/board_screen.h"
#include "board/register.h"
#include "engine/game.h"
#include "platform/form.h"
#include "platform/translation.h"
#include "records/highscores.h"
#include "shell/register.h"
#include "tables/texts.h"
#include "tests/tools/screen_tour.h"

namespace {

using tables::Screen;

// The longest time the banner must hold: the clock's seconds, up to the
// fastest-times table's widest entry.
constexpr char kLongestSeconds[] = "8888";

struct Fit {
    QString language;
    QStringList misfits;  // one line each
    QSet<QString> seen;   // a control with a text is reported once
    int measured = 0;
};

QString sizeText(QSize s) {
    return QString("%1x%2").arg(s.width()).arg(s.height());
}

void report(Fit& fit, const QString& stop, const QWidget& control, const QString& shown,
            const QString& english, QSize needs, QSize has) {
    const auto& form = static_cast<const platform::Form&>(*control.window());
    const QString key = QString("%1|%2|%3|%4")
                            .arg(tables::screenName(form.screen()), shown, sizeText(control.size()))
                            .arg(control.x());
    if (fit.seen.contains(key)) return;
    fit.seen.insert(key);
    fit.misfits << QString("%1 | %2 | %3 | \"%4\" shown as \"%5\" | needs %6 px, has %7 px")
                       .arg(fit.language, stop, platform::textContext(form.screen()), english,
                            shown, sizeText(needs), sizeText(has));
}

// Where `text` puts ink when drawn into a box of `room`'s size at (0, 0),
// as the control draws it but unclipped: the ink may lie outside the box. A line's empty
// room below the letters does not count, only what would be clipped.
QRect inkOf(const QFont& font, QSize room, int flags, const QString& text) {
    QImage canvas(room * 3, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        painter.setFont(font);
        painter.setPen(Qt::black);
        painter.drawText(QRect(QPoint(room.width(), room.height()), room), flags | Qt::TextDontClip,
                         text);
    }
    int left = canvas.width(), top = canvas.height(), right = -1, bottom = -1;
    for (int y = 0; y < canvas.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
        for (int x = 0; x < canvas.width(); ++x) {
            if (qAlpha(line[x]) <= 32) continue;  // the faintest edge of smoothing
            left = std::min(left, x), right = std::max(right, x);
            top = std::min(top, y), bottom = std::max(bottom, y);
        }
    }
    if (right < 0) return {};
    return QRect(QPoint(left, top), QPoint(right, bottom))
        .translated(-room.width(), -room.height());
}

// The size a text needs, counted from the box's top-left corner, when its
// ink leaves the box; an empty size when it fits.
QSize overflow(const QFont& font, QSize room, int flags, const QString& text) {
    const QRect ink = inkOf(font, room, flags, text);
    if (ink.isEmpty() || QRect(QPoint(0, 0), room).contains(ink)) return {};
    return QSize(std::max(ink.right() + 1, room.width()) - std::min(ink.left(), 0),
                 std::max(ink.bottom() + 1, room.height()) - std::min(ink.top(), 0));
}

void measureLabel(Fit& fit, const QString& stop, const platform::Label& label) {
    const QString text = label.text();
    if (text.isEmpty()) return;
    ++fit.measured;
    const QSize room = label.contentsRect().size();
    const int flags = int(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
    const QSize needs = overflow(label.font(), room, flags, text);
    if (needs.isValid())
        report(fit, stop, label, text, QString::fromStdString(label.Caption()), needs, room);
}

// A check box or option button: its text beside the round or square box.
void measureButton(Fit& fit, const QString& stop, const QAbstractButton& button) {
    if (button.text().isEmpty()) return;
    ++fit.measured;
    QStyleOptionButton option;
    option.initFrom(&button);
    option.text = button.text();
    const bool radio = qobject_cast<const QRadioButton*>(&button) != nullptr;
    const QRect text = button.style()->subElementRect(
        radio ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents, &option, &button);
    // The text's room is the rest of the button right of the box.
    const QSize room(button.width() - text.left(), button.height());
    const QSize needs =
        overflow(button.font(), room, Qt::AlignLeft | Qt::AlignVCenter, option.text);
    if (needs.isValid()) report(fit, stop, button, option.text, option.text, needs, room);
}

void measureScreen(Fit& fit, Screen screen, const QString& stop) {
    QWidget& form = *platform::screens::loaded(screen);
    for (const auto* label : form.findChildren<platform::Label*>()) measureLabel(fit, stop, *label);
    for (const auto* button : form.findChildren<QAbstractButton*>())
        measureButton(fit, stop, *button);
}

// Each verdict in the banner of a board, as the answer check writes it.
void measureVerdicts(Fit& fit, Screen screen, const QString& stop) {
    namespace text = tables::board_text;
    auto& board = platform::screens::get<board::Board>(screen);
    board.Label2(1).setCaption(kLongestSeconds);
    const std::string timed = engine::correctIn(kLongestSeconds);
    for (const std::string& verdict :
         {std::string(text::kCorrect), timed, std::string(text::kQuartersWrong),
          std::string(text::kDiagonalsWrong), std::string(text::kWrong)}) {
        board.setCaption(engine::Lab::Label7, verdict);
        measureLabel(fit, stop + "-verdict", *board.Label7);
    }
    // The answer check reads the verdict back: it stays the English text.
    board.setCaption(engine::Lab::Label7, timed);
    if (board.caption(engine::Lab::Label7) != timed)
        fit.misfits << fit.language + " | " + stop + " | the banner reads back \"" +
                           QString::fromStdString(board.caption(engine::Lab::Label7)) +
                           "\", not the English verdict";
    board.setCaption(engine::Lab::Label2_1, "0");
}

Fit walkIn(const QString& language) {
    Fit fit{language, {}, {}, 0};
    screen_tour::walk({[&fit](Screen screen, const QString& stop) {
                           measureScreen(fit, screen, stop);
                           if (tables::boardsizeOf(screen) >= 0) measureVerdicts(fit, screen, stop);
                       },
                       false});
    platform::screens::endProgram();
    screen_tour::settle();
    return fit;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: text_fit_test <game folder> <translations folder>\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString game = QDir(argv[1]).absolutePath();
    const QDir translations(QDir(argv[2]).absolutePath());
    QTemporaryDir work;
    for (const char* folder : {"Images", "wav"})
        QFile::link(game + "/" + folder, work.filePath(folder));
    QDir::setCurrent(work.path());
    shell::registerScreens();
    board::registerScreens();
    records::registerScreens();
    platform::screens::setEndHandler([] {});

    QStringList languages{QString()};  // English first
    for (const QString& file : translations.entryList({"pimbalo_*.qm"}, QDir::Files, QDir::Name))
        languages << translations.filePath(file);
    QStringList misfits;
    for (const QString& file : languages) {
        const QString name = file.isEmpty() ? "English" : QFileInfo(file).completeBaseName();
        if (!platform::useTranslationFile(file)) {
            misfits << name + " | cannot be read";
            continue;
        }
        const Fit fit = walkIn(name);
        std::printf("%s: %d texts measured, %lld do not fit\n", qPrintable(name), fit.measured,
                    static_cast<long long>(fit.misfits.size()));
        misfits << fit.misfits;
    }
    if (misfits.isEmpty()) return 0;
    std::printf("\nTexts that do not fit (language | screen | context | text | room):\n%s\n",
                qPrintable(misfits.join('\n')));
    return 1;
}
