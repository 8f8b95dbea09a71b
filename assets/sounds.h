#pragma once
// The six sound effects, synthesised: 16-bit PCM mono WAV at 22050 Hz.
// Plain C++.
#include <cstdint>
#include <string>
#include <vector>

namespace assets {

constexpr int kSampleRate = 22050;

struct Sound {
    std::string file;             // e.g. "click.wav"
    std::vector<double> samples;  // -1..1
};

// click, click1, space, METAL2, boink and fanf3, ready to write.
std::vector<Sound> gameSounds();

// A complete WAV file: RIFF header, "fmt " and "data" chunks.
std::vector<std::uint8_t> wavFile(const std::vector<double>& samples);

}  // namespace assets
