#pragma once
// The fastest-times screen: the three tables of the current board size, one
// frame per level, and the name box for a newly qualified time.
#include <QColor>

#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"
#include "records/fastest_times.h"

namespace records {

// The entry a newly qualified time went to: the table of a board size and
// level, at a rank index.
struct NewEntry {
    int boardsize;
    int level;
    int rank;
};

class Highscores : public platform::Form {
  public:
    static constexpr tables::Screen kScreen = tables::Screen::highscores;
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

    // The screen was opened for a new entry: the name box shows.
    bool nameEntryOpen() const;

    // Fills the names and times from the three tables of `boardsize`; any
    // other size (a hand-edited lastgame.inf) leaves the design texts.
    void fill(const FastestTimes& tables, int boardsize);
    // From now on the typed name goes into this entry of `tables`.
    void takeNameFor(FastestTimes& tables, const NewEntry& entry);

  private:
    void buildLayout();
    void placeWindow();
    void fillTables(const FastestTimes& tables, int boardsize);
    void colourRows();
    void copyTypedName();
    void Label3_Click();
    void Timer1_Timer();

    FastestTimes* namedTables_ = nullptr;  // where the typed name goes, when open for one
    NewEntry entry_{};
};

// The screen, loaded (its start-up run) if it was not.
Highscores& highscores();

// Makes the screen known to the screen model (the game and tests call this).
void registerScreens();

// After a qualifying time (the screen part of checkhighscore): the tables of
// `boardsize`, the name box of the entry's level over its row, the prompt and
// the name copy, shown. A screen still open for viewing is loaded afresh
// first, so the window is red again; one already taking a name is kept, with
// the name typed so far, and shows the tables as they now stand.
void openForNameEntry(FastestTimes& tables, int boardsize, const NewEntry& entry);

// A board's "Fastest Times": the tables of `boardsize`, the frames and window
// in the board's colour, shown.
void openForViewing(const FastestTimes& tables, int boardsize, const QColor& boardColour);

}  // namespace records
