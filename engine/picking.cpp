#include "engine/picking.h"

#include <cmath>

namespace engine {

void Picking::pressed(int piece, int button, float x, float y) {
    dragging_ = false;
    pressedPiece_ = button == 1 ? piece : kNone;
    pressX_ = pointerX(piece, x);
    pressY_ = pointerY(piece, y);
}

bool Picking::moved(int piece, int button, float x, float y) {
    if (piece != pressedPiece_ || button != 1 || dragging_) return false;
    if (std::fabs(pointerX(piece, x) - pressX_) <= kClickSlop &&
        std::fabs(pointerY(piece, y) - pressY_) <= kClickSlop)
        return false;
    // Dragging is the other way to move a piece: it ends any pick.
    dragging_ = true;
    const bool hadPick = picked_ != kNone;
    picked_ = kNone;
    return hadPick;
}

bool Picking::released(int piece, int button) {
    const bool click = piece == pressedPiece_ && button == 1 && !dragging_;
    pressedPiece_ = kNone;
    if (!click || !movable(piece)) return false;
    picked_ = picked_ == piece ? kNone : piece;
    return true;
}

Picking::Choice Picking::chooseCell(int cell, const Options& opt, WindowSize window) {
    if (picked_ != kNone) return place(Pic::Image1, cell, opt, window);
    const int piece = pieceOnCell(cell);
    if (piece == kNone) return {};
    picked_ = piece;
    return {Outcome::Picked};
}

Picking::Choice Picking::chooseSlot(int slot, const Options& opt, WindowSize window) {
    // Dropped on any slot, a piece goes to its own: that is how it gets home.
    if (picked_ != kNone && pieceAtHome(picked_) == kNone)
        return place(Pic::Image3, slot == kNone ? picked_ : slot, opt, window);
    const int piece = slot == kNone ? kNone : pieceAtHome(slot);
    if (piece == kNone || piece == picked_) {
        const bool hadPick = picked_ != kNone;
        picked_ = kNone;
        return {hadPick ? Outcome::LetGo : Outcome::Nothing};
    }
    picked_ = piece;
    return {Outcome::Picked};
}

Picking::Choice Picking::place(Pic target, int index, const Options& opt, WindowSize window) {
    const int piece = picked_;
    picked_ = kNone;
    return {Outcome::Placed, dragOnto(piece, target, index, opt, window)};
}

// One movement with the left button that puts the piece's centre on the
// target's centre, then the release: the same two steps a hand makes.
bool Picking::dragOnto(int piece, Pic target, int index, const Options& opt, WindowSize window) {
    const float centreX = view_.left(target, index) + view_.width(target, index) / 2.0f;
    const float centreY = view_.top(target, index) + view_.height(target, index) / 2.0f;
    const float x = centreX - view_.left(Pic::Image2, piece);
    const float y = centreY - view_.top(Pic::Image2, piece);
    const bool hand = game_.pieceMouseMove(piece, 1, x, y, window);
    game_.pieceMouseUp(piece, opt);
    return hand;
}

bool Picking::movable(int piece) const {
    const int n = game_.n();
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            if (game_.given[x][y] == 1 && pieceNumber(n, game_.solution[x][y], y) == piece)
                return false;
        }
    }
    return piece >= 0 && piece < n * n;
}

int Picking::pieceAtHome(int slot) const {
    const bool home = view_.left(Pic::Image2, slot) == view_.left(Pic::Image3, slot) &&
                      view_.top(Pic::Image2, slot) == view_.top(Pic::Image3, slot);
    return home && movable(slot) ? slot : kNone;
}

int Picking::pieceOnCell(int cell) const {
    const int pieces = game_.n() * game_.n();
    const float left = view_.left(Pic::Image1, cell), top = view_.top(Pic::Image1, cell);
    for (int p = 0; p < pieces; ++p) {
        if (movable(p) && view_.left(Pic::Image2, p) == left && view_.top(Pic::Image2, p) == top)
            return p;
    }
    const float centreX = left + view_.width(Pic::Image1, cell) / 2.0f;
    const float centreY = top + view_.height(Pic::Image1, cell) / 2.0f;
    for (int p = 0; p < pieces; ++p) {
        const float pl = view_.left(Pic::Image2, p), pt = view_.top(Pic::Image2, p);
        const bool covers = pl <= centreX && centreX < pl + view_.width(Pic::Image2, p) &&
                            pt <= centreY && centreY < pt + view_.height(Pic::Image2, p);
        if (covers && movable(p)) return p;
    }
    return kNone;
}

}  // namespace engine
