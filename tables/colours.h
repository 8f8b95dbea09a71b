#pragma once
// The game's colours, written &H00BBGGRR (red in the low byte) as the
// screens are designed.
#include <cstdint>

namespace tables {

// The boards' coloured regions; the given-cell markers wear the colour of
// the region they stand in.
inline constexpr std::uint32_t kDarkBlue = 0x00C00000;
inline constexpr std::uint32_t kTeal = 0x00C0C000;
inline constexpr std::uint32_t kOrange = 0x000080FF;
inline constexpr std::uint32_t kGreen = 0x0000C000;
inline constexpr std::uint32_t kDarkRed = 0x000000C0;
inline constexpr std::uint32_t kPink = 0x008080FF;

// Levels 1, 2 and 3: the options screen's level buttons and the background
// of a board played at that level.
inline constexpr std::uint32_t kLevelColours[] = {
    0x00FF0000,  // blue
    0x00FF00FF,  // magenta
    0x000000FF,  // red
};
inline constexpr int kLevels = 3;

// A board window before start-up gives it the level colour (light blue).
inline constexpr std::uint32_t kBoardDesignBackground = 0x00FF8080;

// The backdrop that hides the desktop.
inline constexpr std::uint32_t kBackdrop = 0x00D78731;

}  // namespace tables
