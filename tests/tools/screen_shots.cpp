// Renders every screen of the game, in a fixed state, to numbered PNG files:
//
//   screen_shots <game folder> <output folder> [<folder of .inf files>]
//
// The game starts without saved files, or with the lastgame.inf and
// highscore.inf of the third folder (records to show, say).
//
// Two runs of the same code give the same files, so a change that must not
// alter the looks (moving tables about, say) is checked by running this before
// and after it and comparing the folders (`compare -metric AE` or `cmp`).
// The screens are driven the way a player drives them, by clicking controls
// found by their captions; the clock is frozen so every board deals the same
// puzzle and picture set.
#include <sys/syscall.h>
#include <unistd.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdio>
#include <ctime>

#include "board/board_screen.h"
#include "board/register.h"
#include "platform/form.h"
#include "records/highscores.h"
#include "shell/register.h"
#include "tables/screens.h"

// The wall clock stands still at one moment, so the boards' random start
// (seeded from the time of day) is the same on every run. The other clocks,
// which Qt's timers use, run as usual.
extern "C" int clock_gettime(clockid_t clock, struct timespec* ts) {
    if (clock == CLOCK_REALTIME) {
        ts->tv_sec = 1700000000;
        ts->tv_nsec = 123456789;
        return 0;
    }
    return static_cast<int>(syscall(SYS_clock_gettime, clock, ts));
}

namespace {

using tables::Screen;
QString outFolder;
int shotNumber = 0;

void settle() {
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void shoot(Screen screen, const QString& what) {
    settle();
    platform::Form* form = platform::screens::loaded(screen);
    if (!form || !form->isVisible()) {
        std::fprintf(stderr, "screen %s is not shown for %s\n", tables::screenName(screen),
                     qPrintable(what));
        std::exit(1);
    }
    const QString file =
        QString("%1/%2-%3.png").arg(outFolder).arg(++shotNumber, 2, 10, QChar('0')).arg(what);
    form->grab().save(file);
}

// The shown control of `screen` whose caption is `caption`.
template <class Control>
Control* find(Screen screen, const QString& caption) {
    for (Control* c : platform::screens::get(screen).findChildren<Control*>())
        if (c->isVisible() && c->text() == caption) return c;
    std::fprintf(stderr, "no \"%s\" on %s\n", qPrintable(caption), tables::screenName(screen));
    std::exit(1);
}

void clickWidget(QWidget* w) {
    QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
    settle();
}

void click(Screen screen, const QString& caption) {
    clickWidget(find<QLabel>(screen, caption));
}

void setChecked(Screen screen, const QString& caption, bool on) {
    QCheckBox* box = find<QCheckBox>(screen, caption);
    if (box->isChecked() != on) clickWidget(box);
}

void shootBoard(int size, int level, bool timers) {
    setChecked(Screen::Startplay2, "Timers On", timers);
    clickWidget(
        platform::screens::get<QWidget>(Screen::Startplay2).findChildren<QRadioButton*>().at(size));
    click(Screen::Startplay2, QString::number(level + 1));
    const Screen name = tables::boardScreen(size);
    auto& b = platform::screens::get<board::Board>(name);
    b.Timer1.setEnabled(false);  // the clock shows 0 however slow the run
    const QString tag =
        QString("board%1-level%2%3").arg(size).arg(level + 1).arg(timers ? "-timed" : "");
    shoot(name, tag);
    if (level == 0) {
        click(name, "Change Pictures");
        shoot(name, tag + "-sets");
        for (int set = 0; set < b.layout().pictureSets; ++set) {
            clickWidget(&b.Image4(set));
            shoot(name, tag + QString("-set%1").arg(set));
        }
        click(name, "Show solution");
        shoot(name, tag + "-solution");
    }
    if (timers) {
        click(name, "Fastest Times");
        shoot(Screen::highscores, tag + "-fastest");
        click(Screen::highscores, "Continue");
    }
    click(name, "Exit");
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 3 && argc != 4) {
        std::fprintf(
            stderr, "usage: screen_shots <game folder> <output folder> [<folder of .inf files>]\n");
        return 2;
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString game = QDir(argv[1]).absolutePath();
    outFolder = QDir(argv[2]).absolutePath();
    QDir().mkpath(outFolder);
    QTemporaryDir work;
    for (const char* folder : {"Images", "wav"})
        QFile::link(game + "/" + folder, work.filePath(folder));
    if (argc == 4)
        for (const char* file : {"lastgame.inf", "highscore.inf"})
            QFile::copy(QDir(argv[3]).filePath(file), work.filePath(file));
    QDir::setCurrent(work.path());

    shell::registerScreens();
    board::registerScreens();
    records::registerScreens();

    platform::screens::show(Screen::Titlefrm);
    shoot(Screen::Titlefrm, "title");
    click(Screen::Titlefrm, "OK");
    shoot(Screen::Grey, "backdrop");
    shoot(Screen::Startplay2, "options");

    click(Screen::Startplay2, "The Rules");
    auto pages = platform::screens::get<QWidget>(Screen::Morvelrules).findChildren<QRadioButton*>();
    for (int page = 0; page < pages.size(); ++page) {
        clickWidget(pages.at(page));
        shoot(Screen::Morvelrules, QString("rules-page%1").arg(page + 1));
    }
    click(Screen::Morvelrules, "Exit");

    for (int size = 0; size < 3; ++size)
        for (int level = 0; level < 3; ++level) shootBoard(size, level, level == 1);

    shoot(Screen::Startplay2, "options-after-games");
    click(Screen::Startplay2, "Exit");
    shoot(Screen::Titlefrm, "title-again");
    std::printf("%d screens in %s\n", shotNumber, qPrintable(outFolder));
    platform::screens::endProgram();
    return 0;
}
