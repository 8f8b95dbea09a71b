#include "app/identity.h"

#include <QApplication>
#include <string>

#include "platform/files.h"

namespace app {

void setDesktopIdentity() {
    QCoreApplication::setApplicationName(QStringLiteral("Pimbalo"));
    // Without a display name Qt leaves the window titles as the screens set them.
    QGuiApplication::setDesktopFileName(QStringLiteral(PIMBALO_APP_ID));
}

QIcon gameIcon() {
    QIcon icon;
    for (int side : {32, 48, 64, 128, 256}) {
        const std::string size = std::to_string(side) + "x" + std::to_string(side);
        const auto file = platform::findGameFile("icons\\hicolor\\" + size + "\\apps\\" +
                                                 PIMBALO_APP_ID + ".png");
        if (file) icon.addFile(*file, QSize(side, side));
    }
    return icon;
}

}  // namespace app
