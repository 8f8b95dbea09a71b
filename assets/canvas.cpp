#include "canvas.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace assets {

QColor bgrColor(std::uint32_t bbggrr) {
    return QColor(bbggrr & 0xFF, (bbggrr >> 8) & 0xFF, (bbggrr >> 16) & 0xFF);
}

QImage newCanvas(int width, int height, QColor fill) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(fill);
    return image;
}

void beginPainter(QPainter& painter, QImage& image) {
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

QImage paintBox(int width, int height, double logicalWidth, double logicalHeight,
                const SquareDrawer& draw) {
    QImage image = newCanvas(width, height);
    QPainter painter;
    beginPainter(painter, image);
    painter.scale(width / logicalWidth, height / logicalHeight);
    draw(painter);
    painter.end();
    return image;
}

QImage paintSquare(int pixels, const SquareDrawer& draw) {
    return paintBox(pixels, pixels, 100.0, 100.0, draw);
}

namespace {

// One horizontal then one vertical running-sum pass over premultiplied ARGB.
void boxBlurPass(QImage& image, int radius) {
    const int w = image.width();
    const int h = image.height();
    const int span = 2 * radius + 1;
    std::vector<int> sums(4);
    auto blurLine = [&](auto pixelAt, int length) {
        std::vector<QRgb> line(length);
        for (int i = 0; i < length; ++i) line[i] = *pixelAt(i);
        std::fill(sums.begin(), sums.end(), 0);
        auto channel = [](QRgb p, int c) { return int((p >> (8 * c)) & 0xFF); };
        auto at = [&](int i) { return (i < 0 || i >= length) ? QRgb(0) : line[i]; };
        for (int i = -radius; i <= radius; ++i)
            for (int c = 0; c < 4; ++c) sums[c] += channel(at(i), c);
        for (int i = 0; i < length; ++i) {
            QRgb out = 0;
            for (int c = 0; c < 4; ++c) out |= QRgb(sums[c] / span) << (8 * c);
            *pixelAt(i) = out;
            for (int c = 0; c < 4; ++c)
                sums[c] += channel(at(i + radius + 1), c) - channel(at(i - radius), c);
        }
    };
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        blurLine([row](int i) { return row + i; }, w);
    }
    for (int x = 0; x < w; ++x) {
        blurLine([&image, x](int i) { return reinterpret_cast<QRgb*>(image.scanLine(i)) + x; }, h);
    }
}

}  // namespace

void softShadow(QPainter& painter, const QPainterPath& shape, QPointF offset, double blur,
                QColor colour) {
    const QTransform toDevice = painter.transform();
    const double scale = std::sqrt(std::abs(toDevice.determinant()));
    const int radius = std::max(1, int(std::lround(blur * scale / 3.0)));
    const QPainterPath onDevice = toDevice.map(shape.translated(offset));
    const QRect box = onDevice.boundingRect().toAlignedRect().adjusted(-4 * radius, -4 * radius,
                                                                       4 * radius, 4 * radius);
    QImage layer(box.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    {
        QPainter p(&layer);
        p.setRenderHint(QPainter::Antialiasing, true);
        p.translate(-box.topLeft());
        p.fillPath(onDevice, colour);
    }
    for (int pass = 0; pass < 3; ++pass) boxBlurPass(layer, radius);
    painter.save();
    painter.resetTransform();
    painter.drawImage(box.topLeft(), layer);
    painter.restore();
}

void tileBackground(QPainter& painter, QColor top, QColor bottom) {
    QLinearGradient gradient(0, 0, 0, 100);
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    painter.fillRect(QRectF(0, 0, 100, 100), gradient);
}

QColor mix(QColor a, QColor b, double t) {
    auto lerp = [t](int x, int y) { return int(std::lround(x + (y - x) * t)); };
    return QColor(lerp(a.red(), b.red()), lerp(a.green(), b.green()), lerp(a.blue(), b.blue()),
                  lerp(a.alpha(), b.alpha()));
}

void glossyFill(QPainter& painter, const QPainterPath& shape, QColor base, double outline) {
    const QRectF box = shape.boundingRect();
    QLinearGradient gradient(box.topLeft(), box.bottomRight());
    gradient.setColorAt(0, mix(base, Qt::white, 0.45));
    gradient.setColorAt(0.45, base);
    gradient.setColorAt(1, mix(base, Qt::black, 0.25));
    painter.save();
    painter.setPen(outline > 0 ? QPen(mix(base, Qt::black, 0.45), outline, Qt::SolidLine,
                                      Qt::RoundCap, Qt::RoundJoin)
                               : QPen(Qt::NoPen));
    painter.setBrush(gradient);
    painter.drawPath(shape);
    painter.restore();
}

bool ensureParentFolder(const QString& path) {
    return QDir().mkpath(QFileInfo(path).absolutePath());
}

bool saveJpeg(const QImage& image, const QString& path) {
    if (!ensureParentFolder(path)) return false;
    QImageWriter writer(path, "jpg");
    writer.setQuality(92);
    writer.setOptimizedWrite(true);
    return writer.write(image.convertToFormat(QImage::Format_RGB32));
}

QPainterPath pathAround(QPointF centre, int corners, double startRadians,
                        const std::function<double(int)>& radius) {
    QPainterPath path;
    for (int i = 0; i < corners; ++i) {
        const double a = startRadians + 2 * M_PI * i / corners;
        const QPointF p = centre + QPointF(radius(i) * std::cos(a), radius(i) * std::sin(a));
        if (i == 0)
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    path.closeSubpath();
    return path;
}

QPainterPath starPath(QPointF centre, double outer, double inner, int points) {
    return pathAround(centre, 2 * points, -M_PI / 2,
                      [&](int i) { return i % 2 == 0 ? outer : inner; });
}

}  // namespace assets
