#include "tables/geometry.h"

#include <stdexcept>

#include "tables/pictures.h"

namespace tables {
namespace {

constexpr float kThumb = 1080;
constexpr Rect kLogo{1680, 9720, kBoardLogo.width, kBoardLogo.height};

constexpr ColouredRect kQuarters[] = {
    {{5640, 4080, 3615, 3615}, kDarkBlue},
    {{9240, 4080, 3615, 3615}, kTeal},
    {{5640, 7680, 3615, 3615}, kOrange},
    {{9240, 7680, 3615, 3615}, kGreen},
};
constexpr ColouredRect kWholeGrid[] = {
    {{5640, 4080, 7155, 7155}, kDarkBlue},
};
constexpr ColouredRect kRectangles[] = {
    {{5640, 4080, 3645, 2445}, kOrange}, {{9240, 4080, 3645, 2445}, kTeal},
    {{5640, 6480, 3645, 2445}, kGreen},  {{9240, 6480, 3645, 2445}, kDarkRed},
    {{5640, 8880, 3645, 2445}, kPink},   {{9240, 8880, 3645, 2445}, kDarkBlue},
};

// Two rows of four (4x4 and 5x5).
constexpr Rect kEightThumbnails[] = {
    {240, 7080, kThumb, kThumb},  {1560, 7080, kThumb, kThumb}, {2880, 7080, kThumb, kThumb},
    {4200, 7080, kThumb, kThumb}, {240, 8400, kThumb, kThumb},  {1560, 8400, kThumb, kThumb},
    {2880, 8400, kThumb, kThumb}, {4200, 8400, kThumb, kThumb},
};
// Four, and two centred under them.
constexpr Rect kSixThumbnails[] = {
    {240, 6840, kThumb, kThumb},  {1560, 6840, kThumb, kThumb}, {2880, 6840, kThumb, kThumb},
    {4200, 6840, kThumb, kThumb}, {1560, 8160, kThumb, kThumb}, {2880, 8160, kThumb, kThumb},
};

constexpr const char* kQuarterMarkers[] = {
    "Images\\corner1.jpg",
    "Images\\corner2.jpg",
    "Images\\corner3.jpg",
    "Images\\corner4.jpg",
};
constexpr const char* kOwnMarker[] = {"Images\\marker5x5.jpg"};
constexpr const char* kRectangleMarkers[] = {
    "Images\\corner6x61.jpg", "Images\\corner6x62.jpg", "Images\\corner6x63.jpg",
    "Images\\corner6x64.jpg", "Images\\corner6x65.jpg", "Images\\corner6x66.jpg",
};

// clang-format off
constexpr BoardGeometry kBoards[kBoardSizes] = {
    // n  grid left, top, pitch, side   tray columns, left, top, pitch
    {4,   5760, 4200, 1800, 1560,       8, 1080, 240, 1680,
     kQuarters, kEightThumbnails, kLogo, true, {120, 2400, 240, 240}, kQuarterMarkers, true},
    {5,   5760, 4200, 1440, 1140,       11, 360, 120, 1320,
     kWholeGrid, kEightThumbnails, kLogo, false, {240, 4560, 240, 240}, kOwnMarker, false},
    {6,   5760, 4200, 1200, 1020,       12, 480, 120, 1200,
     kRectangles, kSixThumbnails, kLogo, false, {240, 4800, 150, 150}, kRectangleMarkers, true},
};
// clang-format on

}  // namespace

const BoardGeometry& boardGeometry(int boardsize) {
    if (boardsize < 0 || boardsize >= kBoardSizes)
        throw std::out_of_range("board size must be 0, 1 or 2");
    return kBoards[boardsize];
}

}  // namespace tables
