#include "app/identity.h"

#include <QApplication>
#include <string>

#include "platform/files.h"

namespace app {

namespace {
// Window managers draw a window's own icon small (title bars, switchers);
// docks and menus take the larger sizes from the installed icon theme. Every
// size given here is decoded and sent to the X server when the first window
// shows, so the large ones (a 256-pixel icon is 256 KB twice over) would only
// weigh on the start-up.
constexpr int kWindowIconSides[] = {32, 48, 64};
}  // namespace

void setDesktopIdentity() {
    QCoreApplication::setApplicationName(QStringLiteral("Pimbalo"));
    // Without a display name Qt leaves the window titles as the screens set them.
    QGuiApplication::setDesktopFileName(QStringLiteral(PIMBALO_APP_ID));
}

QIcon gameIcon() {
    QIcon icon;
    for (int side : kWindowIconSides) {
        const std::string size = std::to_string(side) + "x" + std::to_string(side);
        const auto file = platform::findGameFile("icons\\hicolor\\" + size + "\\apps\\" +
                                                 PIMBALO_APP_ID + ".png");
        if (file) icon.addFile(*file, QSize(side, side));
    }
    return icon;
}

}  // namespace app
