#include "platform/wav_file.h"

#include <QtEndian>

namespace platform {

namespace {
constexpr quint16 kPcm = 1, kFloat = 3;

// Bytes per sample in the order of PcmFormat::Sample.
constexpr int kBytesPerSample[] = {0, 1, 2, 4, 4};

struct Encoding {
    quint16 tag;
    quint16 bits;
    PcmFormat::Sample sample;
};
// 24-bit samples are widened to 32 bits (the audio system has no 24-bit
// format), so they share Int32.
constexpr Encoding kEncodings[] = {{kPcm, 8, PcmFormat::Sample::UInt8},
                                   {kPcm, 16, PcmFormat::Sample::Int16},
                                   {kPcm, 24, PcmFormat::Sample::Int32},
                                   {kPcm, 32, PcmFormat::Sample::Int32},
                                   {kFloat, 32, PcmFormat::Sample::Float}};

quint32 littleEndian32(const QByteArray& bytes, qsizetype at) {
    quint32 value = 0;
    for (int i = 3; i >= 0; --i) value = value << 8 | static_cast<uchar>(bytes.at(at + i));
    return value;
}

// Each 3-byte sample becomes the top three bytes of a 4-byte one.
QByteArray widened24(const QByteArray& samples) {
    QByteArray wide(samples.size() / 3 * 4, '\0');
    for (qsizetype in = 0, out = 0; in + 3 <= samples.size(); in += 3, out += 4) {
        wide[out + 1] = samples[in];
        wide[out + 2] = samples[in + 1];
        wide[out + 3] = samples[in + 2];
    }
    return wide;
}
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
    int bits = 0;
    QByteArray samples;
    qsizetype pos = 12;
    while (pos + 8 <= bytes.size()) {
        const QByteArray id = bytes.mid(pos, 4);
        const quint32 length = littleEndian32(bytes, pos + 4);
        const qsizetype body = pos + 8;
        // A chunk running past the end: a cut-off or damaged file.
        if (length > bytes.size() - body) return sound;
        const char* data = bytes.constData() + body;
        if (id == "fmt " && length >= 16) {
            const quint16 tag = qFromLittleEndian<quint16>(data);
            bits = qFromLittleEndian<quint16>(data + 14);
            format.channels = qFromLittleEndian<quint16>(data + 2);
            format.sampleRate = static_cast<int>(
                qMin<quint32>(qFromLittleEndian<quint32>(data + 4), PcmFormat::kMaxRate + 1));
            format.sample = PcmFormat::Sample::Unknown;
            for (const Encoding& e : kEncodings)
                if (e.tag == tag && e.bits == bits) format.sample = e.sample;
        } else if (id == "data") {
            samples = bytes.mid(body, length);
        }
        pos = body + length + (length & 1);  // chunks are padded to even sizes
    }
    if (!format.valid()) return sound;
    if (bits == 24) samples = widened24(samples);
    // Whole frames only.
    samples.truncate(samples.size() - samples.size() % format.bytesPerFrame());
    sound.format = format;
    sound.samples = samples;
    return sound;
}

}  // namespace platform
