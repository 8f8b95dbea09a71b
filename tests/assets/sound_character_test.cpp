// The sounds sound like what they are meant to be, judged by simple measures:
// the chime dies away, the fanfare climbs, the boing bends, the whoosh is noise.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "sounds.h"

using namespace assets;

namespace {

std::map<std::string, std::vector<double>> sounds() {
    std::map<std::string, std::vector<double>> all;
    for (const Sound& s : gameSounds()) all[s.file] = s.samples;
    return all;
}

double rms(const std::vector<double>& s, double from, double to) {
    const size_t a = size_t(from * kSampleRate), b = std::min(s.size(), size_t(to * kSampleRate));
    double sum = 0;
    for (size_t i = a; i < b; ++i) sum += s[i] * s[i];
    return std::sqrt(sum / double(b - a));
}

// Upward zero crossings per second: the pitch of a plain tone.
double crossingRate(const std::vector<double>& s, double from, double to) {
    const size_t a = size_t(from * kSampleRate), b = std::min(s.size(), size_t(to * kSampleRate));
    int crossings = 0;
    for (size_t i = a + 1; i < b; ++i) crossings += s[i - 1] < 0 && s[i] >= 0;
    return crossings / (to - from);
}

}  // namespace

TEST(SoundCharacter, TheTwoClicksAreShortAndDifferent) {
    const auto all = sounds();
    const auto& a = all.at("click.wav");
    const auto& b = all.at("click1.wav");
    EXPECT_NE(a.size(), b.size());
    EXPECT_GT(crossingRate(a, 0, 0.02), 1.3 * crossingRate(b, 0, 0.02)) << "click is the brighter";
    EXPECT_GT(rms(a, 0, 0.01), 5 * rms(a, 0.04, 0.05)) << "click dies away at once";
}

TEST(SoundCharacter, TheChimeRingsAndFades) {
    const auto all = sounds();
    const auto& metal = all.at("METAL2.wav");
    EXPECT_GT(rms(metal, 0.0, 0.1), 4 * rms(metal, 0.8, 0.9));
    EXPECT_GT(rms(metal, 0.4, 0.5), 0.02) << "still ringing halfway";
}

TEST(SoundCharacter, TheFanfareClimbsAMajorChord) {
    const auto all = sounds();
    const auto& fanfare = all.at("fanf3.wav");
    // Each note's own window; the brass harmonics leave the fundamental's
    // crossing rate as the strongest measure, so compare notes with each other.
    const double first = crossingRate(fanfare, 0.03, 0.13);
    const double second = crossingRate(fanfare, 0.21, 0.31);
    const double third = crossingRate(fanfare, 0.39, 0.49);
    EXPECT_LT(first, second);
    EXPECT_LT(second, third);
    EXPECT_GT(rms(fanfare, 0.8, 1.2), 0.1) << "the last note is held";
}

TEST(SoundCharacter, TheBoingBendsDownAndTheWhooshIsNoise) {
    const auto all = sounds();
    const auto& boink = all.at("boink.wav");
    EXPECT_GT(crossingRate(boink, 0.0, 0.05), crossingRate(boink, 0.2, 0.35));
    const auto& space = all.at("space.wav");
    // Noise crosses zero far more often than any of the tones, and swells in
    // the middle.
    EXPECT_GT(crossingRate(space, 0.15, 0.25), 800);
    EXPECT_GT(rms(space, 0.15, 0.25), 3 * rms(space, 0.0, 0.03));
}
