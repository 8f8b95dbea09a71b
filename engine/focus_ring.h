#pragma once
// Where the keyboard stands on a board: a ring over a tray slot, a grid cell
// or one of the commands. The arrows walk the tray and the grid as they are
// laid out (down from the tray's lowest slots into the grid's top row and
// back up); Tab goes from the tray to the grid to the commands and round,
// each remembering where the ring last stood.
#include <utility>
#include <vector>

namespace engine {

enum class Zone { Tray, Grid, Commands };
enum class Arrow { Left, Right, Up, Down };

struct RingLayout {
    int n = 4;                             // the grid is n x n; the tray holds n*n slots
    int trayColumns = 8;                   // slots per tray row
    std::vector<float> trayColumnCentres;  // across the window, in twips
    std::vector<float> gridColumnCentres;
};

class FocusRing {
  public:
    explicit FocusRing(RingLayout layout) : layout_(std::move(layout)) {}

    Zone zone() const { return zone_; }
    int slot() const { return slot_; }
    int cell() const { return cell_; }
    // The command the ring stands on among those on offer (in the order the
    // arrows walk them); the first when the remembered one is not on offer.
    int command(const std::vector<int>& offered) const;

    // The ring shows from the first key on. That key only shows where the
    // ring stands, so nothing is chosen that the player could not see.
    bool shown() const { return shown_; }
    bool reveal();  // true when the ring was hidden

    void arrow(Arrow arrow, const std::vector<int>& offered);
    void tab(bool forward, const std::vector<int>& offered);

  private:
    void trayArrow(Arrow arrow);
    void gridArrow(Arrow arrow);
    static int nearest(const std::vector<float>& centres, float x);

    RingLayout layout_;
    Zone zone_ = Zone::Tray;
    int slot_ = 0;
    int cell_ = 0;
    int command_ = -1;
    bool shown_ = false;
};

}  // namespace engine
