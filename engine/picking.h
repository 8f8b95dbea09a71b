#pragma once
// Playing without dragging. A click on a movable piece picks it; choosing a
// cell (a click, or Enter on the keyboard's ring) then moves the picked piece
// there as an ordinary drag: its centre is brought over the cell's centre
// and released. So every rule of a drop holds unchanged: the snap, bouncing
// off an occupied cell, the count of covered cells, the check a full grid
// starts, the sounds and the hand pointer.
#include "engine/game.h"

namespace engine {

class Picking {
  public:
    static constexpr int kNone = -1;
    // A press and release this close together (twips, 10 pixels) is a click,
    // so an unsteady hand still picks; anything further is a drag.
    static constexpr float kClickSlop = 150.0f;

    enum class Outcome { Nothing, Picked, LetGo, Placed };
    struct Choice {
        Outcome outcome = Outcome::Nothing;
        bool handPointer = false;  // a placing drag shows the hand, as any drag does
    };

    Picking(Game& game, const BoardView& view) : game_(game), view_(view) {}

    int picked() const { return picked_; }
    void letGo() { picked_ = kNone; }

    // The pointer on piece k, in twips relative to the piece, as the drag
    // handlers see it. moved() runs before the drag moves the piece and
    // returns true when it dropped the pick (the press became a drag);
    // released() runs after the drop and returns true when the pick changed.
    void pressed(int piece, int button, float x, float y);
    bool moved(int piece, int button, float x, float y);
    bool released(int piece, int button);

    // A grid cell chosen: the picked piece goes there; with none picked, the
    // movable piece on the cell is picked.
    Choice chooseCell(int cell, const Options& opt, WindowSize window);
    // The tray chosen, at a slot or (kNone) between slots: a picked piece
    // that is away from home goes home; otherwise the piece in the slot is
    // picked, and choosing the picked piece's own slot or an empty one lets go.
    Choice chooseSlot(int slot, const Options& opt, WindowSize window);

    bool movable(int piece) const;
    int pieceAtHome(int slot) const;  // the slot's own piece when it lies there, else kNone
    // The movable piece lying on the cell, else one covering its centre (a
    // piece that bounced off it), else kNone.
    int pieceOnCell(int cell) const;

  private:
    bool dragOnto(int piece, Pic target, int index, const Options& opt, WindowSize window);
    Choice place(Pic target, int index, const Options& opt, WindowSize window);
    float pointerX(int piece, float x) const { return view_.left(Pic::Image2, piece) + x; }
    float pointerY(int piece, float y) const { return view_.top(Pic::Image2, piece) + y; }

    Game& game_;
    const BoardView& view_;
    int picked_ = kNone;
    int pressedPiece_ = kNone;  // a left press not yet released
    float pressX_ = 0, pressY_ = 0;
    bool dragging_ = false;
};

}  // namespace engine
