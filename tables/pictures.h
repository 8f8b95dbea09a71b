#pragma once
// Every picture file the game loads: the picture sets of each board size,
// the screens' own pictures and the hand cursor. Paths are as the game
// names them, relative to its folder with backslashes; lookup ignores
// letter case, so "images\" and "Images\" are one folder.
#include <string>

#include "tables/list.h"

namespace tables {

// Pictures are stored at twice the pixel size of the control that shows
// them (15 twips to a pixel).
inline constexpr int kTwipsPerPixel = 15;
constexpr int picturePixels(float twips) {
    return 2 * static_cast<int>(twips) / kTwipsPerPixel;
}

// What a picture set shows. Symbol k (from 0) of every set of a kind shows
// the kind's picture k, whichever board the set belongs to, so a kind's
// pictures are listed once, in that order, with the names a screen reader
// says for them.
enum class SetKind {
    Polyhedra,
    Cards,
    Dice,
    Faces,
    Flags,
    Patterns,
    Shapes,
    Vehicles,
    Numbers,
    Letters
};

struct PictureSet {
    SetKind kind;
    const char* folder;         // "Images\dice\"
    const char* thumbnail;      // file name in the folder
    List<const char*> symbols;  // file names in the folder, symbols 1..N in order

    // The folder followed by the file name.
    std::string thumbnailPath() const;
    std::string symbolPath(int symbol) const;  // symbol 1..N
};

// The sets of a board size index, in the order of its thumbnails.
List<PictureSet> catalogue(int boardsize);

// The pixel sizes of a board's symbol pictures and thumbnails: those of the
// pieces and thumbnails that show them.
int symbolPixels(int boardsize);
int thumbnailPixels(int boardsize);

// The spoken name of picture k (from 0) of a kind, e.g. "die showing
// three", "flag of France".
const char* pictureName(SetKind kind, int picture);
// The spoken name of a kind's thumbnail, e.g. "Pictures: dice".
const char* setName(SetKind kind);

// A picture of a screen and the size of the control that shows it, in twips.
struct ScreenPicture {
    const char* path;
    float width;
    float height;
};

inline constexpr ScreenPicture kTitlePicture{"Images\\pimbalo.jpg", 6000, 2160};
inline constexpr ScreenPicture kOpeningPicture{"Images\\opening3.jpg", 3600, 3600};
inline constexpr ScreenPicture kTitleMascot{"Images\\logo4.jpg", 1005, 1425};
inline constexpr ScreenPicture kOptionsPicture{"Images\\pimbalo3.jpg", 4170, 1500};
inline constexpr ScreenPicture kRulesPicture{"Images\\pimbalo2.jpg", 4995, 1800};
// The options and rules screens' mascot.
inline constexpr ScreenPicture kMascot{"Images\\logo2.jpg", 1500, 2085};
// The boards' logo (its place is in the board geometry).
inline constexpr ScreenPicture kBoardLogo{"Images\\pimbalo4.jpg", 2220, 840};

// Every screen picture above, for whoever must make or check them all.
inline constexpr const ScreenPicture* kScreenPictures[] = {
    &kTitlePicture, &kOpeningPicture, &kTitleMascot, &kOptionsPicture,
    &kRulesPicture, &kMascot,         &kBoardLogo,
};

// The rules screen's example of each board size: a puzzle and its solution.
// The 6x6 pictures were redrawn once; their files carry a "2".
struct RulesExample {
    ScreenPicture puzzle;
    ScreenPicture solution;
};
inline constexpr RulesExample kRulesExamples[] = {
    {{"images\\4x4puzzle.jpg", 5400, 5400}, {"images\\4x4solution.jpg", 5400, 5400}},
    {{"images\\5x5puzzle.jpg", 5400, 5400}, {"images\\5x5solution.jpg", 5400, 5400}},
    {{"images\\6x6puzzle2.jpg", 5400, 5400}, {"images\\6x6solution2.jpg", 5400, 5400}},
};

// The pointer shown while a piece or a command is under the mouse.
inline constexpr char kHandCursor[] = "Images\\H_POINT.cur";

}  // namespace tables
