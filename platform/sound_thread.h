#pragma once
// The thread that talks to the audio system. Any call into it may wait on
// the sound server, for half a minute when the server hangs (stopped, swapped
// out, its machine overloaded), so the game's own thread never makes one: it
// leaves the latest sound with the audio thread and goes on at once.
#include <QString>

namespace platform {

struct PcmSound;

// Hands `sound` (null: silence) to the audio thread in place of any sound
// still waiting there, and returns at once. The thread loads the sound module
// `module` for its first sound; a module missing or broken leaves it silent,
// and another one named later is tried in turn. `sound` must live as long as
// the program. A sound the thread cannot start soon after it was asked for
// (the server was not answering) is dropped.
void handToAudioThread(const PcmSound* sound, const QString& module);

}  // namespace platform
