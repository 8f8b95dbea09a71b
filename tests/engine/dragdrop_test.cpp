#include <gtest/gtest.h>

#include "fake_board_view.h"

namespace engine::testing {
namespace {

using Spot = std::pair<float, float>;

// 4x4 board: cell 5 at (7560, 6000), cells and pieces 1560 square, so half a
// cell is 780; piece k's tray slot at (1080 + 1680 (k mod 8), 240 + 1680 (k div 8)).
class DragDrop : public ::testing::Test {
  protected:
    Spot dropAt(int piece, float left, float top) {
        view.place(piece, left, top);
        game.pieceMouseUp(piece, sound);
        return view.at(Pic::Image2, piece);
    }
    FakeBoardView view{0};
    ReplayableRandom rnd{3};
    Game game{0, view, rnd};
    Options sound{0, 1, 0};
};

TEST_F(DragDrop, SnapsOnlyWithinLessThanHalfACell) {
    for (const Spot& off : {Spot{780, 0}, Spot{-780, 0}, Spot{0, 780}, Spot{0, -780}}) {
        EXPECT_EQ(dropAt(0, 7560 + off.first, 6000 + off.second),
                  Spot(7560 + off.first, 6000 + off.second));
    }
    EXPECT_EQ(dropAt(0, 7560 + 900, 6000), Spot(8460, 6000));  // the gap before cell 6
    EXPECT_TRUE(view.sounds.empty());
    EXPECT_EQ(dropAt(0, 7560 + 779.5f, 6000 - 779.5f), Spot(7560, 6000));
    EXPECT_EQ(view.sounds, std::vector<std::string>{"wav\\click1.wav"});
    EXPECT_TRUE(!view.shown[Lab::Label7] && !view.shown[Lab::Label3_2] &&
                view.shown[Lab::Label3_4]);
}

TEST_F(DragDrop, AnyTraySlotSendsThePieceToItsOwn) {
    EXPECT_EQ(dropAt(3, 1080 + 1680 * 2 + 100, 240 + 1680 - 100), Spot(1080 + 1680 * 3, 240));
}

TEST_F(DragDrop, PieceDroppedOnAnOccupiedCellIsPushedOff) {
    view.put(0, Pic::Image1, 5);
    EXPECT_EQ(dropAt(1, 7560 + 10, 6000 + 10), Spot(7560 + 600, 6000 - 600));
    EXPECT_EQ(game.coveredCells(), 1);
}

TEST_F(DragDrop, OnlyAFullGridArmsTheCheck) {
    game.setsolution();
    game.showsoln();
    dropAt(0, 1080 + 10, 240 + 10);  // home again: 15 of 16 covered
    EXPECT_FALSE(view.timers.count(Tmr::Timer2));
    game.showsoln();
    view.shown.clear();
    game.pieceMouseUp(0, sound);  // a press and release in place counts as a drop
    EXPECT_TRUE(view.timers[Tmr::Timer2]);
    EXPECT_FALSE(view.shown.count(Lab::Label3_2));
    EXPECT_EQ(view.sounds, (std::vector<std::string>(2, "wav\\click1.wav")));
}

TEST_F(DragDrop, PieceFollowsTheLeftButtonAndStopsShortOfTheEdges) {
    const WindowSize window;                                     // piece 0 starts at (1080, 240)
    EXPECT_TRUE(game.pieceMouseMove(0, 2, 1280, 1280, window));  // right button: raise only
    EXPECT_TRUE(game.pieceMouseMove(0, 3, 1280, 1280, window));  // both buttons: likewise
    EXPECT_EQ(view.at(Pic::Image2, 0), Spot(1080, 240));
    EXPECT_EQ(view.box(Pic::Image2, 0).raised, 2);
    // 120 twips from the left and top edges is allowed, 119 is not.
    EXPECT_FALSE(game.pieceMouseMove(0, 1, -181, 660, window));
    EXPECT_FALSE(game.pieceMouseMove(0, 1, -180, 659, window));
    EXPECT_EQ(view.box(Pic::Image2, 0).raised, 2);
    EXPECT_TRUE(game.pieceMouseMove(0, 1, -180, 660, window));
    EXPECT_EQ(view.at(Pic::Image2, 0), Spot(120, 120));
    EXPECT_TRUE(game.pieceMouseMove(0, 1, 1280, 1280, window));  // centre jumps under the pointer
    EXPECT_EQ(view.at(Pic::Image2, 0), Spot(620, 620));
    // Likewise at the right and bottom edges.
    view.place(0, 15360 - 120 - 1560, 11520 - 120 - 1560);
    EXPECT_TRUE(game.pieceMouseMove(0, 1, 780, 780, window));
    EXPECT_FALSE(game.pieceMouseMove(0, 1, 781, 780, window));
    EXPECT_EQ(view.at(Pic::Image2, 0), Spot(15360 - 120 - 1560, 11520 - 120 - 1560));
}

}  // namespace
}  // namespace engine::testing
