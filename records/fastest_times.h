#pragma once
// The nine fastest-times tables (board size x level), five ranks each, and
// ranking a solved time into them. Plain C++: no screen, no Qt.
#include <cstdint>
#include <string>
#include <string_view>

namespace records {

constexpr int kSizes = 3;   // 0 = 4x4, 1 = 5x5, 2 = 6x6
constexpr int kLevels = 3;  // level index 0..2, shown as "Level 1".."Level 3"
constexpr int kRanks = 5;   // rank index 0..4, rank 1 the fastest

// highscore.inf holds one time and one name per entry: 90 fields.
constexpr int kHighscoreFields = 2 * kSizes * kLevels * kRanks;

struct FastestTimes {
    // Indexed [boardsize][level][rank]. A time of 0 marks an empty entry.
    std::int16_t besttime[kSizes][kLevels][kRanks] = {};
    // Names in UTF-8, as the file keeps them.
    std::string bestname[kSizes][kLevels][kRanks];

    // How many fields of highscore.inf (in file order, 0..90) the latest load
    // took into these tables; kHighscoreFields after a complete read. Only the
    // highscore loaders write it, so a start-up that stops before reaching
    // highscore.inf leaves it as the previous load left it (0 at program
    // start). The exit save uses it to keep the records the tables never
    // received from the file (see saveBoth in inf_files.h).
    int fieldsread = 0;
};

// The numeric value of a time as the game reads it, from a line of
// highscore.inf or lastgame.inf or from the clock's caption: a decimal whole
// number in the 16-bit range, optionally signed, blanks around it ignored.
// Anything else (empty, letters, "12.5", "40000") is 0, the empty marker, so
// one damaged line costs one entry and never the records around it.
std::int16_t timeFromText(std::string_view text);

// The table part of a board's checkhighscore: ranks the solved time shown by
// the clock (its caption, e.g. "35") into the table of boardsize and level.
// Returns true when the time was placed; newrank then holds its rank index and
// the new entry has an empty name, waiting for the name entry. Returns false
// and changes nothing (newrank included) when loadfailed is 1, when the time is
// not above 0, when it beats no entry, or for a size or level outside 0..2.
bool rankTime(FastestTimes& tables, int boardsize, int level, std::string_view elapsed,
              std::int16_t loadfailed, std::int16_t& newrank);

}  // namespace records
