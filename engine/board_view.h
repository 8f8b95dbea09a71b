#pragma once
// The only way the engine reaches a board screen: the handful of operations a
// board provides. Positions are twips held as floats; the engine copies them
// when it snaps, so "lies on a cell" is exact float equality.
#include <string>

namespace engine {

enum class Pic {
    Image1,  // grid cells 0..N*N-1
    Image2,  // pieces 0..N*N-1
    Image3,  // tray slots, one per piece (read only)
    Image5,  // given-cell markers, one per cell
};

enum class Lab {
    Label2_0,  // " Time Taken"
    Label2_1,  // the seconds display
    Label2_2,  // "seconds"
    Label3_2,  // "New Puzzle"
    Label3_4,  // "Show solution"
    Label7,    // the result banner
};

enum class Tmr { Timer1, Timer2 };

class BoardView {
  public:
    virtual ~BoardView() = default;

    virtual float left(Pic pic, int index) const = 0;
    virtual float top(Pic pic, int index) const = 0;
    virtual float width(Pic pic, int index) const = 0;
    virtual float height(Pic pic, int index) const = 0;
    // Pieces and markers only.
    virtual void setLeft(Pic pic, int index, float left) = 0;
    virtual void setTop(Pic pic, int index, float top) = 0;
    virtual void setVisible(Pic pic, int index, bool visible) = 0;
    virtual void setEnabled(Pic pic, int index, bool enabled) = 0;
    // Markers: picture from a relative "Images\..." path; raise above the pieces.
    virtual void loadPicture(Pic pic, int index, const std::string& path) = 0;
    virtual void bringToFront(Pic pic, int index) = 0;

    virtual std::string caption(Lab label) const = 0;
    virtual void setCaption(Lab label, const std::string& text) = 0;
    virtual void setVisible(Lab label, bool visible) = 0;

    virtual void setTimerEnabled(Tmr timer, bool enabled) = 0;

    // The two calls the answer check makes outward: a sound by its relative
    // "wav\..." path, and ranking the time into the fastest-times table.
    virtual void playwav(const std::string& path) = 0;
    virtual void checkhighscore() = 0;
};

}  // namespace engine
