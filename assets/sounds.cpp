#include "sounds.h"

#include <algorithm>
#include <cmath>

#include "tables/sounds.h"

namespace assets {

namespace {

constexpr double kTwoPi = 2 * M_PI;

// xorshift64*: the same noise on every compiler and library.
class Noise {
  public:
    explicit Noise(std::uint64_t seed) : state_(seed) {}
    double next() {  // -1..1
        state_ ^= state_ >> 12;
        state_ ^= state_ << 25;
        state_ ^= state_ >> 27;
        const std::uint64_t r = state_ * 0x2545F4914F6CDD1DULL;
        return double(r >> 11) / double(1ULL << 52) - 1.0;
    }

  private:
    std::uint64_t state_;
};

std::vector<double> silence(double seconds) {
    return std::vector<double>(size_t(seconds * kSampleRate), 0.0);
}

double timeOf(size_t i) {
    return double(i) / kSampleRate;
}

// Scales to the given peak (below full scale: the clicks soft, the fanfare
// loudest) and shapes the ends so nothing clicks.
std::vector<double> finished(std::vector<double> s, double level, double fadeIn, double fadeOut) {
    double peak = 0;
    for (double v : s) peak = std::max(peak, std::abs(v));
    if (peak > 0)
        for (double& v : s) v *= level / peak;
    const size_t in = size_t(fadeIn * kSampleRate);
    const size_t out = size_t(fadeOut * kSampleRate);
    for (size_t i = 0; i < in && i < s.size(); ++i) s[i] *= double(i) / in;
    for (size_t i = 0; i < out && i < s.size(); ++i) s[s.size() - 1 - i] *= double(i) / out;
    return s;
}

// A soft, bright tap: two decaying partials and a breath of noise.
std::vector<double> click() {
    auto s = silence(0.06);
    Noise noise(11);
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = timeOf(i);
        s[i] = std::exp(-t / 0.010) *
                   (std::sin(kTwoPi * 1250 * t) + 0.4 * std::sin(kTwoPi * 2710 * t)) +
               0.15 * std::exp(-t / 0.003) * noise.next();
    }
    return finished(s, 0.5, 0.001, 0.01);
}

// A lower, woody tock whose pitch drops a little: the piece settling down.
std::vector<double> click1() {
    auto s = silence(0.075);
    double phase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = timeOf(i);
        const double f = 620 + 260 * std::exp(-t / 0.012);
        phase += kTwoPi * f / kSampleRate;
        s[i] = std::exp(-t / 0.016) * (std::sin(phase) + 0.3 * std::sin(2.7 * phase));
    }
    return finished(s, 0.55, 0.001, 0.012);
}

// A whoosh: noise through a resonant band-pass sweeping up then down.
std::vector<double> space() {
    auto s = silence(0.42);
    Noise noise(2024);
    double low = 0, band = 0;
    const double q = 0.35;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = timeOf(i);
        const double x = t / 0.42;
        const double centre = 250 + 2600 * std::sin(M_PI * std::pow(x, 0.8));
        const double f = 2 * std::sin(M_PI * centre / kSampleRate);
        // State-variable filter, one step per sample.
        const double high = noise.next() - low - q * band;
        band += f * high;
        low += f * band;
        s[i] = band * std::pow(std::sin(M_PI * x), 1.5);
    }
    return finished(s, 0.7, 0.005, 0.03);
}

// A struck metal bar: the inharmonic modes of a free bar, high ones dying first.
std::vector<double> metal() {
    auto s = silence(1.05);
    const double base = 660;
    const double ratios[] = {1.0, 2.756, 5.404, 8.933};
    const double levels[] = {1.0, 0.6, 0.35, 0.2};
    const double decays[] = {0.45, 0.25, 0.12, 0.07};
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = timeOf(i);
        double v = 0;
        for (int m = 0; m < 4; ++m)
            v += levels[m] * std::exp(-t / decays[m]) * std::sin(kTwoPi * base * ratios[m] * t);
        // A second, slightly detuned bar makes it shimmer.
        v += 0.5 * std::exp(-t / 0.4) * std::sin(kTwoPi * base * 1.498 * t);
        s[i] = v;
    }
    return finished(s, 0.75, 0.002, 0.08);
}

// A spring's boing: a round tone wobbling in pitch as the spring settles.
std::vector<double> boink() {
    auto s = silence(0.5);
    double phase = 0;
    for (size_t i = 0; i < s.size(); ++i) {
        const double t = timeOf(i);
        const double wobble = std::exp(-t / 0.18) * std::sin(kTwoPi * 11 * t);
        const double f = 190 + 140 * std::exp(-t / 0.06) + 70 * wobble;
        phase += kTwoPi * f / kSampleRate;
        const double envelope = std::min(1.0, t / 0.01) * std::exp(-t / 0.22);
        s[i] =
            envelope * (std::sin(phase) + 0.25 * std::sin(2 * phase) + 0.1 * std::sin(3 * phase));
    }
    return finished(s, 0.8, 0.003, 0.05);
}

// One brass-like note: harmonics whose brightness opens with the attack.
void brassNote(std::vector<double>& s, double start, double length, double frequency,
               double level) {
    const size_t first = size_t(start * kSampleRate);
    const size_t count = size_t(length * kSampleRate);
    for (size_t i = 0; i < count && first + i < s.size(); ++i) {
        const double t = timeOf(i);
        const double attack = std::min(1.0, t / 0.03);
        const double release = std::min(1.0, (length - t) / 0.06);
        const double envelope =
            attack * std::max(0.0, release) * (0.85 + 0.15 * std::exp(-t / 0.1));
        const double brightness = 0.25 + 0.75 * attack;
        const double vibrato = t > 0.25 ? 0.004 * std::sin(kTwoPi * 5.5 * t) : 0;
        double v = 0;
        for (int k = 1; k <= 8; ++k) {
            const double amp = std::pow(brightness, k - 1) / k;
            v += amp * std::sin(kTwoPi * frequency * k * (1 + vibrato) * t);
        }
        s[first + i] += level * envelope * v;
    }
}

// Ta-ta-ta-taaa: the notes of a major chord rising, the last one held.
std::vector<double> fanfare() {
    auto s = silence(1.5);
    const double c5 = 523.25, e5 = 659.25, g5 = 783.99, c6 = 1046.5;
    brassNote(s, 0.00, 0.16, c5, 1.0);
    brassNote(s, 0.18, 0.16, e5, 1.0);
    brassNote(s, 0.36, 0.16, g5, 1.0);
    brassNote(s, 0.54, 0.94, c6, 1.0);
    // A second horn holding the chord under the last note.
    brassNote(s, 0.54, 0.94, g5, 0.5);
    brassNote(s, 0.54, 0.94, e5, 0.4);
    return finished(s, 0.85, 0.004, 0.1);
}

void put(std::vector<std::uint8_t>& out, std::uint32_t value, int bytes) {
    for (int b = 0; b < bytes; ++b) out.push_back(std::uint8_t((value >> (8 * b)) & 0xFF));
}

void putTag(std::vector<std::uint8_t>& out, const char* tag) {
    out.insert(out.end(), tag, tag + 4);
}

}  // namespace

std::vector<Sound> gameSounds() {
    using tables::soundFileName;
    return {
        {soundFileName(tables::kClickWav), click()}, {soundFileName(tables::kClick1Wav), click1()},
        {soundFileName(tables::kSpaceWav), space()}, {soundFileName(tables::kMetal2Wav), metal()},
        {soundFileName(tables::kBoinkWav), boink()}, {soundFileName(tables::kFanf3Wav), fanfare()}};
}

std::vector<std::uint8_t> wavFile(const std::vector<double>& samples) {
    const std::uint32_t dataBytes = std::uint32_t(samples.size() * 2);
    std::vector<std::uint8_t> out;
    putTag(out, "RIFF");
    put(out, 36 + dataBytes, 4);
    putTag(out, "WAVE");
    putTag(out, "fmt ");
    put(out, 16, 4);
    put(out, 1, 2);  // PCM
    put(out, 1, 2);  // mono
    put(out, kSampleRate, 4);
    put(out, kSampleRate * 2, 4);  // bytes per second
    put(out, 2, 2);                // bytes per frame
    put(out, 16, 2);               // bits per sample
    putTag(out, "data");
    put(out, dataBytes, 4);
    for (double v : samples) {
        const long q = std::lround(std::clamp(v, -1.0, 1.0) * 32767.0);
        put(out, std::uint32_t(std::int16_t(q)) & 0xFFFF, 2);
    }
    return out;
}

}  // namespace assets
