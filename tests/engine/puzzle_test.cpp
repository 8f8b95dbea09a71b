// Making a puzzle: the solution, the given cells and the random draws behind them.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "fake_board.h"
#include "tables/geometry.h"

namespace engine::testing {

TEST(RandomSource, DrawsBelowOneAndReseedingNeverReplays) {
    ClockRandom a(7);
    std::set<double> seen;
    for (int i = 0; i < 1000; ++i) seen.insert(a.next());
    EXPECT_TRUE(seen.size() > 990 && *seen.begin() >= 0.0 && *seen.rbegin() < 1.0);
    ClockRandom twice = a, untouched = a;
    twice.mix(9);
    twice.mix(9);  // two seedings in one clock tick must not cancel out
    EXPECT_NE(twice.next(), untouched.next());
}

TEST(Setup, FourByFourWorkedExample) {
    FakeBoard board(0, unshuffled(4, {0, 0, 0}) + unshuffled(16, {0}));
    board.game.seconds = 42;
    for (int p = 0; p < 16; ++p) board.box(Pic::Image2, p).visible = false;
    board.game.setsolution();
    board.game.setstart(options(2, 0, 0));

    EXPECT_EQ(rowsOf(board.game.solution), "2431 1342 4213 3124");  // template 1, one turn
    EXPECT_EQ(rowsOf(board.game.given), "1000 0101 0010 0101");
    EXPECT_EQ(board.game.coveredCells(), 6);
    // Cell, the piece locked on it, and the quarter its marker shows.
    const std::tuple<int, int, int> givens[] = {{0, 4, 1},  {5, 9, 1},  {7, 5, 2},
                                                {10, 2, 4}, {13, 3, 3}, {15, 15, 4}};
    for (const auto& [cell, piece, quarter] : givens) {
        const auto [left, top] = board.at(Pic::Image1, cell);
        EXPECT_EQ(board.at(Pic::Image2, piece), Spot(left, top));
        const Box& marker = board.box(Pic::Image5, cell);
        EXPECT_EQ(marker.picture, "Images\\corner" + std::to_string(quarter) + ".jpg");
        EXPECT_TRUE(marker.visible && marker.raised > 0);
        EXPECT_EQ(board.at(Pic::Image5, cell), Spot(left + 1560 - 240, top));  // top-right corner
    }
    for (int p = 0; p < 16; ++p) {  // all shown; locked exactly when on the grid
        EXPECT_TRUE(board.box(Pic::Image2, p).visible);
        EXPECT_EQ(board.box(Pic::Image2, p).enabled, board.top(Pic::Image2, p) < 4200) << p;
    }
    EXPECT_EQ(board.game.seconds, 42);  // clock option off: the clock is left alone
    EXPECT_TRUE(board.timers.empty() && board.shown.empty());
}

TEST(Setup, SolutionAndGivensFollowTheDrawnMovesAndTheLevel) {
    using Draws = std::vector<double>;
    // clang-format off
    const std::tuple<int, std::int16_t, Draws, Draws, std::string, std::string> cases[] = {
        // Mirrored, turns 3: four quarter turns change nothing; the mask only flips.
        {0, 2, {0, .5, .75}, {0}, "4321 2143 1234 3412", "1010 0100 1010 0001"},
        // Template 2, forced pattern 2 as drawn.
        {0, 2, {.5, 0, .75}, {.7}, "1234 4321 2143 3412", "1100 0000 0101 0110"},
        // Mirrored, one turn: the mask flipped top to bottom, then turned.
        {0, 2, {0, .5, 0}, {0}, "3124 4213 1342 2431", "0001 1010 0100 1010"},
        // Pattern 1 unshuffled: entry 4 holds 10, exactly the level-0 cut-off.
        {0, 0, {0, 0, 0}, {.4}, "2431 1342 4213 3124", "0000 0110 0010 1111"},
        {0, 1, {0, 0, 0}, {.4}, "2431 1342 4213 3124", "0000 0110 0010 1110"},
        // The smallest turns on 5x5 is 1: a half turn, and five mask turns.
        {1, 2, {0, 0}, {0}, "42531 53142 14253 25314 31425", "10110 00100 01000 01101 01001"},
        // Half turn (level 0 shows it on the mask), then flags 0, 1, 3, 4 swap columns 0-1, 4-5.
        {2, 0, {0, .5, .5, 0, 0, .5}, {}, "241365 356412 432651 615243 524136 163524",
                                           "000011 110010 001111 101111 010011 100011"},
        {2, 1, {0, 0, .5, 0, 0, .5}, {}, "425361 631425 342516 156234 214653 563142",
                                          "010001 110010 011101 111100 010011 100000"},
    };
    // clang-format on
    for (const auto& [size, level, moves, pattern, solution, givens] : cases) {
        const int n = 4 + size;
        FakeBoard board(size, unshuffled(n) + moves + unshuffled(n * n) + pattern);
        board.game.seconds = 9;
        board.game.setsolution();
        EXPECT_EQ(rowsOf(board.game.solution), solution);
        board.game.setstart(options(level, 0, 1));
        EXPECT_EQ(rowsOf(board.game.given), givens) << solution;
        EXPECT_THROW(board.scripted.next(), std::out_of_range);  // every scripted draw used
        EXPECT_EQ(board.scripted.seedings(), size == 1 ? 2 : 3);
        // Clock option on: shown and restarted from 0.
        EXPECT_EQ(board.game.seconds, 0);
        EXPECT_EQ(board.caption(Lab::Label2_1), "0");
        EXPECT_TRUE(board.timers[Tmr::Timer1] && board.shown[Lab::Label2_0] &&
                    board.shown[Lab::Label2_1] && board.shown[Lab::Label2_2]);
    }
}

// How many cells a puzzle gives: the forced pattern always, and each start
// value from base + 1 up to the level's cut-off that the shuffle leaves off
// the pattern. Here the shuffle's last pass puts all those values on the
// pattern (the fewest givens) or off it (the most); the rest swap nothing.
TEST(Setup, GivenCountsRunFromTheForcedCellsToTheLevelsCutOff) {
    using Entries = std::vector<int>;
    struct Size {
        int size;
        std::vector<Entries> patterns;
        std::vector<double> moves;
        std::pair<int, int> counts[3];  // fewest and most givens at levels 0, 1 and 2
    };
    const Size sizes[] = {
        {0,
         {{2, 4, 7, 10, 12, 13}, {1, 2, 3, 7, 10, 11}, {1, 5, 7, 8, 12, 15}},
         {0, 0, 0},
         {{6, 10}, {6, 8}, {6, 6}}},
        {1,
         {{2, 5, 7, 8, 10, 12, 18, 21, 23, 24}, {1, 2, 3, 8, 12, 14, 15, 16, 22, 24}},
         {0, 0},
         {{10, 16}, {10, 13}, {10, 10}}},
        {2,
         {{2, 5, 8, 10, 12, 15, 16, 21, 22, 25, 27, 29, 32, 35}},
         {0, 0, 0, 0, 0, 0},
         {{14, 24}, {14, 19}, {14, 14}}},
    };
    for (const Size& s : sizes) {
        const int n = 4 + s.size, cells = n * n, patterns = int(s.patterns.size());
        for (int p = 0; p < patterns; ++p) {
            auto forced = [&](int m) {
                return std::count(s.patterns[p].begin(), s.patterns[p].end(), m) > 0;
            };
            for (std::int16_t level = 0; level < 3; ++level) {
                const auto [fewest, most] = s.counts[level];
                const int qualifying = most - fewest;  // entry m <= this holds base + m
                for (const bool ontoPattern : {true, false}) {
                    std::vector<double> shuffle = unshuffled(cells);
                    int target = qualifying;
                    for (int m = 1; m <= qualifying; ++m) {
                        if (forced(m) == ontoPattern) continue;
                        while (forced(++target) != ontoPattern) {
                        }
                        shuffle[99 * cells + m - 1] = (target - 0.5) / cells;
                    }
                    if (patterns > 1) shuffle.push_back((p + 0.5) / patterns);
                    FakeBoard board(s.size, unshuffled(n) + s.moves + shuffle);
                    board.game.setsolution();
                    board.game.setstart(options(level, 0, 0));
                    EXPECT_EQ(board.game.pattern, p);
                    EXPECT_EQ(board.game.coveredCells(), ontoPattern ? fewest : most)
                        << n << "x" << n << " pattern " << p << " level " << level;
                }
            }
        }
    }
}

TEST(Setup, ThousandsOfRandomGamesAreSoundPuzzles) {
    for (int i = 0; i < 9; ++i) {
        FakeBoard board(i / 3);
        const int n = board.game.n();
        std::set<int> counts;
        for (int round = 0; round < 2000; ++round) {
            board.game.sendPiecesHome();
            board.game.setsolution();
            board.game.setstart(options(std::int16_t(i % 3), 0, 0));
            counts.insert(board.game.coveredCells());
            // Each picture once per region, the regions worked out here, not by the engine.
            std::map<int, std::set<int>> regions;  // by kind * 10 + number
            for (int k = 0; k < n * n; ++k) {
                const int x = k % n, y = k / n, s = board.game.solution[x][y];
                regions[y].insert(s);
                regions[10 + x].insert(s);
                if (n < 6 && x == y) regions[20].insert(s);
                if (n < 6 && x == n - 1 - y) regions[21].insert(s);
                if (n == 4) regions[30 + y / 2 * 2 + x / 2].insert(s);
                if (n == 6) regions[40 + y / 2 * 2 + x / 3].insert(s);
                if (n == 6 && board.game.given[x][y] == 1) {  // the marker of its rectangle
                    ASSERT_EQ(board.box(Pic::Image5, k).picture,
                              tables::boardGeometry(2).markerPictures[y / 2 * 2 + x / 3]);
                }
            }
            for (const auto& [region, pictures] : regions)
                ASSERT_EQ(pictures.size(), std::size_t(n)) << i << ": " << region;
        }
        EXPECT_EQ(counts.size() > 1, i % 3 < 2) << i;  // the count varies below level 2
    }
}

}  // namespace engine::testing
