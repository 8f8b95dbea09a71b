#pragma once
// The PCM samples of a WAV file, read once and kept, so that a sound starts
// the moment it is asked for.
#include <QAudioFormat>
#include <QByteArray>

namespace platform {

struct PcmSound {
    QAudioFormat format;  // invalid when the file could not be read
    QByteArray samples;
    bool playable() const { return format.isValid() && !samples.isEmpty(); }
};

// Uncompressed PCM (8, 16 or 32-bit whole numbers, or 32-bit floating point)
// of any rate and channel count. Anything else, or a damaged file, gives an
// unplayable sound.
PcmSound parseWav(const QByteArray& bytes);

}  // namespace platform
