#include "platform/display_server.h"

#include <QByteArray>
#include <QtGlobal>
#include <cstdlib>
#include <cstring>

namespace platform {

namespace {
bool isSet(const char* value) {
    return value != nullptr && value[0] != '\0';
}
}  // namespace

bool shouldUseX11(const SessionEnvironment& env) {
    if (isSet(env.qtPlatform) || !isSet(env.x11Display)) return false;
    return isSet(env.waylandDisplay) ||
           (isSet(env.sessionType) && std::strcmp(env.sessionType, "wayland") == 0);
}

void preferX11OnWayland() {
    const SessionEnvironment env{std::getenv("QT_QPA_PLATFORM"), std::getenv("WAYLAND_DISPLAY"),
                                 std::getenv("XDG_SESSION_TYPE"), std::getenv("DISPLAY")};
    if (shouldUseX11(env)) qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("xcb"));
}

}  // namespace platform
