// The floor the game's start-up is measured against: an empty Qt window of
// the title screen's size (434 x 550 pixels), built with the game's flags.
// With --text it shows one line of text as well, the floor of any window
// that draws text (fonts found, loaded and shaped).
#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <cstring>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QWidget window;
    window.setFixedSize(434, 550);
    if (argc > 1 && std::strcmp(argv[1], "--text") == 0) {
        auto* text = new QLabel(QStringLiteral("OK"), &window);
        text->setGeometry(104, 472, 105, 40);
    }
    window.show();
    return app.exec();
}
