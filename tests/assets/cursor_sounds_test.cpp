// The hand cursor loads as a Windows cursor and keeps its hot spot on the
// fingertip; the six sounds are well-formed 16-bit PCM that never clips.
#include <gtest/gtest.h>

#include <QFile>

#include "game_folder.h"

namespace {

QByteArray readAll(const QString& relative) {
    QFile file(gamePath(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

quint32 little(const QByteArray& bytes, int at, int size) {
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i) value = (value << 8) | quint8(bytes[at + i]);
    return value;
}

}  // namespace

TEST(HandCursor, LoadsAsACursorWithItsHotSpotOnTheFingertip) {
    const QByteArray bytes = readAll("Images/H_POINT.cur");
    ASSERT_GE(bytes.size(), 22 + 40 + 32 * 32 * 4 + 32 * 4);
    const int hotX = int(little(bytes, 10, 2));
    const int hotY = int(little(bytes, 12, 2));

    QImageReader reader(gamePath("Images/H_POINT.cur"), "cur");
    const QImage hand = reader.read().convertToFormat(QImage::Format_ARGB32);
    ASSERT_FALSE(hand.isNull()) << qPrintable(reader.errorString());
    ASSERT_EQ(hand.size(), QSize(32, 32));
    ASSERT_TRUE(hand.rect().contains(hotX, hotY));
    // The tip of the finger: drawn at the hot spot or just below it, with
    // nothing drawn above it, and the far corners see-through.
    int drawnBelow = 0;
    for (int dy = 0; dy <= 2; ++dy) drawnBelow += qAlpha(hand.pixel(hotX, hotY + dy)) > 128;
    EXPECT_GE(drawnBelow, 2);
    for (int y = 0; y < hotY; ++y) EXPECT_LT(qAlpha(hand.pixel(hotX, y)), 128);
    EXPECT_EQ(qAlpha(hand.pixel(31, 0)), 0);
    EXPECT_EQ(qAlpha(hand.pixel(0, 31)), 0);
    // A white hand with a black outline.
    int white = 0, black = 0;
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            const QRgb p = hand.pixel(x, y);
            if (qAlpha(p) < 250) continue;
            white += qGray(p) > 230;
            black += qGray(p) < 40;
        }
    }
    EXPECT_GT(white, 150);
    EXPECT_GT(black, 60);
}

TEST(Sounds, EveryFileIsShortCleanMonoPcm) {
    const struct {
        const char* file;
        double shortest, longest;  // seconds
    } sounds[] = {{"wav/click.wav", 0.03, 0.12}, {"wav/click1.wav", 0.03, 0.12},
                  {"wav/space.wav", 0.3, 0.6},   {"wav/METAL2.wav", 0.7, 1.5},
                  {"wav/boink.wav", 0.3, 0.8},   {"wav/fanf3.wav", 1.0, 2.0}};
    for (const auto& sound : sounds) {
        const QByteArray wav = readAll(sound.file);
        ASSERT_GE(wav.size(), 44) << sound.file;
        // The header's layout is the writer's own test; here the format it was given.
        EXPECT_EQ(little(wav, 22, 2), 1u) << sound.file << ": mono";
        EXPECT_EQ(little(wav, 24, 4), 22050u) << sound.file;
        const quint32 dataBytes = little(wav, 40, 4);
        ASSERT_EQ(dataBytes, quint32(wav.size() - 44)) << sound.file;

        const int count = int(dataBytes / 2);
        const double seconds = count / 22050.0;
        EXPECT_GE(seconds, sound.shortest) << sound.file;
        EXPECT_LE(seconds, sound.longest) << sound.file;
        int peak = 0;
        for (int i = 0; i < count; ++i)
            peak = std::max(peak, std::abs(int(qint16(little(wav, 44 + 2 * i, 2)))));
        EXPECT_LT(peak, 32767) << sound.file << " clips";
        EXPECT_GT(peak, 8000) << sound.file << " is barely audible";
        // Faded in and out: no click at either end.
        EXPECT_LT(std::abs(int(qint16(little(wav, 44, 2)))), 300) << sound.file;
        EXPECT_LT(std::abs(int(qint16(little(wav, 44 + 2 * (count - 1), 2)))), 300) << sound.file;
    }
}
