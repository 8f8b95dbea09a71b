#pragma once
// How the game shows itself on the desktop: the name and class that docks,
// task bars and window switchers group its windows by (matching the menu
// entry), and the icon on every window.
#include <QIcon>

namespace app {

// The application's name, its desktop file and hence its X11 class
// ("pimbalo", "Pimbalo") and Wayland id. Call before the first window exists.
void setDesktopIdentity();

// The icon drawn at build time, in the sizes window managers draw, as found
// below the data folder; an empty icon when there is none (the window
// manager then shows its own).
QIcon gameIcon();

}  // namespace app
