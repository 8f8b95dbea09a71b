#pragma once
// A WAV file of a steady tone (16-bit mono, 22050 Hz), for the sound tests.
#include <QByteArray>
#include <QFile>
#include <QtEndian>
#include <cmath>

inline QByteArray toneWav(double seconds) {
    const int frames = static_cast<int>(22050 * seconds);
    QByteArray samples(frames * 2, '\0');
    for (int i = 0; i < frames; ++i)
        qToLittleEndian<qint16>(static_cast<qint16>(8000 * std::sin(i * 0.125)),
                                samples.data() + 2 * i);
    QByteArray file(44, '\0');
    char* h = file.data();
    memcpy(h, "RIFF", 4);
    qToLittleEndian<quint32>(36 + samples.size(), h + 4);
    memcpy(h + 8, "WAVEfmt ", 8);
    qToLittleEndian<quint32>(16, h + 16);
    qToLittleEndian<quint16>(1, h + 20);  // PCM
    qToLittleEndian<quint16>(1, h + 22);  // mono
    qToLittleEndian<quint32>(22050, h + 24);
    qToLittleEndian<quint32>(44100, h + 28);
    qToLittleEndian<quint16>(2, h + 32);
    qToLittleEndian<quint16>(16, h + 34);
    memcpy(h + 36, "data", 4);
    qToLittleEndian<quint32>(samples.size(), h + 40);
    return file + samples;
}

inline bool writeToneWav(const QString& path, double seconds) {
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(toneWav(seconds)) > 0;
}
