#pragma once
// What the sound module offers the game. The module holds everything that
// needs the audio system (Qt Multimedia and the sound server's client
// libraries), so the game loads none of it until its first sound.
//
// Both calls run on the game's audio thread only, which runs an event loop
// for the module's objects, and either may wait on the sound server for as
// long as the server takes to answer.
#include "platform/wav_file.h"

#define PIMBALO_SOUND_PLAY "pimbaloPlaySound"
#define PIMBALO_SOUND_STOP "pimbaloStopSound"

extern "C" {
// Starts `sound` (kept alive by the game while it plays), replacing any sound
// still playing. After each step that waits on the audio system it asks
// `stillWanted`, and gives the sound up when the answer is no.
void pimbaloPlaySound(const platform::PcmSound* sound, bool (*stillWanted)());
// Silences the sound playing, if any.
void pimbaloStopSound();
}
