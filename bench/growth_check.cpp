// Checks that a long session does not make the game grow: on each board size
// it first clicks every picture set once (so every picture is in memory),
// then plays 100 "New Puzzle" clicks and about 33 picture-set changes, and
// compares the resident size before and after (300 and 100 in all). Fails
// when the growth reaches 1 MB.
// Run in the game folder, or pass it:  growth_check [game folder]
// under any Qt platform, e.g. QT_QPA_PLATFORM=offscreen.
#include <malloc.h>

#include <QApplication>
#include <QDir>
#include <QtTest>
#include <cstdio>
#include <fstream>
#include <string>

#include "board/board_layout.h"
#include "board/board_screen.h"
#include "board/register.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "records/highscores.h"
#include "shell/module1.h"

namespace {

constexpr int kNewPuzzle = 2;
constexpr int kSwitchPanel = 5;
constexpr long kAllowedGrowthKb = 1024;

// Freed heap memory is handed back first, so that a leak cannot hide in
// memory the heap already held from the warm-up.
long residentKb() {
    malloc_trim(0);
    std::ifstream status("/proc/self/status");
    std::string key;
    long value = -1;
    while (status >> key)
        if (key == "VmRSS:" && status >> value) return value;
    return -1;
}

void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void click(QWidget& control) {
    QTest::mouseClick(&control, Qt::LeftButton);
    settle();
}

board::Board& openBoard(int size) {
    const tables::Screen screen = tables::boardScreen(size);
    platform::screens::show(screen);
    auto& b = platform::screens::get<board::Board>(screen);
    if (!QTest::qWaitForWindowExposed(&b))
        std::fprintf(stderr, "%s was never shown\n", tables::screenName(screen));
    click(b.Label3(kSwitchPanel));  // the thumbnails take the rules' place
    return b;
}

void clickEverySet(board::Board& b) {
    for (int set = 0; set < b.layout().pictureSets; ++set) click(b.Image4(set));
}

// One board size's share of the session.
void play(int size, int newPuzzles, int setChanges) {
    auto& b = openBoard(size);
    const int sets = b.layout().pictureSets;
    for (int i = 0; i < newPuzzles; ++i) {
        click(b.Label3(kNewPuzzle));
        if (i % 3 == 0 && setChanges > 0) {
            click(b.Image4(i % sets));
            --setChanges;
        }
    }
    platform::screens::unload(b.screen());
    settle();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc > 1) QDir::setCurrent(QString::fromLocal8Bit(argv[1]));
    board::registerScreens();
    records::registerScreens();
    shell::module1().timerson = 1;
    shell::module1().playsound = 1;
    int commands = 0;  // every new puzzle and set change asks for "space.wav"
    platform::setSoundObserver([&commands](const std::string& path) {
        if (path.find("space") != std::string::npos) ++commands;
    });

    // Every picture set of every size seen once, and each board opened and
    // closed, so what stays in memory for the rest of the run is there.
    for (int size = 0; size < 3; ++size) {
        auto& b = openBoard(size);
        clickEverySet(b);
        platform::screens::unload(b.screen());
        settle();
    }
    const long before = residentKb();
    commands = 0;
    for (int size = 0; size < 3; ++size) play(size, 100, size == 0 ? 34 : 33);
    const long after = residentKb();

    if (commands < 400) {
        std::printf("only %d of the 400 clicks reached the boards\n", commands);
        return 1;
    }
    const long growth = after - before;
    std::printf(
        "resident size %ld kB before, %ld kB after 300 new puzzles and 100 set "
        "changes: %+ld kB (allowed below %ld kB)\n",
        before, after, growth, kAllowedGrowthKb);
    return before > 0 && growth < kAllowedGrowthKb ? 0 : 1;
}
