#include <gtest/gtest.h>

#include <set>

#include "fake_board_view.h"

namespace engine::testing {
namespace {

TEST(Generation, TemplatesMovedByTheDrawnSymmetries) {
    const std::tuple<int, std::vector<double>, std::vector<std::string>> cases[] = {
        // Template 1, turns 0: one clockwise quarter turn.
        {0, {0, 0, 0}, {"2431", "1342", "4213", "3124"}},
        // Mirrored, and turns 3: four quarter turns change nothing.
        {0, {0, 0.5, 0.75}, {"4321", "2143", "1234", "3412"}},
        {0, {0.5, 0, 0.75}, {"1234", "4321", "2143", "3412"}},  // template 2
        // The smallest turns on 5x5 is 1: a half turn.
        {1, {0, 0}, {"42531", "53142", "14253", "25314", "31425"}},
        // Flags are drawn for columns 0, 1, 3, 4: here 0-1 and 4-5 swap.
        {2, {0, 0, 0.5, 0, 0, 0.5}, {"425361", "631425", "342516", "156234", "214653", "563142"}},
    };
    for (const auto& [size, moves, expected] : cases) {
        FakeBoardView view(size);
        ScriptedRandom rnd(unshuffled(4 + size) + moves);
        Game game(size, view, rnd);
        game.setsolution();
        std::vector<std::string> rows(game.n());
        for (int y = 0; y < game.n(); ++y) {
            for (int x = 0; x < game.n(); ++x) rows[y] += std::to_string(game.solution[x][y]);
        }
        EXPECT_EQ(rows, expected);
        EXPECT_THROW(rnd.next(), std::out_of_range);  // every scripted draw used
        EXPECT_EQ(rnd.seedings(), size == 1 ? 1 : 2);
    }
}

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

}  // namespace
}  // namespace engine::testing
