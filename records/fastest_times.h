#pragma once
// The nine fastest-times tables (board size x level), five ranks each, and
// ranking a solved time into them. Plain C++: no screen, no Qt.
#include <cstdint>
#include <string>

namespace records {

constexpr int kSizes = 3;   // 0 = 4x4, 1 = 5x5, 2 = 6x6
constexpr int kLevels = 3;  // level index 0..2, shown as "Level 1".."Level 3"
constexpr int kRanks = 5;   // rank index 0..4, rank 1 the fastest

struct FastestTimes {
    // Indexed [boardsize][level][rank]. A time of 0 marks an empty entry.
    std::int16_t besttime[kSizes][kLevels][kRanks] = {};
    std::string bestname[kSizes][kLevels][kRanks];
};

}  // namespace records
