#pragma once
// The title screen: the first screen of the program. Its start-up reads the
// saved options and the fastest-times tables; "OK" leads to the options
// screen, "Exit" ends the program.
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace shell {

class Titlefrm : public platform::Form {
  public:
    static constexpr tables::Screen kScreen = tables::Screen::Titlefrm;
    Titlefrm();
    void Form_Load() override;

    platform::ControlArray<platform::PictureBox> Image1{"Image1"};  // 0 title, 1 opening picture
    platform::PictureBox* Image2 = nullptr;                         // logo
    platform::Label* Label5 = nullptr;                              // "OK", or "Cancel" on a return
    platform::Label* Label7 = nullptr;                              // "Exit"
    platform::Label* Label2 = nullptr;                              // legal notice

  private:
    // The start-up's trapped part; false at the first thing that failed.
    bool loadEverything();
    bool loadPictures();
    void leaveForOptions();
};

}  // namespace shell
