#pragma once
// Everything the three board screens show, as data: one design in three
// sizes. The screen code reads these tables and never tests the size itself.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace board {

// A control's place in twips, relative to the window's top-left corner.
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

struct BoardLayout {
    int boardsize;  // 0 = 4x4, 1 = 5x5, 2 = 6x6
    int n;

    // Grid: cell (x, y) lies at gridLeft + pitch*x, gridTop + pitch*y.
    float gridLeft;
    float gridTop;
    float pitch;
    float side;  // cells, pieces and tray slots are side x side

    // Tray: the home of piece k, row by row trayColumns wide.
    int trayColumns;
    float trayLeft;
    float trayTop;
    float trayPitch;

    std::vector<ColouredRect> regions;  // Shape1, behind the grid
    std::vector<Rect> thumbnails;       // Image4, one per picture set (+ the 4x4 logo)
    int pictureSets;                    // 8 or 6: the random start draws below this
    bool logoInPanel;                   // 4x4: Image4(pictureSets) is the logo
    std::optional<Rect> logo;           // Image6 on 5x5 and 6x6
    Rect marker;                        // Image5(0)
    std::string markerPicture;          // the picture Image5(0) is designed with, or empty

    std::string rulesText;
    std::vector<LabelDesign> labels;  // every label of the screen, designed state

    Rect cell(int x, int y) const;
    Rect home(int piece) const;
};

// By board size index.
const BoardLayout& boardLayout(int boardsize);

inline constexpr char kLogoPicture[] = "Images\\pimbalo4.jpg";
inline constexpr char kHandCursor[] = "Images\\H_POINT.cur";
inline constexpr char kSelectPrompt[] = "Select a picture";
inline constexpr char kChangePictures[] = "Change Pictures";
inline constexpr char kShowRules[] = "Show Rules";

// The window before start-up, and the level colours it takes (with the
// level number) at start-up; nullopt for a level outside 0..2.
inline constexpr std::uint32_t kDesignBackground = 0x00FF8080;
std::optional<std::uint32_t> levelColour(int level);

}  // namespace board
