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

    // Only what a sound card plays sensibly: a header claiming more is damage,
    // and sizing buffers by it could take all the memory there is.
    static constexpr int kMinRate = 8000, kMaxRate = 192000, kMaxChannels = 8;
    bool valid() const {
        return sampleRate >= kMinRate && sampleRate <= kMaxRate && channels >= 1 &&
               channels <= kMaxChannels && sample != Sample::Unknown;
    }
    int bytesPerFrame() const;
    // Whole frames covering at least `microseconds` of sound.
    qsizetype bytesFor(qint64 microseconds) const;
};

struct PcmSound {
    PcmFormat format;  // invalid when the file could not be read
    QByteArray samples;
    bool playable() const { return format.valid() && !samples.isEmpty(); }
};

// Uncompressed PCM (8, 16, 24 or 32-bit whole numbers, or 32-bit floating
// point) of 8 to 192 kHz and 1 to 8 channels; 24-bit samples come out as
// 32-bit ones. Anything else, or a damaged file (a chunk running past its
// end), gives an unplayable sound.
PcmSound parseWav(const QByteArray& bytes);

}  // namespace platform
