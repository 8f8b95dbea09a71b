// A picture the game cannot do without ends the program the way its "Exit"
// does, only with status 1: the screens and the application go first, so
// the sanitizer build's leak check finds nothing left behind.
#include <QApplication>
#include <QTimer>

#include "platform/controls.h"
#include "platform/files.h"
#include "platform/form.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    platform::screens::registerScreen(tables::Screen::jigsaw, [] {
        auto* board = new platform::Form(tables::Screen::jigsaw, platform::FormKind::Fixed);
        board->setClientSize(3000, 1500);
        auto* caption = new platform::Label(board);  // text, so fonts are loaded
        caption->setBounds(120, 120, 2700, 600);
        caption->setCaption("Level 1");
        return board;
    });
    platform::screens::show(tables::Screen::jigsaw);
    // On a real display the message waits for the player: answer it.
    QTimer player;
    QObject::connect(&player, &QTimer::timeout, [] {
        if (QWidget* message = QApplication::activeModalWidget()) message->close();
    });
    player.start(200);
    // From inside an event, as a board's start-up or "New Puzzle" would.
    QTimer::singleShot(50, [] { platform::loadPicture("Images\\missing.jpg"); });
    application.exec();
    return 2;  // not reached: the missing picture ends the program
}
