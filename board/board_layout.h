#pragma once
// Everything the three board screens show, as data: one design in three
// sizes. The grid, tray, regions and pictures come from the game's tables;
// this adds the labels. The screen code reads these tables and never tests
// the size itself.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tables/geometry.h"

namespace board {

using tables::ColouredRect;
using tables::Rect;

// The label arrays of a board and their looks.
enum class LabelArray { Label1, Label2, Label3, Label7 };

enum class LabelLookKind {
    Command,      // yellow on black, framed: the six commands
    LevelNumber,  // the big framed level digit
    Text,         // yellow on the window colour
    FramedText,   // the seconds display
};

struct LabelDesign {
    LabelArray array;
    int index;  // element of the array (0 for Label7)
    std::string caption;
    Rect rect;
    double points;
    LabelLookKind look;
    bool visible;  // at design, before start-up
};

struct BoardLayout : tables::BoardGeometry {
    int boardsize;    // 0 = 4x4, 1 = 5x5, 2 = 6x6
    int pictureSets;  // 8 or 6: the random start draws below this
    const char* rulesText;
    std::vector<LabelDesign> labels;  // every label of the screen, designed state
};

// By board size index.
const BoardLayout& boardLayout(int boardsize);

// The level colours the window and the level number take at start-up;
// nullopt for a level outside 0..2.
std::optional<std::uint32_t> levelColour(int level);

}  // namespace board
