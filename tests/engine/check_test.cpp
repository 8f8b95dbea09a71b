#include <gtest/gtest.h>

#include "fake_board_view.h"

namespace engine::testing {
namespace {

struct Board {
    explicit Board(int size) : view(size), game(size, view, rnd) {}
    // Lays out rows of digits (0 = empty cell), a fresh copy for each use.
    Board& lay(const std::vector<std::string>& rows) {
        std::vector<int> copies(game.n() + 1, 0);
        for (int y = 0; y < game.n(); ++y) {
            for (int x = 0; x < game.n(); ++x) {
                const int s = rows[y][x] - '0';
                if (s) view.put((s - 1) * game.n() + copies[s]++, Pic::Image1, x + game.n() * y);
            }
        }
        return *this;
    }
    std::string check(Options opt = {}) {
        game.checkanswer(opt);
        return view.caption(Lab::Label7);
    }
    FakeBoardView view;
    ReplayableRandom rnd{1};
    Game game;
};

TEST(Check, VerdictNamesTheLastFailingKind) {
    const std::tuple<int, std::vector<std::string>, std::string> cases[] = {
        // Only sums count: repeats that add up right pass.
        {0, {"1144", "4411", "2233", "3322"}, "Correct, Well Done!!!"},
        {0, {"1144", "2413", "4231", "3322"}, "The Quarters are Wrong!"},
        {0, {"1234", "2143", "3412", "4321"}, "The Diagonals are Wrong!"},  // a quarter too
        {0, {"1431", "1342", "4213", "3124"}, "Wrong, Try Again"},  // row, quarter, diagonal
        {0, {"2431", "1342", "4213", "3120"}, "Wrong, Try Again"},  // an empty cell counts 0
        {1, {"12345", "23451", "34512", "45123", "51234"}, "The Diagonals are Wrong!"},
        // The coloured rectangles are never checked.
        {2, {"123456", "234561", "345612", "456123", "561234", "612345"}, "Correct, Well Done!!!"},
    };
    for (const auto& [size, rows, verdict] : cases) {
        Board board(size);
        board.game.seconds = 5;
        EXPECT_EQ(board.lay(rows).check({0, 1, 0}), verdict) << rows[1];
        EXPECT_TRUE(board.view.shown[Lab::Label7]);
        const bool correct = verdict[0] == 'C';
        EXPECT_EQ(board.view.shown[Lab::Label3_4], !correct);
        EXPECT_EQ(board.view.sounds.at(0), correct ? "wav\\fanf3.wav" : "wav\\boink.wav");
        // A wrong grid leaves the clock running.
        EXPECT_EQ(board.view.timers.count(Tmr::Timer1), correct ? 1u : 0u);
        EXPECT_EQ(board.game.seconds, correct ? 0 : 5);
    }
}

TEST(Check, CorrectGridStopsTheClockAndRanksTheTime) {
    Board board(0);
    board.lay({"2431", "1342", "4213", "3124"});
    board.view.setCaption(Lab::Label2_1, "37");
    board.game.seconds = 37;
    board.view.timers = {{Tmr::Timer1, true}, {Tmr::Timer2, true}};
    board.game.timer2Tick({0, 0, 1});
    EXPECT_EQ(board.view.caption(Lab::Label7), "Correct in 37 seconds!!!");
    EXPECT_TRUE(board.view.sounds.empty());
    EXPECT_TRUE(!board.view.shown[Lab::Label3_4] && board.view.shown[Lab::Label3_2]);
    EXPECT_TRUE(!board.view.timers[Tmr::Timer1] && !board.view.timers[Tmr::Timer2]);
    EXPECT_EQ(board.game.seconds, 0);
    EXPECT_EQ(board.view.caption(Lab::Label2_1), "37");  // the time stays on show
    EXPECT_EQ(board.view.highscoreChecks, 1);

    EXPECT_EQ(board.check({0, 0, 0}), "Correct, Well Done!!!");  // clock option off
    EXPECT_EQ(board.view.highscoreChecks, 1);
}

TEST(Clock, CountsUpAndWrapsAfter9999) {
    Board board(0);
    std::string shown;
    for (std::int16_t start : {0, 9998}) {
        board.game.seconds = start;
        for (int tick = 0; tick < 3; ++tick) {
            board.game.timer1Tick();
            shown += board.view.caption(Lab::Label2_1) + " ";
        }
    }
    EXPECT_EQ(shown, "1 2 3 9999 0 1 ");
}

TEST(ShowSolution, FillsEveryCellAndAgainChangesNothing) {
    for (int size = 0; size < 3; ++size) {
        Board board(size);
        board.game.setsolution();
        board.game.setstart({1, 0, 0});
        auto before = board.view.boxes;
        board.game.showsoln();
        const auto after = board.view.boxes;
        board.game.showsoln();
        EXPECT_EQ(board.view.boxes, after);
        EXPECT_EQ(board.check(), "Correct, Well Done!!!");
        EXPECT_EQ(board.game.answer, board.game.solution);
        // Only the movable pieces moved.
        for (int k = 0; k < board.game.n() * board.game.n(); ++k) {
            if (before.at({Pic::Image2, k}).enabled)
                before.at({Pic::Image2, k}) = after.at({Pic::Image2, k});
        }
        EXPECT_EQ(after, before);
    }
}

TEST(StartAgain, GivensStayEverythingElseGoesHome) {
    Board board(2);
    board.game.setsolution();
    board.game.setstart({0, 1, 0});
    const auto atStart = board.view.boxes;
    board.game.showsoln();
    board.game.seconds = 12;
    board.game.startAgain({0, 1, 0});
    EXPECT_EQ(board.view.boxes, atStart);
    EXPECT_TRUE(board.view.timers[Tmr::Timer1]);  // even with the clock option off
    EXPECT_EQ(board.game.seconds, 12);
    EXPECT_TRUE(!board.view.shown[Lab::Label7] && board.view.shown[Lab::Label3_4]);
    EXPECT_EQ(board.view.sounds, std::vector<std::string>{"wav\\space.wav"});
}

}  // namespace
}  // namespace engine::testing
