// The cursor and WAV writers on small known inputs, byte by byte.
#include <gtest/gtest.h>

#include "cursor.h"
#include "sounds.h"

using namespace assets;

namespace {

quint32 little(const QByteArray& bytes, int at, int size) {
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i) value = (value << 8) | quint8(bytes[at + i]);
    return value;
}

}  // namespace

// Rows are stored bottom-up, colour as blue, green, red, alpha, and the AND
// mask marks exactly the fully transparent pixels, most significant bit first.
TEST(CursorFile, StoresRowsBottomUpWithAMaskOfTheClearPixels) {
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixel(0, 0, qRgba(10, 20, 30, 255));     // top-left
    image.setPixel(9, 31, qRgba(200, 100, 50, 128));  // bottom row, half see-through
    const QByteArray file = curFile(image, QPoint(7, 3));

    ASSERT_EQ(file.size(), 6 + 16 + 40 + 32 * 32 * 4 + 32 * 4);
    EXPECT_EQ(little(file, 10, 2), 7u);
    EXPECT_EQ(little(file, 12, 2), 3u);
    EXPECT_EQ(little(file, 18, 4), 22u);
    EXPECT_EQ(little(file, 22 + 8, 4), 64u) << "height counts colour and mask rows";
    EXPECT_EQ(little(file, 22 + 14, 2), 32u) << "bits per pixel";

    const int pixels = 22 + 40;
    const int bottomRowPixel9 = pixels + 9 * 4;
    EXPECT_EQ(quint8(file[bottomRowPixel9 + 0]), 50);
    EXPECT_EQ(quint8(file[bottomRowPixel9 + 1]), 100);
    EXPECT_EQ(quint8(file[bottomRowPixel9 + 2]), 200);
    EXPECT_EQ(quint8(file[bottomRowPixel9 + 3]), 128);
    const int topRowPixel0 = pixels + 31 * 32 * 4;
    EXPECT_EQ(quint8(file[topRowPixel0 + 0]), 30);
    EXPECT_EQ(quint8(file[topRowPixel0 + 3]), 255);

    const int mask = pixels + 32 * 32 * 4;
    // Bottom row: only pixel 9 is drawn, so byte 1 has its bit 0x40 clear.
    EXPECT_EQ(quint8(file[mask + 0]), 0xFF);
    EXPECT_EQ(quint8(file[mask + 1]), 0xBF);
    // Top row: pixel 0 drawn.
    EXPECT_EQ(quint8(file[mask + 31 * 4 + 0]), 0x7F);
    EXPECT_EQ(quint8(file[mask + 31 * 4 + 3]), 0xFF);
}

TEST(WavFile, HeaderAndSamplesAreLittleEndianPcm) {
    const auto wav = wavFile({0.0, 0.5, -0.5, 1.0, -1.0, 2.0});
    ASSERT_EQ(wav.size(), 44u + 12u);
    const QByteArray bytes(reinterpret_cast<const char*>(wav.data()), int(wav.size()));
    EXPECT_EQ(bytes.mid(0, 4), "RIFF");
    EXPECT_EQ(little(bytes, 4, 4), 48u);
    EXPECT_EQ(bytes.mid(8, 8), "WAVEfmt ");
    EXPECT_EQ(bytes.mid(36, 4), "data");
    EXPECT_EQ(little(bytes, 40, 4), 12u);
    auto sample = [&](int i) { return int(qint16(little(bytes, 44 + 2 * i, 2))); };
    EXPECT_EQ(sample(0), 0);
    EXPECT_EQ(sample(1), 16384);
    EXPECT_EQ(sample(2), -16384);
    EXPECT_EQ(sample(3), 32767);
    EXPECT_EQ(sample(4), -32767);
    EXPECT_EQ(sample(5), 32767) << "out-of-range input is clamped, never wrapped";
}
