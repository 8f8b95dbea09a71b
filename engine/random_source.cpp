#include "engine/random_source.h"

#include <algorithm>
#include <chrono>

namespace engine {
namespace {

// splitmix64: spreads any 64-bit value over the whole state, so nearby clock
// readings still give unrelated games.
std::uint64_t splitmix64(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

std::uint64_t rotl(std::uint64_t x, int k) {
    return (x << k) | (x >> (64 - k));
}

}  // namespace

ClockRandom::ClockRandom(std::uint64_t seed) {
    for (auto& word : s_) word = splitmix64(seed);
}

// xoshiro256**
std::uint64_t ClockRandom::nextRaw() {
    const std::uint64_t result = rotl(s_[1] * 5, 7) * 9;
    const std::uint64_t t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = rotl(s_[3], 45);
    return result;
}

double ClockRandom::next() {
    // The top 53 bits fill a double's mantissa exactly: 0 <= result < 1.
    return static_cast<double>(nextRaw() >> 11) * 0x1.0p-53;
}

void ClockRandom::mix(std::uint64_t value) {
    // Stir in a fresh output rather than XOR the value alone: mixing the same
    // clock reading twice must not cancel out and replay the old sequence.
    std::uint64_t stir = value ^ nextRaw();
    for (auto& word : s_) word ^= splitmix64(stir);
    if ((s_[0] | s_[1] | s_[2] | s_[3]) == 0) s_[0] = 1;  // xoshiro's one dead state
}

void ClockRandom::seedFromClock() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    mix(static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
}

int drawBelow(RandomSource& rnd, int n) {
    const int value = static_cast<int>(rnd.next() * n);
    // A source that hands out 1.0 (a script, say) must not index past the end.
    return std::min(value, n - 1);
}

}  // namespace engine
