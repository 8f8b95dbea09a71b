#pragma once
// A random source for tests: plays back a fixed list of draws, so every game
// can be replayed exactly. It runs out loudly (throws std::out_of_range), so a
// test notices when the engine draws more than expected.
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/random_source.h"

namespace engine::testing {

class ScriptedRandom : public RandomSource {
  public:
    explicit ScriptedRandom(std::vector<double> draws) : draws_(std::move(draws)) {}
    double next() override {
        if (pos_ >= draws_.size()) throw std::out_of_range("ScriptedRandom: no draws left");
        return draws_[pos_++];
    }
    void seedFromClock() override { ++seedings_; }
    int seedings() const { return seedings_; }

  private:
    std::vector<double> draws_;
    std::size_t pos_ = 0;
    int seedings_ = 0;
};

}  // namespace engine::testing
