#pragma once
// Where the engine gets its random numbers. The board screens use ClockRandom;
// tests script exact draws with ScriptedRandom so every game can be replayed.
#include <cstdint>
#include <utility>
#include <vector>

namespace engine {

class RandomSource {
  public:
    virtual ~RandomSource() = default;
    // A uniform number in [0, 1).
    virtual double next() = 0;
    // Mix the time of day into the generator. Never restarts a sequence that is
    // being drawn: two seedings in the same clock tick still give fresh numbers.
    virtual void seedFromClock() = 0;
};

// Small xoshiro-style generator (our own, so the same seed gives the same games
// on every compiler and library).
class ClockRandom : public RandomSource {
  public:
    explicit ClockRandom(std::uint64_t seed = 0);
    double next() override;
    void seedFromClock() override;
    void mix(std::uint64_t value);  // what seedFromClock does with the time

  private:
    std::uint64_t nextRaw();
    std::uint64_t s_[4];
};

// Plays back a fixed list of draws; runs out loudly (throws std::out_of_range)
// so a test notices when the engine draws more than expected.
class ScriptedRandom : public RandomSource {
  public:
    explicit ScriptedRandom(std::vector<double> draws) : draws_(std::move(draws)) {}
    double next() override;
    void seedFromClock() override { ++seedings_; }
    std::size_t drawn() const { return pos_; }
    int seedings() const { return seedings_; }

  private:
    std::vector<double> draws_;
    std::size_t pos_ = 0;
    int seedings_ = 0;
};

// Int(Rnd * n): a whole number 0..n-1 from one draw.
int drawBelow(RandomSource& rnd, int n);

}  // namespace engine
