#pragma once
// Where the engine gets its random numbers. The board screens use ClockRandom;
// any other source (a scripted one in the tests, say) can stand in for it.
#include <cstdint>

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

// Int(Rnd * n): a whole number 0..n-1 from one draw.
int drawBelow(RandomSource& rnd, int n);

}  // namespace engine
