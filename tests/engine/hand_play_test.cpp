// Playing without dragging: picking with clicks and keys, placing as a drop,
// and the keyboard's ring walking the tray, the grid and the commands.
#include <gtest/gtest.h>

#include "engine/focus_ring.h"
#include "engine/picking.h"
#include "fake_board.h"

namespace engine::testing {

// A 4x4 puzzle at the hardest level; piece k starts in tray slot k.
struct Picked : ::testing::Test {
    Picked() {
        board.game.setsolution();
        board.game.setstart(sound);
        board.sounds.clear();
    }
    int firstCell(bool given) const {
        for (int c = 0; c < 16; ++c)
            if ((board.game.given[c % 4][c / 4] == 1) == given) return c;
        return -1;
    }
    int pieceFor(int cell) const {
        return pieceNumber(4, board.game.solution[cell % 4][cell / 4], cell / 4);
    }
    // A press and release on the piece's centre, moving the pointer by `by`.
    void click(int piece, float by = 0) {
        picking.pressed(piece, 1, 780, 780);
        picking.moved(piece, 1, 780 + by, 780);
        board.game.pieceMouseMove(piece, 1, 780 + by, 780, {});
        board.game.pieceMouseUp(piece, sound);
        picking.released(piece, 1);
    }
    Picking::Outcome cell(int c) { return picking.chooseCell(c, sound, {}).outcome; }
    Picking::Outcome slot(int s) { return picking.chooseSlot(s, sound, {}).outcome; }

    const Options sound = options(2, 1, 0);
    FakeBoard board{0};
    Picking picking{board.game, board};
};

TEST_F(Picked, AClickPicksAndADragOrASecondClickLetsGo) {
    const int free = firstCell(false), piece = pieceFor(free);
    click(piece, Picking::kClickSlop);  // a shaky click is still a click
    EXPECT_EQ(picking.picked(), piece);
    click(piece);
    EXPECT_EQ(picking.picked(), Picking::kNone);

    click(piece);
    click(piece, Picking::kClickSlop + 15);  // a drag, even a short one
    EXPECT_EQ(picking.picked(), Picking::kNone);

    click(piece);
    picking.pressed(piece, 2, 780, 780);  // the right button drops but never picks
    picking.released(piece, 2);
    EXPECT_EQ(picking.picked(), piece);
    const int given = pieceFor(firstCell(true));
    EXPECT_FALSE(picking.movable(given));
    picking.pressed(given, 1, 10, 10);
    EXPECT_FALSE(picking.released(given, 1));
    EXPECT_EQ(picking.picked(), piece);
}

TEST_F(Picked, PlacingIsADropOnTheCellsCentre) {
    const int free = firstCell(false), piece = pieceFor(free);
    const int given = firstCell(true);
    EXPECT_EQ(cell(free), Picking::Outcome::Nothing);  // nothing picked, nothing there

    click(piece);
    const Picking::Choice placed = picking.chooseCell(free, sound, {});
    EXPECT_EQ(placed.outcome, Picking::Outcome::Placed);
    EXPECT_TRUE(placed.handPointer);
    EXPECT_EQ(board.at(Pic::Image2, piece), board.at(Pic::Image1, free));
    EXPECT_GT(board.box(Pic::Image2, piece).raised, 0);
    EXPECT_EQ(picking.picked(), Picking::kNone);

    // Onto a given: the newcomer bounces off up and to the right, and can be
    // picked again from the cell it bounced off.
    EXPECT_EQ(cell(free), Picking::Outcome::Picked);
    EXPECT_EQ(cell(given), Picking::Outcome::Placed);
    const auto [left, top] = board.at(Pic::Image1, given);
    EXPECT_EQ(board.at(Pic::Image2, piece), Spot(left + 600, top - 600));
    EXPECT_EQ(board.game.coveredCells(), 6);  // the givens alone
    EXPECT_EQ(cell(given), Picking::Outcome::Picked);
    EXPECT_EQ(picking.picked(), piece);
}

TEST_F(Picked, TheTraySendsAPieceHomeOrSwapsThePick) {
    const int free = firstCell(false), piece = pieceFor(free);
    int other = 0;
    while (other == piece || !picking.movable(other)) ++other;
    EXPECT_EQ(slot(other), Picking::Outcome::Picked);
    EXPECT_EQ(slot(piece), Picking::Outcome::Picked);  // another piece at home: the pick moves
    EXPECT_EQ(picking.picked(), piece);
    EXPECT_EQ(slot(piece), Picking::Outcome::LetGo);  // its own slot again
    EXPECT_EQ(slot(Picking::kNone), Picking::Outcome::Nothing);

    EXPECT_EQ(slot(piece), Picking::Outcome::Picked);
    EXPECT_EQ(cell(free), Picking::Outcome::Placed);
    EXPECT_EQ(picking.pieceAtHome(piece), Picking::kNone);
    EXPECT_EQ(slot(piece), Picking::Outcome::Nothing);  // an empty slot
    EXPECT_EQ(cell(free), Picking::Outcome::Picked);
    EXPECT_EQ(slot(other), Picking::Outcome::Placed);  // any slot leads home
    EXPECT_EQ(picking.pieceAtHome(piece), piece);
}

// The 5x5 tray: rows of 11, 11 and 3 slots, columns 1320 twips apart from
// 930; the grid's columns 1440 apart from 6330.
struct Ring : ::testing::Test {
    static RingLayout layout() {
        RingLayout l{5, 11, {}, {}};
        for (int c = 0; c < 11; ++c) l.trayColumnCentres.push_back(930 + 1320.0f * c);
        for (int x = 0; x < 5; ++x) l.gridColumnCentres.push_back(6330 + 1440.0f * x);
        return l;
    }
    void keys(std::initializer_list<Arrow> arrows) {
        for (Arrow a : arrows) ring.arrow(a, commands);
    }
    FocusRing ring{layout()};
    std::vector<int> commands{4, 2, 5, 1, 0};
};

TEST_F(Ring, ArrowsWalkTheTrayIntoTheGridAndBack) {
    EXPECT_TRUE(ring.reveal());
    EXPECT_FALSE(ring.reveal());
    keys({Arrow::Left, Arrow::Up});  // the corner stops it
    EXPECT_EQ(ring.slot(), 0);
    keys({Arrow::Right, Arrow::Right, Arrow::Right, Arrow::Right, Arrow::Down});
    EXPECT_EQ(ring.slot(), 15);
    keys({Arrow::Down});  // the last row is short: on into the grid
    EXPECT_EQ(ring.zone(), Zone::Grid);
    EXPECT_EQ(ring.cell(), 0);
    keys({Arrow::Right, Arrow::Right, Arrow::Right, Arrow::Right, Arrow::Right, Arrow::Down});
    EXPECT_EQ(ring.cell(), 9);
    keys({Arrow::Up, Arrow::Up});  // to the lowest slot of the nearest tray column
    EXPECT_EQ(ring.zone(), Zone::Tray);
    EXPECT_EQ(ring.slot(), 19);
    keys({Arrow::Right, Arrow::Right, Arrow::Right});  // the row's end stops it
    EXPECT_EQ(ring.slot(), 21);
    keys({Arrow::Left, Arrow::Left, Arrow::Left, Arrow::Left, Arrow::Left, Arrow::Left, Arrow::Left,
          Arrow::Left, Arrow::Left, Arrow::Down, Arrow::Right, Arrow::Right});
    EXPECT_EQ(ring.slot(), 24);
}

TEST_F(Ring, TabGoesRoundTheZonesAndTheCommandsFollowWhatIsOffered) {
    keys({Arrow::Right});
    ring.tab(true, commands);
    EXPECT_EQ(ring.zone(), Zone::Grid);
    keys({Arrow::Down});
    ring.tab(true, commands);
    EXPECT_EQ(ring.zone(), Zone::Commands);
    EXPECT_EQ(ring.command(commands), 4);
    keys({Arrow::Up});  // round to the last
    EXPECT_EQ(ring.command(commands), 0);
    keys({Arrow::Right, Arrow::Right});
    EXPECT_EQ(ring.command(commands), 2);
    // "New Puzzle" went away: the ring moves to the first offered.
    const std::vector<int> fewer{4, 5, 1, 0};
    EXPECT_EQ(ring.command(fewer), 4);
    ring.tab(true, commands);
    EXPECT_EQ(ring.zone(), Zone::Tray);
    EXPECT_EQ(ring.slot(), 1);
    ring.tab(false, {});  // no commands on offer: straight back to the grid
    EXPECT_EQ(ring.zone(), Zone::Grid);
    EXPECT_EQ(ring.cell(), 5);
    ring.tab(false, commands);
    EXPECT_EQ(ring.zone(), Zone::Tray);
}

}  // namespace engine::testing
