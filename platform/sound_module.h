#pragma once
// What the game and its sound module agree on: the module's file name and the
// one function it exports, which plays a WAV file (an absolute path in UTF-8)
// in the background, replacing a sound still playing.

namespace platform {

inline constexpr const char* kSoundModuleName = "pimbalo_sound";
inline constexpr const char* kSoundModuleEntry = "pimbalo_play_sound";
using PlaySoundEntry = void (*)(const char* absolutePath);

}  // namespace platform
