#pragma once
// Sound effects: a WAV file by its relative game path, played in the
// background. A new sound replaces one still playing. A missing or unplayable
// file, or a machine without audio, is silent and never holds up the game.
#include <QString>
#include <functional>
#include <string>

namespace platform {

void playSound(const std::string& relativePath);

// The sound module's file (a shared library holding the audio system). It is
// loaded at the first sound; until this is set, or when it will not load,
// every sound is silent.
void setSoundModule(const QString& file);

// Sees every sound the game asks for, played or not (tests listen here).
void setSoundObserver(std::function<void(const std::string& path)> observer);

// The file the latest sound handed to the player (an absolute path), empty
// when that sound found nothing to play and so only silenced the one before.
QString latestSoundFile();

}  // namespace platform
