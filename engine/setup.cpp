// Turns a fresh solution into a puzzle: picks the given cells, locks their
// pieces onto the grid with a corner marker, and starts the clock.
#include <algorithm>
#include <utility>

#include "engine/game.h"
#include "engine/grid.h"
#include "tables/geometry.h"

namespace engine {
namespace {

// The game only ever sets levels 0 to 2; anything else plays as the nearest.
int thresholdFor(const BoardTable& t, int level) {
    return t.thresholds[std::clamp(level, 0, 2)];
}

}  // namespace

void Game::setstart(const Options& opt) {
    const BoardTable& t = table();
    const int size = t.n;
    const int cells = cellcount();

    // Entry m (1-based) belongs to column (m-1) div N, row (m-1) mod N.
    rnd_.seedFromClock();
    std::vector<std::int16_t> entries(cells + 1);
    for (int m = 1; m <= cells; ++m) entries[m] = static_cast<std::int16_t>(m + t.givenBase);
    for (int pass = 0; pass < 100; ++pass) {
        for (int m = 1; m <= cells; ++m) std::swap(entries[m], entries[drawBelow(rnd_, cells) + 1]);
    }
    const int patternCount = static_cast<int>(t.forcedPatterns.size());
    pattern = static_cast<std::int16_t>(patternCount > 1 ? drawBelow(rnd_, patternCount) : 0);
    for (int m : t.forcedPatterns[pattern]) entries[m] = 1;

    // Held [row][column]: the shared grid moves then flip it top to bottom and
    // turn it counter-clockwise, which is how the givens follow the solution.
    Grid mask = makeGrid(size);
    for (int r = 0; r < size; ++r) {
        for (int c = 0; c < size; ++c) mask[r][c] = entries[1 + r + size * c];
    }
    if (mirrored == 1) reverseOuter(mask);
    for (int q = quarterTurnsOfMask(); q > 0; --q) turnQuarter(mask);
    if (t.columnSwaps) {
        for (int k = 0; k + 1 < size; ++k) {
            if (swapflags[k] != 1) continue;
            for (int r = 0; r < size; ++r) std::swap(mask[r][k], mask[r][k + 1]);
        }
    }

    const int threshold = thresholdFor(t, opt.level);
    for (int r = 0; r < size; ++r) {
        for (int c = 0; c < size; ++c) {
            const bool isGiven = mask[r][c] <= threshold;
            given[c][r] = isGiven ? 1 : 0;
            if (isGiven) placeGiven(c, r);
        }
    }
    setPiecesVisible(true);

    if (opt.timerson == 1) {
        view_.setVisible(Lab::Label2_0, true);
        view_.setVisible(Lab::Label2_1, true);
        view_.setVisible(Lab::Label2_2, true);
        view_.setCaption(Lab::Label2_1, "0");
        seconds = 0;
        view_.setTimerEnabled(Tmr::Timer1, true);
    }
}

void Game::placeGiven(int x, int y) {
    const int cell = cellNumber(n(), x, y);
    const int piece = solutionPiece(x, y);
    moveOnto(Pic::Image2, piece, Pic::Image1, cell);
    view_.setEnabled(Pic::Image2, piece, false);

    // The marker sits in the piece's top-right corner.
    const float pieceLeft = view_.left(Pic::Image2, piece);
    const float markerLeft =
        pieceLeft + view_.width(Pic::Image2, piece) - view_.width(Pic::Image5, 0);
    view_.setLeft(Pic::Image5, cell, markerLeft);
    view_.setTop(Pic::Image5, cell, view_.top(Pic::Image2, piece));

    // Its colour tells which quarter or rectangle the cell belongs to; the 5x5
    // board has no such regions and keeps the marker's own picture.
    const MarkerRule rule = table().markerRule;
    if (rule != MarkerRule::OwnPicture) {
        const RegionKind kind =
            rule == MarkerRule::ByQuarter ? RegionKind::Quarter : RegionKind::Rectangle;
        const int number = regionNumberOf(table(), kind, {x, y});
        view_.loadPicture(Pic::Image5, cell,
                          tables::boardGeometry(table().boardsize).markerPictures[number - 1]);
    }
    view_.bringToFront(Pic::Image5, cell);
    view_.setVisible(Pic::Image5, cell, true);
}

}  // namespace engine
