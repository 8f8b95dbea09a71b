// Plays two sounds, the second cutting off the first (as the title's "OK" and
// the options screen coming up do), and ends the program right after them:
//
//   sound_exit_probe <sound module> <game folder> <milliseconds> quit|fatal
//
// The game folder holds the sound, "wav\tone.wav".
// "quit" ends through the screens' end of program (the title's "Exit", or a
// window closed), returning from main; "fatal" through a fatal file error,
// which leaves by exit() with the application still there.
#include <QApplication>
#include <QDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "platform/fatal.h"
#include "platform/form.h"
#include "platform/sound.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    if (argc != 5) {
        std::fprintf(stderr,
                     "usage: sound_exit_probe <module> <folder> <milliseconds> quit|fatal\n");
        return 2;
    }
    platform::setSoundModule(QString::fromLocal8Bit(argv[1]));
    QDir::setCurrent(QString::fromLocal8Bit(argv[2]));
    const bool fatal = qstrcmp(argv[4], "fatal") == 0;
    platform::playSound("wav\\tone.wav");
    platform::playSound("wav\\tone.wav");
    QTimer::singleShot(std::atoi(argv[3]), [fatal] {
        if (fatal)
            platform::fatalFileError(QStringLiteral("Images\\none.jpg"), QStringLiteral("a test"));
        else
            platform::screens::endProgram();
    });
    return application.exec();
}
