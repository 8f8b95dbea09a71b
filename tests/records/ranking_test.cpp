// Ranking a solved time into the fastest-times tables.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "records/fastest_times.h"
#include "records/inf_files.h"

namespace {

using records::FastestTimes;
using records::rankTime;

// Fills one table; each entry with a time is named after its rank index.
void setTable(FastestTimes& t, int size, int level, const std::array<int, 5>& times) {
    for (int r = 0; r < records::kRanks; ++r) {
        t.besttime[size][level][r] = static_cast<std::int16_t>(times[r]);
        t.bestname[size][level][r] = times[r] ? "n" + std::to_string(r) : "";
    }
}

// One table as "time name|time name|...".
std::string tableOf(const FastestTimes& t, int size, int level) {
    std::string out;
    for (int r = 0; r < records::kRanks; ++r) {
        if (r) out += "|";
        out += std::to_string(t.besttime[size][level][r]) + " " + t.bestname[size][level][r];
    }
    return out;
}

TEST(Ranking, NewTimeClimbsPastEmptyAndSlowerOrEqualEntries) {
    FastestTimes t;
    std::int16_t newrank = 3;
    EXPECT_TRUE(rankTime(t, 2, 1, "  35", 0, newrank));  // the caption's leading blanks
    EXPECT_EQ(newrank, 0);
    EXPECT_EQ(tableOf(t, 2, 1), "35 |0 |0 |0 |0 ");

    setTable(t, 0, 0, {12, 20, 20, 31, 0});
    EXPECT_TRUE(rankTime(t, 0, 0, "20", 0, newrank));
    EXPECT_EQ(newrank, 1);
    EXPECT_EQ(tableOf(t, 0, 0), "12 n0|20 |20 n1|20 n2|31 n3");
}

TEST(Ranking, FullTableDropsRankFiveOrRejectsSlowerTime) {
    FastestTimes t;
    setTable(t, 1, 0, {10, 11, 12, 13, 14});
    std::int16_t newrank = 2;
    EXPECT_FALSE(rankTime(t, 1, 0, "15", 0, newrank));
    EXPECT_EQ(newrank, 2);
    EXPECT_EQ(tableOf(t, 1, 0), "10 n0|11 n1|12 n2|13 n3|14 n4");

    EXPECT_TRUE(rankTime(t, 1, 0, "14", 0, newrank));
    EXPECT_EQ(newrank, 4);
    EXPECT_EQ(tableOf(t, 1, 0), "10 n0|11 n1|12 n2|13 n3|14 ");
}

TEST(Ranking, NothingIsOfferedAfterAFailedStartUpOrForTimeZero) {
    FastestTimes t;
    setTable(t, 0, 2, {12, 20, 31, 40, 50});
    std::int16_t newrank = 4;
    EXPECT_FALSE(rankTime(t, 0, 1, "35", 1, newrank));
    EXPECT_FALSE(rankTime(t, 0, 2, "0", 0, newrank));  // the clock wrapped after 9999
    EXPECT_FALSE(rankTime(t, 3, 0, "35", 0, newrank));
    EXPECT_EQ(newrank, 4);
    EXPECT_EQ(tableOf(t, 0, 1), "0 |0 |0 |0 |0 ");
    // The next real time still finds every entry where it was.
    EXPECT_TRUE(rankTime(t, 0, 2, "15", 0, newrank));
    EXPECT_EQ(tableOf(t, 0, 2), "12 n0|15 |20 n1|31 n2|40 n3");
}

TEST(Ranking, OnlyThePlayedSizeAndLevelChange) {
    FastestTimes t;
    for (int k = 0; k < 9; ++k) setTable(t, k / 3, k % 3, {10 * (k + 1), 0});
    FastestTimes expected = t;
    std::int16_t newrank = 0;
    ASSERT_TRUE(rankTime(t, 1, 2, "5", 0, newrank));
    setTable(expected, 1, 2, {5, 60, 0, 0, 0});
    expected.bestname[1][2][0] = "";
    expected.bestname[1][2][1] = "n0";
    EXPECT_EQ(records::highscoreText(t), records::highscoreText(expected));
}

TEST(Ranking, TableOutOfOrderIsWorkedOnAsItStands) {
    // Every rank is tried, from rank 5 up, so a time can climb past a faster
    // entry it does not beat and leave a copy behind.
    FastestTimes t;
    setTable(t, 2, 0, {20, 10, 0, 0, 0});
    std::int16_t newrank = 3;
    EXPECT_TRUE(rankTime(t, 2, 0, "15", 0, newrank));
    EXPECT_EQ(newrank, 0);
    EXPECT_EQ(tableOf(t, 2, 0), "15 |20 n0|15 |0 |0 ");
}

}  // namespace
