#include "engine/board_table.h"

#include <stdexcept>

namespace engine {
namespace {

std::vector<Region> diagonals(int n) {
    Region main{RegionKind::Diagonal, {}};
    Region other{RegionKind::Diagonal, {}};
    for (int k = 0; k < n; ++k) {
        main.cells.push_back({k, k});
        other.cells.push_back({k, n - 1 - k});
    }
    return {main, other};
}

// Blocks of w columns by h rows, numbered left to right, then top to bottom.
std::vector<Region> blocks(int n, int w, int h, RegionKind kind) {
    std::vector<Region> regions;
    for (int top = 0; top < n; top += h) {
        for (int left = 0; left < n; left += w) {
            Region block{kind, {}};
            for (int y = top; y < top + h; ++y) {
                for (int x = left; x < left + w; ++x) block.cells.push_back({x, y});
            }
            regions.push_back(block);
        }
    }
    return regions;
}

std::vector<Region> joined(std::vector<Region> a, const std::vector<Region>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

BoardTable fourByFour() {
    BoardTable t;
    t.n = 4;
    t.boardsize = 0;
    t.regionSum = 10;
    t.templates = {{"abcd", "cdab", "dcba", "badc"}, {"abcd", "dcba", "badc", "cdab"}};
    t.rotation = Rotation::QuarterTurnsPlusOne;
    t.turnsBase = 0;
    t.maskTurnsExtra = 1;
    t.columnSwaps = false;
    t.reseedBeforeTemplate = true;
    t.givenBase = 6;
    t.forcedPatterns = {{2, 4, 7, 10, 12, 13}, {1, 2, 3, 7, 10, 11}, {1, 5, 7, 8, 12, 15}};
    t.thresholds = {10, 8, 6};
    t.markerRule = MarkerRule::ByQuarter;
    t.extraRegions = joined(diagonals(4), blocks(4, 2, 2, RegionKind::Quarter));
    t.testedKinds = {RegionKind::Quarter, RegionKind::Diagonal, RegionKind::Column,
                     RegionKind::Row};
    return t;
}

BoardTable fiveByFive() {
    BoardTable t;
    t.n = 5;
    t.boardsize = 1;
    t.regionSum = 15;
    t.templates = {{"ebdac", "daceb", "cebda", "bdace", "acebd"}};
    t.rotation = Rotation::QuarterTurnsPlusOne;
    t.turnsBase = 1;
    t.maskTurnsExtra = 4;
    t.columnSwaps = false;
    t.reseedBeforeTemplate = false;
    t.givenBase = 10;
    t.forcedPatterns = {{2, 5, 7, 8, 10, 12, 18, 21, 23, 24}, {1, 2, 3, 8, 12, 14, 15, 16, 22, 24}};
    t.thresholds = {16, 13, 10};
    t.markerRule = MarkerRule::OwnPicture;
    t.extraRegions = diagonals(5);
    t.testedKinds = {RegionKind::Diagonal, RegionKind::Column, RegionKind::Row};
    return t;
}

BoardTable sixBySix() {
    BoardTable t;
    t.n = 6;
    t.boardsize = 2;
    t.regionSum = 21;
    t.templates = {{"bdecaf", "cfadeb", "dcbefa", "eafbdc", "abdfce", "fecabd"}};
    t.rotation = Rotation::HalfTurnFlag;
    t.turnsBase = 0;
    t.maskTurnsExtra = 0;
    t.columnSwaps = true;
    t.swappableColumns = {0, 1, 3, 4};
    t.reseedBeforeTemplate = true;
    t.givenBase = 14;
    t.forcedPatterns = {{2, 5, 8, 10, 12, 15, 16, 21, 22, 25, 27, 29, 32, 35}};
    t.thresholds = {24, 19, 14};
    t.markerRule = MarkerRule::ByRectangle;
    t.extraRegions = blocks(6, 3, 2, RegionKind::Rectangle);
    // The rectangles are drawn and explained to the player but never checked.
    t.testedKinds = {RegionKind::Column, RegionKind::Row};
    return t;
}

}  // namespace

const BoardTable& boardTable(int boardsize) {
    if (boardsize < 0 || boardsize > 2) throw std::out_of_range("board size must be 0, 1 or 2");
    // Built on first use, so no other file's start-up code can see it half made.
    static const BoardTable kBoards[3] = {fourByFour(), fiveByFive(), sixBySix()};
    return kBoards[boardsize];
}

std::vector<Region> regionsOfKind(const BoardTable& table, RegionKind kind) {
    std::vector<Region> regions;
    const int n = table.n;
    if (kind == RegionKind::Row || kind == RegionKind::Column) {
        for (int line = 0; line < n; ++line) {
            Region region{kind, {}};
            for (int k = 0; k < n; ++k) {
                region.cells.push_back(kind == RegionKind::Row ? CellXY{k, line} : CellXY{line, k});
            }
            regions.push_back(region);
        }
        return regions;
    }
    for (const Region& region : table.extraRegions) {
        if (region.kind == kind) regions.push_back(region);
    }
    return regions;
}

int regionNumberOf(const BoardTable& table, RegionKind kind, CellXY cell) {
    int number = 0;
    for (const Region& region : regionsOfKind(table, kind)) {
        ++number;
        for (const CellXY& c : region.cells) {
            if (c.x == cell.x && c.y == cell.y) return number;
        }
    }
    return 0;
}

}  // namespace engine
