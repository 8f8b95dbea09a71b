#pragma once
// The plain coloured backdrop that hides the desktop behind the game.
#include "platform/form.h"

namespace shell {

class Grey : public platform::Form {
  public:
    static constexpr tables::Screen kScreen = tables::Screen::Grey;
    Grey() : Form(kScreen, platform::FormKind::Backdrop) {}
    void Form_Load() override;
    // The backdrop is no screen the player works with: a desktop's request
    // to close it is ignored, so it never ends a game in progress.
    void Form_QueryUnload() override {}
};

}  // namespace shell
