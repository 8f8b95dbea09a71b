#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "fake_board_view.h"

namespace engine::testing {
namespace {

// Rows from the top, X for a given cell.
std::vector<std::string> givenRows(const Game& game) {
    std::vector<std::string> rows(game.n(), std::string(game.n(), '.'));
    for (int y = 0; y < game.n(); ++y) {
        for (int x = 0; x < game.n(); ++x) {
            if (game.given[x][y] == 1) rows[y][x] = 'X';
        }
    }
    return rows;
}

TEST(Setup, FourByFourWorkedExample) {
    FakeBoardView view(0);
    // Solution 2431/1342/4213/3124, forced pattern 0.
    ScriptedRandom rnd(unshuffled(4, {0, 0, 0}) + unshuffled(16, {0}));
    Game game(0, view, rnd);
    game.seconds = 42;
    for (int p = 0; p < 16; ++p) view.box(Pic::Image2, p).visible = false;
    game.setsolution();
    game.setstart({2, 0, 0});

    EXPECT_EQ(givenRows(game), (std::vector<std::string>{"X...", ".X.X", "..X.", ".X.X"}));
    EXPECT_EQ(view.moved, (std::vector<int>{4, 9, 5, 2, 3, 15}));
    const std::pair<int, int> markers[] = {{0, 1}, {5, 1}, {7, 2}, {10, 4}, {13, 3}, {15, 4}};
    for (const auto& [cell, quarter] : markers) {
        const Box& marker = view.box(Pic::Image5, cell);
        EXPECT_EQ(marker.picture, "Images\\corner" + std::to_string(quarter) + ".jpg");
        EXPECT_TRUE(marker.visible && marker.raised > 0);
        EXPECT_EQ(
            view.at(Pic::Image5, cell),
            std::make_pair(view.left(Pic::Image1, cell) + 1560 - 240, view.top(Pic::Image1, cell)));
    }
    const std::set<int> locked{2, 3, 4, 5, 9, 15};
    for (int p = 0; p < 16; ++p) {
        EXPECT_TRUE(view.box(Pic::Image2, p).visible);
        EXPECT_EQ(view.box(Pic::Image2, p).enabled, locked.count(p) == 0) << p;
    }
    // Clock option off: the clock is left alone.
    EXPECT_EQ(game.seconds, 42);
    EXPECT_TRUE(view.timers.empty() && view.shown.empty());
}

TEST(Setup, GivensFollowTheSolutionsMovesAndTheLevel) {
    using Rows = std::vector<std::string>;
    const std::tuple<int, std::int16_t, std::vector<double>, std::vector<double>, Rows> cases[] = {
        // Mirrored, one turn: pattern 0 flipped top to bottom, then turned.
        {0, 2, {0, 0.5, 0}, {0}, {"...X", "X.X.", ".X..", "X.X."}},
        // Pattern 1 unshuffled: entry 4 holds 10, exactly the level-0 cut-off.
        {0, 0, {0, 0, 0}, {0.4}, {"....", ".XX.", "..X.", "XXXX"}},
        {0, 1, {0, 0, 0}, {0.4}, {"....", ".XX.", "..X.", "XXX."}},
        // turns 1: five counter-clockwise mask turns.
        {1, 2, {0, 0}, {0}, {"X.XX.", "..X..", ".X...", ".XX.X", ".X..X"}},
        // Half turn, then columns 0-1 and 4-5 swapped.
        {2,
         2,
         {0, 0.5, 0.5, 0, 0, 0.5},
         {},
         {".....X", "XX..X.", "..XX.X", "X.XX..", ".X..XX", "X....."}},
    };
    for (const auto& [size, level, moves, pattern, expected] : cases) {
        const int n = 4 + size;
        FakeBoardView view(size);
        ScriptedRandom rnd(unshuffled(n) + moves + unshuffled(n * n) + pattern);
        Game game(size, view, rnd);
        game.seconds = 9;
        game.setsolution();
        game.setstart({level, 0, 1});
        EXPECT_EQ(givenRows(game), expected);
        EXPECT_THROW(rnd.next(), std::out_of_range);  // every scripted draw used
        EXPECT_EQ(rnd.seedings(), size == 1 ? 2 : 3);
        // Clock option on: shown and restarted from 0.
        EXPECT_EQ(game.seconds, 0);
        EXPECT_EQ(view.caption(Lab::Label2_1), "0");
        EXPECT_TRUE(view.timers[Tmr::Timer1] && view.shown[Lab::Label2_0] &&
                    view.shown[Lab::Label2_1] && view.shown[Lab::Label2_2]);
    }
}

// Each picture once in every row, column and extra region; the regions are
// worked out here, not taken from the engine's table.
void expectSoundSolution(const Game& game) {
    const int n = game.n();
    std::map<std::string, std::set<int>> regions;
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            const int s = game.solution[x][y];
            regions["row" + std::to_string(y)].insert(s);
            regions["column" + std::to_string(x)].insert(s);
            if (n < 6 && x == y) regions["diagonal"].insert(s);
            if (n < 6 && x == n - 1 - y) regions["other diagonal"].insert(s);
            if (n == 4) regions["quarter" + std::to_string(y / 2 * 2 + x / 2)].insert(s);
            if (n == 6) regions["rectangle" + std::to_string(y / 2 * 2 + x / 3)].insert(s);
        }
    }
    for (const auto& [name, pictures] : regions) ASSERT_EQ(pictures.size(), std::size_t(n)) << name;
}

TEST(Setup, ThousandsOfRandomGamesAreSoundPuzzles) {
    const int ranges[3][3][2] = {
        {{6, 10}, {6, 8}, {6, 6}}, {{10, 16}, {10, 13}, {10, 10}}, {{14, 24}, {14, 19}, {14, 14}}};
    for (int size = 0; size < 3; ++size) {
        for (std::int16_t level = 0; level < 3; ++level) {
            FakeBoardView view(size);
            ReplayableRandom rnd(size * 10 + level);
            Game game(size, view, rnd);
            const int n = game.n();
            std::set<int> counts;
            for (int round = 0; round < 2000; ++round) {
                for (int p = 0; p < n * n; ++p) view.put(p, Pic::Image3, p);
                game.setsolution();
                game.setstart({level, 0, 0});
                expectSoundSolution(game);
                const std::vector<std::string> given = givenRows(game);
                for (int k = 0; k < n * n; ++k) {  // a given piece shows the solution's picture
                    if (given[k / n][k % n] == '.') continue;
                    const int piece = (game.solution[k % n][k / n] - 1) * n + k / n;
                    ASSERT_EQ(view.at(Pic::Image2, piece), view.at(Pic::Image1, k));
                }
                int count = 0;
                for (const std::string& row : given)
                    count += std::count(row.begin(), row.end(), 'X');
                counts.insert(count);
            }
            // Never fewer than the forced cells; the easier levels add a varying few.
            EXPECT_GE(*counts.begin(), ranges[size][level][0]) << size << "/" << level;
            EXPECT_LE(*counts.rbegin(), ranges[size][level][1]) << size << "/" << level;
            EXPECT_EQ(counts.size() > 1, level < 2) << size << "/" << level;
        }
    }
}

}  // namespace
}  // namespace engine::testing
