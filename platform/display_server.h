#pragma once
// Which display server the game draws on. The game places its own windows:
// centred, full-size screens at fixed places, the fastest-times screen over
// its board. A Wayland client may not place windows, so on a Wayland desktop
// the game runs through the desktop's X server (XWayland) instead.

namespace platform {

struct SessionEnvironment {
    const char* qtPlatform;      // QT_QPA_PLATFORM: the player's own choice
    const char* waylandDisplay;  // WAYLAND_DISPLAY
    const char* sessionType;     // XDG_SESSION_TYPE
    const char* x11Display;      // DISPLAY: XWayland's server
};

// True when the game should ask for X11: the player chose no Qt platform, the
// session is a Wayland one, and an X server is there to take the windows
// (without one, Qt's own choice is the only one that can run).
bool shouldUseX11(const SessionEnvironment& env);

// Selects X11 (Qt's "xcb" platform) when shouldUseX11 says so. Call it before
// the application object is made.
void preferX11OnWayland();

}  // namespace platform
