#include "shell/grey.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/controls.h"
#include "tables/colours.h"

namespace shell {

void Grey::Form_Load() {
    setBackColor(platform::bgr(tables::kBackdrop));
    // Covers the whole screen even where no window manager maximizes it.
    if (const QScreen* screen = QGuiApplication::primaryScreen()) setGeometry(screen->geometry());
    setWindowState(Qt::WindowMaximized);
}

}  // namespace shell
