// Dragging pieces with the pointer and dropping them onto cells or home.
// Positions are floats and a snap copies the target's own position, so
// "lies on a cell" can be tested with exact equality.
#include "engine/game.h"
#include "tables/sounds.h"

namespace engine {
namespace {

constexpr float kEdgeMargin = 120.0f;  // a dragged piece keeps this far from the window edge
constexpr float kPushOff = 600.0f;     // how far a piece dropped on an occupied cell bounces

}  // namespace

bool Game::pieceMouseMove(int k, int button, float x, float y, WindowSize window) {
    const float left = view_.left(Pic::Image2, k);
    const float top = view_.top(Pic::Image2, k);
    const float halfWidth = view_.width(Pic::Image2, k) / 2.0f;
    const float halfHeight = view_.height(Pic::Image2, k) / 2.0f;
    // Every sum is a float, as the positions are.
    const float pointerX = left + x;
    const float pointerY = top + y;
    const float newLeft = pointerX - halfWidth;
    const float newRight = pointerX + halfWidth;
    const float newTop = pointerY - halfHeight;
    const float newBottom = pointerY + halfHeight;

    // The piece does not slide along an edge: a move that would bring it too
    // close leaves it where the last good move put it.
    if (!(newLeft >= kEdgeMargin)) return false;
    if (!(newRight <= window.width - kEdgeMargin)) return false;
    if (!(newTop >= kEdgeMargin)) return false;
    if (!(newBottom <= window.height - kEdgeMargin)) return false;

    // Merely passing over a piece raises it; only the left button alone drags.
    view_.bringToFront(Pic::Image2, k);
    if (button == 1) {
        view_.setLeft(Pic::Image2, k, newLeft);
        view_.setTop(Pic::Image2, k, newTop);
    }
    return true;
}

bool Game::withinHalfOf(int piece, Pic target, int targetIndex) const {
    const float pieceLeft = view_.left(Pic::Image2, piece);
    const float pieceTop = view_.top(Pic::Image2, piece);
    const float left = view_.left(target, targetIndex);
    const float top = view_.top(target, targetIndex);
    const float halfWidth = view_.width(target, targetIndex) / 2.0f;
    const float halfHeight = view_.height(target, targetIndex) / 2.0f;
    const float minLeft = left - halfWidth, maxLeft = left + halfWidth;
    const float minTop = top - halfHeight, maxTop = top + halfHeight;
    // Strict on purpose: exactly half a cell away does not snap.
    return minLeft < pieceLeft && pieceLeft < maxLeft && minTop < pieceTop && pieceTop < maxTop;
}

void Game::pieceMouseUp(int k, const Options& opt) {
    view_.setVisible(Lab::Label7, false);

    // Every test reads the piece where the previous steps left it.
    for (int i = 0; i < cellcount(); ++i) {
        if (!withinHalfOf(k, Pic::Image1, i)) continue;
        moveOnto(Pic::Image2, k, Pic::Image1, i);
        play(opt, tables::kClick1Wav);
    }
    // Near any tray slot means home, and home is always the piece's own slot.
    for (int i = 0; i < cellcount(); ++i) {
        if (!withinHalfOf(k, Pic::Image3, i)) continue;
        moveOnto(Pic::Image2, k, Pic::Image3, k);
        play(opt, tables::kClick1Wav);
    }
    // Two pieces never share a cell: the newcomer bounces up and to the right.
    for (int i = 0; i < cellcount(); ++i) {
        if (i == k) continue;
        const float left = view_.left(Pic::Image2, k);
        const float top = view_.top(Pic::Image2, k);
        if (view_.left(Pic::Image2, i) == left && view_.top(Pic::Image2, i) == top) {
            view_.setLeft(Pic::Image2, k, left + kPushOff);
            view_.setTop(Pic::Image2, k, top - kPushOff);
        }
    }

    if (coveredCells() == cellcount()) {
        view_.setTimerEnabled(Tmr::Timer2, true);
    } else {
        view_.setVisible(Lab::Label3_2, false);
        view_.setVisible(Lab::Label3_4, true);
    }
}

int Game::coveredCells() const {
    const std::vector<Position> cells = positions(Pic::Image1);
    const std::vector<Position> pieces = positions(Pic::Image2);
    int count = 0;
    for (const Position& piece : pieces) {
        for (const Position& cell : cells) {
            if (piece == cell) ++count;
        }
    }
    return count;
}

}  // namespace engine
