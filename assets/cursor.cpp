#include "cursor.h"

#include <QPainter>
#include <QPainterPath>
#include <vector>

namespace assets {

namespace {

void put16(QByteArray& out, int value) {
    out.append(char(value & 0xFF));
    out.append(char((value >> 8) & 0xFF));
}

void put32(QByteArray& out, quint32 value) {
    for (int shift = 0; shift < 32; shift += 8) out.append(char((value >> shift) & 0xFF));
}

}  // namespace

// Thumb, palm, the three folded fingers and the pointing index finger. Each
// part gets its own outline, so the folds between fingers show.
std::vector<QPainterPath> handParts() {
    QPainterPath thumb;
    thumb.moveTo(9.5, 18.5);
    thumb.lineTo(5.6, 14.6);
    thumb.cubicTo(3.6, 12.6, 0.8, 14.8, 2.4, 17.2);
    thumb.lineTo(7.4, 24.5);
    thumb.closeSubpath();
    QPainterPath palm;
    palm.moveTo(7.6, 14);
    palm.lineTo(24.8, 14);
    palm.lineTo(24.8, 22);
    palm.cubicTo(24.8, 26.5, 22, 29, 18, 29);
    palm.lineTo(13, 29);
    palm.cubicTo(10, 29, 8.4, 27, 7.6, 24);
    palm.closeSubpath();
    std::vector<QPainterPath> parts = {thumb, palm};
    const QRectF folded[] = {{20.4, 12.4, 4.4, 8.6}, {16.4, 10.8, 4.6, 9.6}, {12.2, 9.6, 4.8, 10}};
    for (const QRectF& finger : folded) {
        QPainterPath path;
        path.addRoundedRect(finger, 2.2, 2.2);
        parts.push_back(path);
    }
    QPainterPath index;
    index.addRoundedRect(QRectF(7.6, 1.2, 5.2, 18), 2.6, 2.6);
    parts.push_back(index);
    return parts;
}

QImage handPointer() {
    // Drawn four times larger and scaled down for smooth edges.
    const int scale = 4;
    QImage big(kCursorSide * scale, kCursorSide * scale, QImage::Format_ARGB32_Premultiplied);
    big.fill(Qt::transparent);
    {
        QPainter painter(&big);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.scale(scale, scale);
        painter.setPen(QPen(Qt::black, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::white);
        for (const QPainterPath& part : handParts()) painter.drawPath(part);
    }
    return big.scaled(kCursorSide, kCursorSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

QByteArray curFile(const QImage& source, QPoint hotSpot) {
    const QImage image = source.convertToFormat(QImage::Format_ARGB32);
    const int w = image.width();
    const int h = image.height();
    const int maskStride = ((w + 31) / 32) * 4;
    const quint32 pixelBytes = quint32(w * h * 4);
    const quint32 maskBytes = quint32(maskStride * h);
    const quint32 headerBytes = 40;

    QByteArray out;
    // ICONDIR: reserved, type 2 (cursor), one image.
    put16(out, 0);
    put16(out, 2);
    put16(out, 1);
    // ICONDIRENTRY: a cursor keeps its hot spot where an icon keeps planes and bit count.
    out.append(char(w));
    out.append(char(h));
    out.append(char(0));
    out.append(char(0));
    put16(out, hotSpot.x());
    put16(out, hotSpot.y());
    put32(out, headerBytes + pixelBytes + maskBytes);
    put32(out, 6 + 16);
    // BITMAPINFOHEADER: the height counts the colour rows and the mask rows.
    put32(out, headerBytes);
    put32(out, quint32(w));
    put32(out, quint32(2 * h));
    put16(out, 1);
    put16(out, 32);
    put32(out, 0);
    put32(out, pixelBytes + maskBytes);
    put32(out, 0);
    put32(out, 0);
    put32(out, 0);
    put32(out, 0);
    // Colour rows bottom-up, blue green red alpha.
    for (int y = h - 1; y >= 0; --y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < w; ++x) put32(out, row[x]);
    }
    // AND mask bottom-up: 1 where the screen shows through.
    for (int y = h - 1; y >= 0; --y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        QByteArray bits(maskStride, char(0));
        for (int x = 0; x < w; ++x)
            if (qAlpha(row[x]) == 0) bits[x / 8] = char(bits[x / 8] | (0x80 >> (x % 8)));
        out.append(bits);
    }
    return out;
}

}  // namespace assets
