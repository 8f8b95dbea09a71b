// Playing a puzzle: drag and drop, the clock, the answer check, the commands.
#include <gtest/gtest.h>

#include "fake_board.h"

namespace engine::testing {

// 4x4 board: cell 5 at (7560, 6000), half a cell is 780; piece k starts in
// its tray slot at (1080 + 1680 (k mod 8), 240 + 1680 (k div 8)).
struct DragDrop : ::testing::Test {
    Spot dropAt(int piece, Spot spot) {
        board.put(piece, spot);
        board.game.pieceMouseUp(piece, options(0, 1, 0));
        return board.at(Pic::Image2, piece);
    }
    FakeBoard board{0};
};

TEST_F(DragDrop, SnapsToACellOrHomeAndNeverOntoAnotherPiece) {
    for (const Spot& off : {Spot{780, 0}, Spot{-780, 0}, Spot{0, 780}, Spot{0, -780}}) {
        const Spot halfACellOff(7560 + off.first, 6000 + off.second);
        EXPECT_EQ(dropAt(0, halfACellOff), halfACellOff);
    }
    EXPECT_TRUE(board.sounds.empty());
    EXPECT_EQ(dropAt(0, {7560 + 779.5f, 6000 - 779.5f}), Spot(7560, 6000));
    EXPECT_EQ(board.sounds, std::vector<std::string>{"wav\\click1.wav"});
    EXPECT_TRUE(!board.shown[Lab::Label7] && !board.shown[Lab::Label3_2] &&
                board.shown[Lab::Label3_4]);
    // Near any tray slot sends a piece to its own.
    EXPECT_EQ(dropAt(3, {1080 + 1680 * 2 + 100, 240 + 1680 - 100}), Spot(1080 + 1680 * 3, 240));
    // Piece 0 lies on cell 5, so piece 1 bounces up and to the right.
    EXPECT_EQ(dropAt(1, {7560 + 10, 6000 + 10}), Spot(7560 + 600, 6000 - 600));
    EXPECT_EQ(board.game.coveredCells(), 1);
}

TEST_F(DragDrop, PieceFollowsTheLeftButtonAndStopsShortOfTheEdges) {
    const WindowSize window;  // piece 0 starts at (1080, 240)
    EXPECT_TRUE(board.game.pieceMouseMove(0, 3, 1280, 1280, window));  // not left alone: raise
    EXPECT_EQ(board.at(Pic::Image2, 0), Spot(1080, 240));
    // The centre goes under the pointer, but no nearer than 120 twips to an edge.
    EXPECT_FALSE(board.game.pieceMouseMove(0, 1, -181, 660, window));
    EXPECT_FALSE(board.game.pieceMouseMove(0, 1, -180, 659, window));
    EXPECT_EQ(board.box(Pic::Image2, 0).raised, 1);
    EXPECT_TRUE(board.game.pieceMouseMove(0, 1, -180, 660, window));
    EXPECT_EQ(board.at(Pic::Image2, 0), Spot(120, 120));
    const Spot farCorner(15360 - 120 - 1560, 11520 - 120 - 1560);
    board.put(0, farCorner);
    EXPECT_TRUE(board.game.pieceMouseMove(0, 1, 780, 780, window));
    EXPECT_FALSE(board.game.pieceMouseMove(0, 1, 781, 780, window));
    EXPECT_FALSE(board.game.pieceMouseMove(0, 1, 780, 781, window));
    EXPECT_EQ(board.at(Pic::Image2, 0), farCorner);
}

TEST(Check, VerdictNamesTheLastFailingKind) {
    const std::tuple<int, std::string, std::string> cases[] = {
        // Only sums count: repeats that add up right pass.
        {0, "1144 4411 2233 3322", "Correct, Well Done!!!"},
        {0, "1144 2413 4231 3322", "The Quarters are Wrong!"},
        {0, "1234 2143 3412 4321", "The Diagonals are Wrong!"},  // a quarter too
        {0, "1431 1342 4213 3124", "Wrong, Try Again"},          // row, quarter, diagonal
        {0, "2431 1342 4213 3120", "Wrong, Try Again"},          // an empty cell counts 0
        {1, "12345 23451 34512 45123 51234", "The Diagonals are Wrong!"},
        // The coloured rectangles are never checked.
        {2, "123456 234561 345612 456123 561234 612345", "Correct, Well Done!!!"},
    };
    for (const auto& [size, rows, verdict] : cases) {
        FakeBoard board(size);
        board.game.seconds = 5;
        board.lay(rows);
        board.game.checkanswer(options(0, 1, 0));
        EXPECT_EQ(board.caption(Lab::Label7), verdict) << rows;
        EXPECT_TRUE(board.shown[Lab::Label7]);
        const bool correct = verdict[0] == 'C';
        EXPECT_EQ(board.shown[Lab::Label3_4], !correct);
        EXPECT_EQ(board.sounds.at(0), correct ? "wav\\fanf3.wav" : "wav\\boink.wav");
        EXPECT_EQ(board.timers.count(Tmr::Timer1), correct ? 1u : 0u);  // wrong: the clock runs on
        EXPECT_EQ(board.game.seconds, correct ? 0 : 5);
    }
}

TEST(Check, ClockWrapsAfter9999AndACorrectGridStopsItAndRanksTheTime) {
    FakeBoard board(0);
    board.lay("2431 1342 4213 3124");
    board.timers = {{Tmr::Timer1, true}, {Tmr::Timer2, true}};
    board.game.seconds = 9998;
    board.game.timer1Tick();
    EXPECT_EQ(board.caption(Lab::Label2_1), "9999");
    for (int tick = 0; tick < 2; ++tick) board.game.timer1Tick();  // wraps to 0, then 1

    board.game.timer2Tick(options(0, 0, 1));
    EXPECT_EQ(board.caption(Lab::Label7), "Correct in 1 seconds!!!");
    EXPECT_TRUE(board.sounds.empty());
    EXPECT_TRUE(!board.shown[Lab::Label3_4] && board.shown[Lab::Label3_2]);
    EXPECT_TRUE(!board.timers[Tmr::Timer1] && !board.timers[Tmr::Timer2]);
    EXPECT_EQ(board.caption(Lab::Label2_1), "1");  // the time stays on show
    EXPECT_EQ(board.highscoreChecks, 1);

    board.game.checkanswer(options(0, 0, 0));  // clock option off
    EXPECT_EQ(board.caption(Lab::Label7), "Correct, Well Done!!!");
    EXPECT_EQ(board.highscoreChecks, 1);
}

// An on/off option is on only when it holds 1; a 2 (from a hand-edited
// file) keeps the game silent and the clock off. Only the banner differs: it
// tells a time for anything but 0, though no time is ranked.
TEST(Options, OnlyOneSwitchesAnOptionOn) {
    const Options two = options(0, 2, 2);
    FakeBoard board(0);
    board.game.setsolution();
    board.game.seconds = 7;
    board.setCaption(Lab::Label2_1, "7");
    board.game.setstart(two);
    EXPECT_EQ(board.game.seconds, 7);
    EXPECT_TRUE(board.timers.empty() && board.shown.empty());

    board.game.showsoln();
    board.game.pieceMouseUp(0, two);  // a drop that fills the grid
    EXPECT_TRUE(board.timers[Tmr::Timer2]);
    board.game.timer2Tick(two);
    EXPECT_EQ(board.caption(Lab::Label7), "Correct in 7 seconds!!!");
    EXPECT_EQ(board.highscoreChecks, 0);
    EXPECT_TRUE(board.sounds.empty());
}

TEST(Commands, ShowSolutionCheckAndStartAgain) {
    const Options sound = options(0, 1, 0);
    for (int size = 0; size < 3; ++size) {
        FakeBoard board(size);
        board.game.setsolution();
        board.game.setstart(sound);
        const auto atStart = board.boxes;
        board.game.showsoln();
        for (int p = 0; p < board.game.n() * board.game.n(); ++p)
            EXPECT_TRUE(board.box(Pic::Image2, p).visible) << p;
        board.game.pieceMouseUp(0, sound);       // a release in place counts as a drop
        EXPECT_TRUE(board.timers[Tmr::Timer2]);  // the grid is full
        board.game.timer2Tick(sound);
        EXPECT_EQ(board.caption(Lab::Label7), "Correct, Well Done!!!");
        EXPECT_EQ(board.game.answer, board.game.solution);
        board.put(0, board.at(Pic::Image3, 0));
        board.game.pieceMouseUp(0, sound);
        EXPECT_FALSE(board.timers[Tmr::Timer2]);  // one piece short

        // Givens stay, the rest go home; the clock runs on, even with the option off.
        board.game.seconds = 12;
        board.game.startAgain(sound);
        EXPECT_EQ(board.boxes, atStart);
        EXPECT_TRUE(board.timers[Tmr::Timer1]);
        EXPECT_EQ(board.game.seconds, 12);
        EXPECT_TRUE(!board.shown[Lab::Label7] && board.shown[Lab::Label3_4]);
        EXPECT_EQ(board.sounds, (std::vector<std::string>{"wav\\click1.wav", "wav\\fanf3.wav",
                                                          "wav\\click1.wav", "wav\\space.wav"}));
    }
}

}  // namespace engine::testing
