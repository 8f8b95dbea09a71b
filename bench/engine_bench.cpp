// Mean time of one new puzzle (setsolution + setstart) per board size, with a
// board that does nothing, so only the engine's own work is timed.
#include <chrono>
#include <cstdio>

#include "engine/game.h"

namespace {

class NoBoard : public engine::BoardView {
  public:
    float left(engine::Pic, int) const override { return 0; }
    float top(engine::Pic, int) const override { return 0; }
    float width(engine::Pic, int) const override { return 0; }
    float height(engine::Pic, int) const override { return 0; }
    void setLeft(engine::Pic, int, float) override {}
    void setTop(engine::Pic, int, float) override {}
    void setVisible(engine::Pic, int, bool) override {}
    void setEnabled(engine::Pic, int, bool) override {}
    void loadPicture(engine::Pic, int, const std::string&) override {}
    void bringToFront(engine::Pic, int) override {}
    std::string caption(engine::Lab) const override { return {}; }
    void setCaption(engine::Lab, const std::string&) override {}
    void setVisible(engine::Lab, bool) override {}
    void setTimerEnabled(engine::Tmr, bool) override {}
    void playwav(const std::string&) override {}
    void checkhighscore() override {}
};

}  // namespace

int main() {
    constexpr int kRounds = 10000;
    NoBoard board;
    engine::ClockRandom rnd;
    long checksum = 0;  // keeps the work from being optimised away
    for (int size = 0; size < 3; ++size) {
        engine::Game game(size, board, rnd);
        engine::Options options;
        options.timerson = 1;
        const auto start = std::chrono::steady_clock::now();
        for (int round = 0; round < kRounds; ++round) {
            game.setsolution();
            game.setstart(options);
            checksum += game.solution[0][0] + game.given[0][0];
        }
        const std::chrono::duration<double, std::micro> elapsed =
            std::chrono::steady_clock::now() - start;
        std::printf("%dx%d: %.1f us per setsolution + setstart (%d rounds)\n", game.n(), game.n(),
                    elapsed.count() / kRounds, kRounds);
    }
    std::printf("(checksum %ld)\n", checksum);
    return 0;
}
