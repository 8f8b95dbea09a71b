#pragma once
// The PCM samples of a WAV file, read once and kept, so that a sound starts
// the moment it is asked for. Plain data: the sound module turns it into the
// audio system's own format only when something is played.
#include <QByteArray>

namespace platform {

struct PcmFormat {
    enum class Sample { Unknown, UInt8, Int16, Int32, Float };  // tables follow this order
    int sampleRate = 0;
    int channels = 0;
    Sample sample = Sample::Unknown;

    bool valid() const { return sampleRate > 0 && channels > 0 && sample != Sample::Unknown; }
    int bytesPerFrame() const;
    // Whole frames covering at least `microseconds` of sound.
    qsizetype bytesFor(qint64 microseconds) const;
};

struct PcmSound {
    PcmFormat format;  // invalid when the file could not be read
    QByteArray samples;
    bool playable() const { return format.valid() && !samples.isEmpty(); }
};

// Uncompressed PCM (8, 16 or 32-bit whole numbers, or 32-bit floating point)
// of any rate and channel count. Anything else, or a damaged file, gives an
// unplayable sound.
PcmSound parseWav(const QByteArray& bytes);

}  // namespace platform
