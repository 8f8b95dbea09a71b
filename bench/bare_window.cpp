// The floor the game's start-up is measured against: an empty Qt window of
// the title screen's size (434 x 550 pixels), built with the game's flags.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(434, 550);
    window.show();
    return app.exec();
}
