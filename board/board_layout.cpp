#include "board/board_layout.h"

#include <array>

namespace board {
namespace {

using A = LabelArray;
using L = LabelLookKind;

// The labels as the 4x4 screen has them; the other sizes move a few (below).
const std::vector<LabelDesign>& commonLabels() {
    static const std::vector<LabelDesign> labels = {
        {A::Label3, 0, "Exit", {13740, 10680, 1245, 555}, 18, L::Command, true},
        {A::Label3, 1, "Start again", {1125, 10680, 3345, 555}, 18, L::Command, true},
        {A::Label3, 2, "New Puzzle", {1080, 4920, 3345, 555}, 18, L::Command, true},
        {A::Label3, 3, "Fastest Times", {13200, 8880, 1785, 1095}, 20.25, L::Command, false},
        {A::Label3, 4, "Show solution", {1080, 4080, 3345, 555}, 18, L::Command, true},
        {A::Label3, 5, kChangePictures, {1080, 5760, 3345, 555}, 18, L::Command, true},
        {A::Label1, 0, "1", {13620, 4860, 975, 855}, 32.25, L::LevelNumber, true},
        {A::Label1, 1, "", {300, 6540, 4905, 4155}, 18, L::Text, true},
        {A::Label2, 0, " Time Taken", {13200, 6120, 1785, 1275}, 24, L::Text, false},
        {A::Label2, 1, "0", {13200, 7320, 1785, 675}, 24, L::FramedText, false},
        {A::Label2, 2, "seconds", {12960, 8040, 2265, 555}, 21.75, L::Text, false},
        {A::Label2, 3, "Level", {13200, 4140, 1785, 600}, 27.75, L::Text, true},
        {A::Label7, 0, "Correct Well Done!!!", {5760, 3480, 6945, 675}, 26.25, L::Text, false},
    };
    return labels;
}

// What the labels of one size do differently from the common table.
struct LabelChanges {
    float newPuzzleTop;
    float fastestTimesTop;
    float showSolutionTop;
    float changePicturesTop;
    Rect rules;
    float bannerTop;
    double bannerPoints;
};

std::vector<LabelDesign> labelsWith(const LabelChanges& c, const std::string& rulesText) {
    std::vector<LabelDesign> labels = commonLabels();
    for (LabelDesign& design : labels) {
        if (design.array == A::Label3 && design.index == 2) design.rect.top = c.newPuzzleTop;
        if (design.array == A::Label3 && design.index == 3) design.rect.top = c.fastestTimesTop;
        if (design.array == A::Label3 && design.index == 4) design.rect.top = c.showSolutionTop;
        if (design.array == A::Label3 && design.index == 5) design.rect.top = c.changePicturesTop;
        if (design.array == A::Label1 && design.index == 1) {
            design.rect = c.rules;
            design.caption = rulesText;
        }
        if (design.array == A::Label7) {
            design.rect.top = c.bannerTop;
            design.points = c.bannerPoints;
        }
    }
    return labels;
}

const char kRules4x4[] =
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different, all the pictures in each "
    "diagonal are different and all the pictures in each quarter are different.";
const char kRules5x5[] =
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different and all the pictures along each "
    "diagonal are different.";
const char kRules6x6[] =
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different and all the pictures in each of "
    "the six coloured rectangles are different.";

// &H00BBGGRR colours of the regions.
constexpr std::uint32_t kDarkBlue = 0x00C00000;
constexpr std::uint32_t kTeal = 0x00C0C000;
constexpr std::uint32_t kOrange = 0x000080FF;
constexpr std::uint32_t kGreen = 0x0000C000;
constexpr std::uint32_t kDarkRed = 0x000000C0;
constexpr std::uint32_t kPink = 0x008080FF;

constexpr Rect kLogoPlace{1680, 9720, 2220, 840};
constexpr float kThumb = 1080;

// Eight thumbnails in two rows of four (4x4 and 5x5).
std::vector<Rect> thumbnailsInTwoRowsOfFour() {
    std::vector<Rect> places;
    for (int i = 0; i < 8; ++i)
        places.push_back({240.0f + 1320.0f * (i % 4), 7080.0f + 1320.0f * (i / 4), kThumb, kThumb});
    return places;
}

BoardLayout make4x4() {
    BoardLayout b;
    b.boardsize = 0;
    b.n = 4;
    b.gridLeft = 5760;
    b.gridTop = 4200;
    b.pitch = 1800;
    b.side = 1560;
    b.trayColumns = 8;
    b.trayLeft = 1080;
    b.trayTop = 240;
    b.trayPitch = 1680;
    b.regions = {{{5640, 4080, 3615, 3615}, kDarkBlue},
                 {{9240, 4080, 3615, 3615}, kTeal},
                 {{5640, 7680, 3615, 3615}, kOrange},
                 {{9240, 7680, 3615, 3615}, kGreen}};
    b.thumbnails = thumbnailsInTwoRowsOfFour();
    b.thumbnails.push_back(kLogoPlace);  // element 8: the logo, part of the panel
    b.pictureSets = 8;
    b.logoInPanel = true;
    b.marker = {120, 2400, 240, 240};
    b.rulesText = kRules4x4;
    b.labels =
        labelsWith({4920, 8880, 4080, 5760, {300, 6540, 4905, 4155}, 3480, 26.25}, b.rulesText);
    return b;
}

BoardLayout make5x5() {
    BoardLayout b;
    b.boardsize = 1;
    b.n = 5;
    b.gridLeft = 5760;
    b.gridTop = 4200;
    b.pitch = 1440;
    b.side = 1140;
    b.trayColumns = 11;
    b.trayLeft = 360;
    b.trayTop = 120;
    b.trayPitch = 1320;
    b.regions = {{{5640, 4080, 7155, 7155}, kDarkBlue}};
    b.thumbnails = thumbnailsInTwoRowsOfFour();
    b.pictureSets = 8;
    b.logoInPanel = false;
    b.logo = kLogoPlace;
    b.marker = {240, 4560, 240, 240};
    b.markerPicture = "Images\\marker5x5.jpg";
    b.rulesText = kRules5x5;
    b.labels =
        labelsWith({5040, 9120, 4200, 5880, {180, 6600, 5265, 3075}, 3240, 26.25}, b.rulesText);
    return b;
}

BoardLayout make6x6() {
    BoardLayout b;
    b.boardsize = 2;
    b.n = 6;
    b.gridLeft = 5760;
    b.gridTop = 4200;
    b.pitch = 1200;
    b.side = 1020;
    b.trayColumns = 12;
    b.trayLeft = 480;
    b.trayTop = 120;
    b.trayPitch = 1200;
    b.regions = {{{5640, 4080, 3645, 2445}, kOrange}, {{9240, 4080, 3645, 2445}, kTeal},
                 {{5640, 6480, 3645, 2445}, kGreen},  {{9240, 6480, 3645, 2445}, kDarkRed},
                 {{5640, 8880, 3645, 2445}, kPink},   {{9240, 8880, 3645, 2445}, kDarkBlue}};
    for (int i = 0; i < 4; ++i)
        b.thumbnails.push_back({240.0f + 1320.0f * i, 6840, kThumb, kThumb});
    b.thumbnails.push_back({1560, 8160, kThumb, kThumb});
    b.thumbnails.push_back({2880, 8160, kThumb, kThumb});
    b.pictureSets = 6;
    b.logoInPanel = false;
    b.logo = kLogoPlace;
    b.marker = {240, 4800, 150, 150};
    b.rulesText = kRules6x6;
    b.labels = labelsWith({4740, 9000, 3960, 5520, {300, 6240, 4785, 3435}, 3525, 24}, b.rulesText);
    return b;
}

}  // namespace

Rect BoardLayout::cell(int x, int y) const {
    return {gridLeft + pitch * x, gridTop + pitch * y, side, side};
}

Rect BoardLayout::home(int piece) const {
    return {trayLeft + trayPitch * (piece % trayColumns),
            trayTop + trayPitch * (piece / trayColumns), side, side};
}

const BoardLayout& boardLayout(int boardsize) {
    static const std::array<BoardLayout, 3> layouts = {make4x4(), make5x5(), make6x6()};
    return layouts.at(boardsize);
}

std::optional<std::uint32_t> levelColour(int level) {
    switch (level) {
        case 0:
            return 0x00FF0000;  // blue
        case 1:
            return 0x00FF00FF;  // magenta
        case 2:
            return 0x000000FF;  // red
        default:
            return std::nullopt;
    }
}

}  // namespace board
