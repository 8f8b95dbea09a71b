#pragma once
// The six sounds, named as the game asks for them (paths below the game
// folder). The same sound serves several events, so they are named by their
// files; the picture generator synthesises each under its file name.
namespace tables {

inline constexpr char kClickWav[] = "wav\\click.wav";    // a command clicked
inline constexpr char kClick1Wav[] = "wav\\click1.wav";  // a piece dropped, a box ticked
inline constexpr char kSpaceWav[] = "wav\\space.wav";    // pieces sent home, a new puzzle
inline constexpr char kMetal2Wav[] = "wav\\METAL2.wav";  // the solution shown
inline constexpr char kBoinkWav[] = "wav\\boink.wav";    // a wrong grid
inline constexpr char kFanf3Wav[] = "wav\\fanf3.wav";    // a right one

// A sound's file name inside the "wav\" folder.
constexpr const char* soundFileName(const char* path) {
    const char* name = path;
    for (const char* c = path; *c; ++c)
        if (*c == '\\') name = c + 1;
    return name;
}

}  // namespace tables
