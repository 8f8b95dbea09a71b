// Renders every screen of the game, in a fixed state, to numbered PNG files:
//
//   screen_shots <game folder> <output folder>
//
// Two runs of the same code give the same files, so a change that must not
// alter the looks (moving tables about, say) is checked by running this before
// and after it and comparing the folders (`compare -metric AE` or `cmp`).
// The screens are driven the way a player drives them (screen_tour.h); the
// clock is frozen so every board deals the same puzzle and picture set. The
// texts are in the desktop's language: `LANGUAGE=de screen_shots ...` shows
// the German screens.
#include <sys/syscall.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <ctime>

#include "board/register.h"
#include "platform/form.h"
#include "platform/translation.h"
#include "records/highscores.h"
#include "shell/register.h"
#include "tests/tools/screen_tour.h"

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

QString outFolder;
int shotNumber = 0;

void shoot(tables::Screen screen, const QString& what) {
    const QString file =
        QString("%1/%2-%3.png").arg(outFolder).arg(++shotNumber, 2, 10, QChar('0')).arg(what);
    platform::screens::loaded(screen)->grab().save(file);
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: screen_shots <game folder> <output folder>\n");
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
    QDir::setCurrent(work.path());

    shell::registerScreens();
    board::registerScreens();
    records::registerScreens();
    // In the desktop's language, as the game itself would be.
    const QString translation = platform::installTranslation(game + "/translations");
    if (!translation.isEmpty()) std::printf("texts from %s\n", qPrintable(translation));

    screen_tour::walk({shoot});
    std::printf("%d screens in %s\n", shotNumber, qPrintable(outFolder));
    platform::screens::endProgram();
    return 0;
}
