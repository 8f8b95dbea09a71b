#pragma once
// The options screen, the hub between games: board size, sound, clock and
// backdrop options, the rules, and the three level buttons that start a game.
// Its controls mirror the shared options; every change takes effect at once.
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace shell {

class Startplay2 : public platform::Form {
  public:
    static constexpr tables::Screen kScreen = tables::Screen::Startplay2;
    Startplay2();
    void Form_Load() override;

    platform::ControlArray<platform::PictureBox> Image1{"Image1"};  // 0: title picture
    platform::PictureBox* Image2 = nullptr;                         // logo
    platform::ControlArray<platform::Label> Label2{"Label2"};       // 0, 1 headings; 12 web address
    platform::ControlArray<platform::OptionButton> Option1{"Option1"};  // board sizes
    platform::Label* Label6 = nullptr;                                  // "The Rules"
    platform::CheckBox* Check1 = nullptr;                               // "Play Sound"
    platform::CheckBox* Check2 = nullptr;                               // "Timers On"
    platform::CheckBox* Check3 = nullptr;                               // "Hide Desktop"
    platform::ControlArray<platform::Label> Label1{"Label1"};           // levels "1".."3"
    platform::ControlArray<platform::Label> Label3{"Label3"};           // 0: "Exit"
    platform::Label* Label5 = nullptr;                                  // legal notice

  private:
    void buildLayout();
    void wireEvents();
    void Check1_Click();
    void Check2_Click();
    void Check3_Click();
    void Label1_Click(int level);
    void Label6_Click();
    void Label3_Click();
};

}  // namespace shell
