#pragma once
// The options every screen shares, as the options screen sets them, the board
// procedures read them and lastgame.inf keeps them (all but level, which is
// never saved). All 16-bit signed and zero at program start; an on/off value
// counts as on only when it equals 1.
#include <cstdint>

namespace tables {

struct Options {
    std::int16_t playsound = 0;    // "Play Sound"
    std::int16_t timerson = 0;     // "Timers On": the clock and the fastest times
    std::int16_t hidedesktop = 0;  // "Hide Desktop": the backdrop is shown
    std::int16_t level = 0;        // 0 to 2, shown as "1" to "3"
    std::int16_t boardsize = 0;    // 0 = 4x4, 1 = 5x5, 2 = 6x6
};

}  // namespace tables
