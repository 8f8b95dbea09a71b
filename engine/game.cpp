#include "engine/game.h"

#include "engine/grid.h"

namespace engine {

Game::Game(int boardsize, BoardView& view, RandomSource& rnd)
    : table_(&boardTable(boardsize)), view_(view), rnd_(rnd) {
    const int size = n();
    solution = makeGrid(size);
    given = makeGrid(size);
    answer = makeGrid(size);
    picorder.assign(size + 1, 0);
}

std::vector<Game::Position> Game::positions(Pic pic) const {
    std::vector<Position> result(cellcount());
    for (int i = 0; i < cellcount(); ++i) result[i] = {view_.left(pic, i), view_.top(pic, i)};
    return result;
}

void Game::moveOnto(Pic pic, int index, Pic target, int targetIndex) {
    view_.setLeft(pic, index, view_.left(target, targetIndex));
    view_.setTop(pic, index, view_.top(target, targetIndex));
}

void Game::setPiecesVisible(bool visible) {
    for (int p = 0; p < cellcount(); ++p) view_.setVisible(Pic::Image2, p, visible);
}

void Game::play(const Options& opt, const std::string& path) {
    if (opt.playsound == 1) view_.playwav(path);
}

int Game::quarterTurnsOfSolution() const {
    if (table_->rotation == Rotation::HalfTurnFlag) return turns == 1 ? 2 : 0;
    return turns + 1;
}

int Game::quarterTurnsOfMask() const {
    if (table_->rotation == Rotation::HalfTurnFlag) return turns == 1 ? 2 : 0;
    return turns + table_->maskTurnsExtra;
}

void Game::timer1Tick() {
    seconds = static_cast<std::int16_t>(seconds + 1);
    if (seconds > 9999) seconds = 0;  // the display has room for four digits
    view_.setCaption(Lab::Label2_1, std::to_string(seconds));
}

}  // namespace engine
