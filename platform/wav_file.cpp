#include "platform/wav_file.h"

#include <QtEndian>

namespace platform {

namespace {
constexpr quint16 kPcm = 1, kFloat = 3;

QAudioFormat::SampleFormat sampleFormat(quint16 encoding, quint16 bits) {
    if (encoding == kPcm && bits == 8) return QAudioFormat::UInt8;
    if (encoding == kPcm && bits == 16) return QAudioFormat::Int16;
    if (encoding == kPcm && bits == 32) return QAudioFormat::Int32;
    if (encoding == kFloat && bits == 32) return QAudioFormat::Float;
    return QAudioFormat::Unknown;
}
}  // namespace

PcmSound parseWav(const QByteArray& bytes) {
    PcmSound sound;
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE") return sound;
    QAudioFormat format;
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
            format.setChannelCount(qFromLittleEndian<quint16>(data + 2));
            format.setSampleRate(static_cast<int>(qFromLittleEndian<quint32>(data + 4)));
            format.setSampleFormat(sampleFormat(qFromLittleEndian<quint16>(data),
                                                qFromLittleEndian<quint16>(data + 14)));
        } else if (id == "data") {
            samples = bytes.mid(body, available);
        }
        pos = body + length + (length & 1);  // chunks are padded to even sizes
    }
    if (!format.isValid()) return sound;
    // Whole frames only.
    samples.truncate(samples.size() - samples.size() % format.bytesPerFrame());
    sound.format = format;
    sound.samples = samples;
    return sound;
}

}  // namespace platform
