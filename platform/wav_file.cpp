#include "platform/wav_file.h"

#include <QtEndian>

namespace platform {

namespace {
constexpr quint16 kPcm = 1, kFloat = 3;

PcmFormat::Sample sampleOf(quint16 encoding, quint16 bits) {
    using Sample = PcmFormat::Sample;
    if (encoding == kPcm && bits == 8) return Sample::UInt8;
    if (encoding == kPcm && bits == 16) return Sample::Int16;
    if (encoding == kPcm && bits == 32) return Sample::Int32;
    if (encoding == kFloat && bits == 32) return Sample::Float;
    return Sample::Unknown;
}

// Bytes per sample in the order of PcmFormat::Sample.
constexpr int kBytesPerSample[] = {0, 1, 2, 4, 4};
}  // namespace

int PcmFormat::bytesPerFrame() const {
    return channels * kBytesPerSample[static_cast<int>(sample)];
}

qsizetype PcmFormat::bytesFor(qint64 microseconds) const {
    const qint64 frames = (qint64{sampleRate} * microseconds + 999999) / 1000000;
    return static_cast<qsizetype>(frames * bytesPerFrame());
}

PcmSound parseWav(const QByteArray& bytes) {
    PcmSound sound;
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE") return sound;
    PcmFormat format;
    QByteArray samples;
    qsizetype pos = 12;
    while (pos + 8 <= bytes.size()) {
        const QByteArray id = bytes.mid(pos, 4);
        const quint32 length = qFromLittleEndian<quint32>(bytes.constData() + pos + 4);
        const qsizetype body = pos + 8;
        // A chunk running past the end (a cut-off file) keeps what is there.
        const qsizetype available = qMin<qsizetype>(length, bytes.size() - body);
        const char* data = bytes.constData() + body;
        if (id == "fmt " && available >= 16) {
            format.channels = qFromLittleEndian<quint16>(data + 2);
            format.sampleRate = static_cast<int>(qFromLittleEndian<quint32>(data + 4));
            format.sample =
                sampleOf(qFromLittleEndian<quint16>(data), qFromLittleEndian<quint16>(data + 14));
        } else if (id == "data") {
            samples = bytes.mid(body, available);
        }
        pos = body + length + (length & 1);  // chunks are padded to even sizes
    }
    if (!format.valid()) return sound;
    // Whole frames only.
    samples.truncate(samples.size() - samples.size() % format.bytesPerFrame());
    sound.format = format;
    sound.samples = samples;
    return sound;
}

}  // namespace platform
