// Commands that move every piece at once: show the solution, start the same
// puzzle again, and clear the board for a new one.
#include "engine/game.h"
#include "tables/sounds.h"

namespace engine {

void Game::showsoln() {
    setPiecesVisible(false);
    for (int y = 0; y < n(); ++y) {
        for (int x = 0; x < n(); ++x) {
            moveOnto(Pic::Image2, solutionPiece(x, y), Pic::Image1, cellNumber(n(), x, y));
        }
    }
    setPiecesVisible(true);
}

void Game::startAgain(const Options& opt) {
    // The clock runs on from where it stood; only a correct answer zeroed it.
    view_.setTimerEnabled(Tmr::Timer1, true);
    view_.setVisible(Lab::Label7, false);
    view_.setVisible(Lab::Label3_4, true);
    setPiecesVisible(false);
    // The solution has each picture once per row, so these two passes touch
    // every piece exactly once.
    for (int y = 0; y < n(); ++y) {
        for (int x = 0; x < n(); ++x) {
            const int piece = solutionPiece(x, y);
            if (given[x][y] == 0) moveOnto(Pic::Image2, piece, Pic::Image3, piece);
        }
    }
    for (int y = 0; y < n(); ++y) {
        for (int x = 0; x < n(); ++x) {
            if (given[x][y] == 1) {
                moveOnto(Pic::Image2, solutionPiece(x, y), Pic::Image1, cellNumber(n(), x, y));
            }
        }
    }
    setPiecesVisible(true);
    play(opt, tables::kSpaceWav);
}

void Game::sendPiecesHome() {
    setPiecesVisible(false);
    for (int p = 0; p < cellcount(); ++p) moveOnto(Pic::Image2, p, Pic::Image3, p);
}

}  // namespace engine
