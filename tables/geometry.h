#pragma once
// Where things lie on the three board screens, in twips from the window's
// top-left corner: the grid, the tray, the coloured regions, the picture-set
// thumbnails, the logo and the given-cell markers. One design in three
// sizes, indexed by board size (0 = 4x4, 1 = 5x5, 2 = 6x6).
#include <cstdint>

#include "tables/colours.h"
#include "tables/list.h"

namespace tables {

// Every full-size screen (the boards and the rules) has this outer size.
inline constexpr float kWindowWidth = 15360;
inline constexpr float kWindowHeight = 11520;

inline constexpr int kBoardSizes = 3;

struct Rect {
    float left;
    float top;
    float width;
    float height;
};

struct ColouredRect {
    Rect rect;
    std::uint32_t colour;  // &H00BBGGRR
};

struct BoardGeometry {
    int n;  // cells per row and column

    // Cell (x, y) lies at gridLeft + pitch*x, gridTop + pitch*y; cells,
    // pieces and tray slots are all side x side.
    float gridLeft;
    float gridTop;
    float pitch;
    float side;

    // The home of piece k, row by row trayColumns wide.
    int trayColumns;
    float trayLeft;
    float trayTop;
    float trayPitch;

    // Behind the grid, numbered as the engine numbers quarters and
    // rectangles: left to right, then top to bottom.
    List<ColouredRect> regions;
    // One per picture set, in catalogue order.
    List<Rect> thumbnails;
    // The logo: among the thumbnails on the 4x4 board (shown and hidden
    // with them), a picture of its own on the others.
    Rect logo;
    bool logoInPanel;

    // The designed marker Image5(0); every marker takes its size.
    Rect marker;
    // Marker i is laid on the givens of region i. The 5x5 board has one
    // region and keeps the designed marker's picture for every given.
    List<const char*> markerPictures;
    bool markerByRegion;

    constexpr Rect cell(int x, int y) const {
        return {gridLeft + pitch * x, gridTop + pitch * y, side, side};
    }
    constexpr Rect home(int piece) const {
        return {trayLeft + trayPitch * (piece % trayColumns),
                trayTop + trayPitch * (piece / trayColumns), side, side};
    }
};

// By board size index; throws std::out_of_range for any other.
const BoardGeometry& boardGeometry(int boardsize);

}  // namespace tables
