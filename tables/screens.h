#pragma once
// Every screen of the game, by a typed id. Screens reach one another through
// these ids only; the program registers each screen's factory under its id, so
// no folder needs the code of the screens it shows. The names are the
// screens' own: their windows carry them (for test tools and debuggers).
#include <array>
#include <cstddef>

namespace tables {

enum class Screen {
    Titlefrm,     // the title screen
    Grey,         // the backdrop that hides the desktop
    Startplay2,   // the game options
    Morvelrules,  // the rules
    jigsaw,       // the 4x4 board
    jigsaw5x5,    // the 5x5 board
    jigsaw6x6,    // the 6x6 board
    highscores,   // the fastest times
};

struct ScreenEntry {
    Screen screen;
    const char* name;
};

inline constexpr std::array<ScreenEntry, 8> kScreens{{
    {Screen::Titlefrm, "Titlefrm"},
    {Screen::Grey, "Grey"},
    {Screen::Startplay2, "Startplay2"},
    {Screen::Morvelrules, "Morvelrules"},
    {Screen::jigsaw, "jigsaw"},
    {Screen::jigsaw5x5, "jigsaw5x5"},
    {Screen::jigsaw6x6, "jigsaw6x6"},
    {Screen::highscores, "highscores"},
}};
inline constexpr std::size_t kScreenCount = kScreens.size();

constexpr const char* screenName(Screen screen) {
    return kScreens.at(static_cast<std::size_t>(screen)).name;
}

// The board screens by board size index: 0 = 4x4, 1 = 5x5, 2 = 6x6.
inline constexpr std::array<Screen, 3> kBoardScreens{Screen::jigsaw, Screen::jigsaw5x5,
                                                     Screen::jigsaw6x6};

// The board screen of a board size index, which must be 0, 1 or 2.
constexpr Screen boardScreen(int boardsize) {
    return kBoardScreens.at(static_cast<std::size_t>(boardsize));
}

// The board size index of a board screen, or -1 for any other screen.
constexpr int boardsizeOf(Screen screen) {
    for (std::size_t size = 0; size < kBoardScreens.size(); ++size)
        if (kBoardScreens[size] == screen) return static_cast<int>(size);
    return -1;
}

}  // namespace tables
