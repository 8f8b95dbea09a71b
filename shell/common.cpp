#include "shell/common.h"

#include "platform/desktop.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "tables/geometry.h"

namespace shell {

void playwav(const std::string& file) {
    platform::playSound(file);
}

void placeform(platform::Form& screen) {
    screen.setOuterSize(tables::kWindowWidth, tables::kWindowHeight);
    const float w = platform::screenWidthTwips();
    const float h = platform::screenHeightTwips();
    platform::setBusyPointer(true);
    screen.setTop(h / 2 - screen.Height() / 2);
    screen.setLeft(w / 2 - screen.Width() / 2);
    platform::setBusyPointer(false);
}

}  // namespace shell
