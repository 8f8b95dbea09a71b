#pragma once
// Everything that differs between the 4x4, 5x5 and 6x6 boards, as data.
// The three sizes share one code path driven by this table.
#include <array>
#include <string>
#include <vector>

namespace engine {

struct CellXY {
    int x;  // column, 0 at the left
    int y;  // row, 0 at the top
};

enum class RegionKind { Row, Column, Diagonal, Quarter, Rectangle };

struct Region {
    RegionKind kind;
    std::vector<CellXY> cells;
};

enum class Rotation {
    QuarterTurnsPlusOne,  // turns = Int(4*Rnd) + turnsBase; make turns+1 quarter turns
    HalfTurnFlag,         // turns = Int(2*Rnd); 1 means a half turn
};

// Which picture a given cell's marker shows (the pictures are the board
// geometry's marker pictures, one per quarter or rectangle).
enum class MarkerRule {
    ByQuarter,    // the marker of the cell's quarter
    OwnPicture,   // the marker keeps the picture it was created with
    ByRectangle,  // the marker of the cell's rectangle
};

struct BoardTable {
    int n;          // 4, 5 or 6
    int boardsize;  // 0, 1 or 2
    int regionSum;  // n(n+1)/2
    // Templates, row by row; letter 'a' stands for picorder(1).
    std::vector<std::vector<std::string>> templates;
    Rotation rotation;
    int turnsBase;       // added to Int(4*Rnd): 0 on 4x4, 1 on 5x5
    int maskTurnsExtra;  // mask turns = turns + this (4x4: 1, 5x5: 4)
    bool columnSwaps;    // 6x6 only
    // Left columns of the neighbour pairs that may swap, in draw order; the
    // pair 2-3 straddles two rectangle blocks and never swaps.
    std::vector<int> swappableColumns;
    bool reseedBeforeTemplate;                     // 4x4 and 6x6 seed from the clock again
    int givenBase;                                 // B: mask entry m starts at m + B
    std::vector<std::vector<int>> forcedPatterns;  // mask entries set to 1
    std::array<int, 3> thresholds;                 // by level 0, 1, 2
    MarkerRule markerRule;
    // Extra regions of the board (beyond rows and columns) and the kinds the
    // answer check tests, in the check's order.
    std::vector<Region> extraRegions;
    std::vector<RegionKind> testedKinds;
};

// By board size index: 0 = 4x4, 1 = 5x5, 2 = 6x6.
const BoardTable& boardTable(int boardsize);

// The cells of every region of one kind (rows and columns included), in the
// order the answer check adds them up.
std::vector<Region> regionsOfKind(const BoardTable& table, RegionKind kind);

// 1-based number of the region of this kind that holds the cell (quarters
// 1..4 and rectangles 1..6 count left to right, top to bottom); 0 if none.
int regionNumberOf(const BoardTable& table, RegionKind kind, CellXY cell);

// Numbering shared by every size.
inline int cellNumber(int n, int x, int y) {
    return x + n * y;
}
inline int pieceNumber(int n, int picture, int copy) {
    return (picture - 1) * n + copy;
}
inline int pictureOfPiece(int n, int piece) {
    return piece / n + 1;
}

}  // namespace engine
