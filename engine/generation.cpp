// A new hidden answer: a fixed template relabelled with shuffled pictures and
// moved by symmetries that keep every region of the board intact. No search.
#include <utility>

#include "engine/game.h"
#include "engine/grid.h"

namespace engine {

void Game::setsolution() {
    const BoardTable& t = table();
    const int size = t.n;

    rnd_.seedFromClock();
    for (int k = 1; k <= size; ++k) picorder[k] = static_cast<std::int16_t>(k);
    for (int pass = 0; pass < 100; ++pass) {
        for (int k = 1; k <= size; ++k) std::swap(picorder[k], picorder[drawBelow(rnd_, size) + 1]);
    }

    if (t.reseedBeforeTemplate) rnd_.seedFromClock();
    const int templateCount = static_cast<int>(t.templates.size());
    templateNumber =
        static_cast<std::int16_t>(templateCount > 1 ? drawBelow(rnd_, templateCount) + 1 : 1);
    const std::vector<std::string>& rows = t.templates[templateNumber - 1];
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) solution[x][y] = picorder[rows[y][x] - 'a' + 1];
    }

    mirrored = static_cast<std::int16_t>(drawBelow(rnd_, 2));
    if (mirrored == 1) reverseOuter(solution);

    if (t.rotation == Rotation::HalfTurnFlag) {
        turns = static_cast<std::int16_t>(drawBelow(rnd_, 2));
    } else {
        turns = static_cast<std::int16_t>(drawBelow(rnd_, 4) + t.turnsBase);
    }
    for (int q = quarterTurnsOfSolution(); q > 0; --q) turnQuarter(solution);

    if (t.columnSwaps) {
        swapflags.fill(0);
        for (int k : t.swappableColumns)
            swapflags[k] = static_cast<std::int16_t>(drawBelow(rnd_, 2));
        for (int k = 0; k + 1 < size; ++k) {
            if (swapflags[k] == 1) std::swap(solution[k], solution[k + 1]);
        }
    }
}

}  // namespace engine
