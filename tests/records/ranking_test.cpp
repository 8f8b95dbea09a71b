// Ranking a solved time into the fastest-times tables.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "records/fastest_times.h"

namespace {

using records::FastestTimes;

// One table as "time name|time name|...".
std::string tableOf(const FastestTimes& t, int size, int level) {
    std::string out;
    for (int r = 0; r < records::kRanks; ++r) {
        out += (r ? "|" : "") + std::to_string(t.besttime[size][level][r]) + " " +
               t.bestname[size][level][r];
    }
    return out;
}

TEST(Ranking, TimeClimbsPastEveryEmptyOrSlowerOrEqualEntryOfThePlayedTable) {
    struct Case {
        std::array<std::int16_t, 5> before;  // all nine tables; entries named a..e by rank
        int size, level;
        const char* elapsed;
        std::int16_t loadfailed, newrank;  // newrank 9: not placed, left alone
        const char* after;                 // the played table, when placed
    };
    const Case cases[] = {
        {{0, 0, 0, 0, 0}, 2, 1, "  35", 0, 0, "35 |0 |0 |0 |0 "},
        {{12, 20, 20, 31, 0}, 0, 2, "20", 0, 1, "12 a|20 |20 b|20 c|31 d"},
        {{10, 11, 12, 13, 14}, 1, 0, "14", 0, 4, "10 a|11 b|12 c|13 d|14 "},
        // Out of order: the time climbs past 10 without beating it.
        {{20, 10, 0, 0, 0}, 2, 0, "15", 0, 0, "15 |20 a|15 |0 |0 "},
        {{10, 11, 12, 13, 14}, 1, 0, "15", 0, 9, nullptr},
        {{12, 20, 31, 40, 0}, 0, 1, "35", 1, 9, nullptr},  // the start-up read failed
        {{12, 20, 31, 40, 0}, 0, 1, "0", 0, 9, nullptr},   // the clock wrapped after 9999
        {{12, 20, 31, 40, 0}, 3, 0, "35", 0, 9, nullptr},
        {{12, 20, 31, 40, 0}, 0, 3, "35", 0, 9, nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        FastestTimes t;
        for (int f = 0; f < 45; ++f) {  // every table, in size, level, rank order
            t.besttime[f / 15][f / 5 % 3][f % 5] = c.before[f % 5];
            t.bestname[f / 15][f / 5 % 3][f % 5] =
                std::string(c.before[f % 5] ? 1 : 0, 'a' + f % 5);
        }
        const FastestTimes untouched = t;
        std::int16_t newrank = 9;
        EXPECT_EQ(records::rankTime(t, c.size, c.level, c.elapsed, c.loadfailed, newrank),
                  c.newrank != 9);
        EXPECT_EQ(newrank, c.newrank);
        for (int k = 0; k < records::kSizes * records::kLevels; ++k) {
            const bool played = k == c.size * 3 + c.level && c.after;
            EXPECT_EQ(tableOf(t, k / 3, k % 3),
                      played ? c.after : tableOf(untouched, k / 3, k % 3));
        }
    }
}

}  // namespace
