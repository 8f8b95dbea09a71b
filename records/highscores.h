#pragma once
// The fastest-times screen: the three tables of the current board size, one
// frame per level, and the name box for a newly qualified time.
#include <QColor>

#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"

namespace records {

class Highscores : public platform::Form {
  public:
    static constexpr const char* kName = "highscores";
    Highscores();
    void Form_Load() override;
    void Form_QueryUnload() override;

    platform::ControlArray<platform::Frame> Frame1{"Frame1"};  // 0..2, one per level
    platform::ControlArray<platform::Label> Label6{"Label6"};  // level headings
    platform::ControlArray<platform::Label> Label8{"Label8"};  // names, 5j + r
    platform::ControlArray<platform::Label> Label9{"Label9"};  // times, 5j + r
    platform::ControlArray<platform::TextBox> Text1{"Text1"};  // name boxes, one per level
    platform::ControlArray<platform::Label> Label3{"Label3"};  // 0: "Continue"
    platform::Label* Label1 = nullptr;                         // "Type your name in the box"
    platform::Label* Label2 = nullptr;                         // the title
    platform::Timer Timer1;                                    // copies the typed name

    // The screen was opened for a new entry: the box of the current level shows.
    bool nameEntryOpen() const;

  private:
    void buildLayout();
    void placeWindow();
    void fillTables();
    void colourRows();
    void copyTypedName();
    void Label3_Click(int index);
    void Timer1_Timer();
};

// The screen, loaded (its start-up run) if it was not.
Highscores& highscores();

// Makes the screen known to the screen model (the game and tests call this).
void registerScreens();

// After a qualifying time (the screen part of checkhighscore): the name box
// of `level` over the new entry's row, the prompt, the name copy, shown.
// A screen still open for viewing is loaded afresh first, so the new time
// shows and the window is red again.
void openForNameEntry();

// A board's "Fastest Times": the frames and window in the board's colour, shown.
void openForViewing(const QColor& boardColour);

}  // namespace records
