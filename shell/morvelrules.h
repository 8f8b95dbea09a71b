#pragma once
// The rules screen: one page per board size, each a rule sentence with an
// example puzzle and its solution. It opens on the 4x4 page over the options
// screen and returns to it with "Exit".
#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace shell {

class Morvelrules : public platform::Form {
  public:
    static constexpr tables::Screen kScreen = tables::Screen::Morvelrules;
    Morvelrules();
    void Form_Load() override;
    // Closed through the desktop: as its "Exit".
    void Form_QueryUnload() override { Label3_Click(); }

    platform::ControlArray<platform::OptionButton> Option1{"Option1"};  // pages 0..2
    platform::ControlArray<platform::PictureBox> Image1{"Image1"};      // 0: title picture
    platform::PictureBox* Image2 = nullptr;                             // logo
    platform::PictureBox* Image3 = nullptr;                             // example puzzle
    platform::PictureBox* Image4 = nullptr;                             // its solution
    // 0 title, 1 "Solution", 2 rule sentence, 3 "Puzzle", 4 install note, 6 page heading
    platform::ControlArray<platform::Label> Label1{"Label1"};
    platform::ControlArray<platform::Label> Label3{"Label3"};  // 0: "Exit"

  private:
    void buildLayout();
    void showPage(int page);
    void Label3_Click();
};

// What a page shows: its heading, rule sentence and example pictures.
struct RulesPage {
    const char* heading;
    const char* rule;
    const char* puzzlePicture;
    const char* solutionPicture;
};
RulesPage rulesPage(int page);

}  // namespace shell
