#pragma once
// What the sound module offers the game. The module holds everything that
// needs the audio system (Qt Multimedia and the sound server's client
// libraries), so the game loads none of it until its first sound.
#include "platform/wav_file.h"

#define PIMBALO_SOUND_PLAY "pimbaloPlaySound"
#define PIMBALO_SOUND_STOP "pimbaloStopSound"

extern "C" {
// Starts `sound` (kept alive by the module while it plays), replacing any
// sound still playing. Never waits for the audio system.
void pimbaloPlaySound(const platform::PcmSound* sound);
// Silences the sound playing, if any.
void pimbaloStopSound();
}
