// Repeating tile patterns, each with its own motif and colours, filling the
// whole square like a piece of patterned cloth.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

void dots(QPainter& painter) {
    tileBackground(painter, QColor(70, 170, 245), QColor(30, 110, 215));
    const double pitch = 25;
    for (int row = 0; row < 6; ++row) {
        for (int col = 0; col < 6; ++col) {
            const QPointF c((col - 0.5 + (row % 2) * 0.5) * pitch,
                            (row - 0.5) * pitch * 0.866 * 1.15);
            QRadialGradient ball(c + QPointF(-2.5, -2.5), 9);
            ball.setColorAt(0, QColor(255, 255, 210));
            ball.setColorAt(1, QColor(255, 205, 0));
            painter.setPen(QPen(QColor(180, 120, 0), 0.8));
            painter.setBrush(ball);
            painter.drawEllipse(c, 7.5, 7.5);
        }
    }
}

void stripes(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 100, 100), QColor(255, 250, 240));
    painter.save();
    painter.translate(50, 50);
    painter.rotate(-45);
    const double band = 100 / 7.0;
    for (int i = -6; i <= 6; i += 2) {
        const QRectF stripe(-80, i * band - band / 2 * 0.0, 160, band);
        QLinearGradient shade(0, stripe.top(), 0, stripe.bottom());
        shade.setColorAt(0, QColor(255, 80, 110));
        shade.setColorAt(1, QColor(205, 20, 60));
        painter.fillRect(stripe, shade);
    }
    painter.restore();
}

void tiles(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 100, 100), QColor(235, 250, 235));
    const double pitch = 25;
    for (int row = 0; row < 4; ++row) {
        for (int col = 0; col < 4; ++col) {
            const QRectF tile(col * pitch + 1.5, row * pitch + 1.5, pitch - 3, pitch - 3);
            const QColor base = ((row + col) % 2 == 0) ? QColor(40, 170, 70) : QColor(160, 225, 90);
            QPainterPath path;
            path.addRoundedRect(tile, 3, 3);
            glossyFill(painter, path, base, 0);
        }
    }
}

void triangles(QPainter& painter) {
    painter.fillRect(QRectF(0, 0, 100, 100), QColor(255, 240, 200));
    const double w = 20;
    const double h = 20;
    for (int row = 0; row < 5; ++row) {
        for (int col = -1; col < 6; ++col) {
            const double x = col * w + ((row % 2) ? w / 2 : 0);
            const double y = row * h;
            QPainterPath up;
            up.moveTo(x, y + h);
            up.lineTo(x + w / 2, y);
            up.lineTo(x + w, y + h);
            up.closeSubpath();
            const QColor colour = (row % 2 == 0) ? QColor(255, 130, 0) : QColor(250, 190, 0);
            glossyFill(painter, up.translated(0, 0), colour, 0);
        }
    }
}

// Rows of chain: oval links seen face on, joined by links seen edge on.
void link(QPainter& painter) {
    tileBackground(painter, QColor(245, 232, 255), QColor(220, 200, 250));
    const double pitch = 25;
    const QColor colours[] = {QColor(130, 50, 200), QColor(210, 60, 170)};
    for (int row = 0; row < 4; ++row) {
        const double y = 12.5 + row * 25;
        const double shift = (row % 2) * pitch / 2;
        const QColor colour = colours[row % 2];
        const QPen edge(mix(colour, Qt::black, 0.45), 6.6, Qt::SolidLine, Qt::RoundCap);
        const QPen body(colour, 4.2, Qt::SolidLine, Qt::RoundCap);
        const QPen shine(mix(colour, Qt::white, 0.5), 1.2, Qt::SolidLine, Qt::RoundCap);
        painter.setBrush(Qt::NoBrush);
        for (int k = -1; k <= 4; ++k) {
            const QRectF oval(k * pitch + shift - 8, y - 7, 16, 14);
            for (const QPen& pen : {edge, body}) {
                painter.setPen(pen);
                painter.drawRoundedRect(oval, 7, 7);
            }
            painter.setPen(shine);
            painter.drawArc(oval.adjusted(1, 0.5, -1, -0.5), 40 * 16, 100 * 16);
        }
        // The edge-on links lie over the joins between the oval ones.
        for (int k = -1; k <= 4; ++k) {
            const double x = k * pitch + shift + pitch / 2;
            for (const QPen& pen : {edge, body}) {
                painter.setPen(pen);
                painter.drawLine(QPointF(x - 8, y), QPointF(x + 8, y));
            }
            painter.setPen(shine);
            painter.drawLine(QPointF(x - 7, y - 1), QPointF(x + 7, y - 1));
        }
    }
}

}  // namespace

void drawPattern(QPainter& painter, Pattern pattern) {
    switch (pattern) {
        case Pattern::Dots:
            return dots(painter);
        case Pattern::Stripes:
            return stripes(painter);
        case Pattern::Tiles:
            return tiles(painter);
        case Pattern::Triangles:
            return triangles(painter);
        case Pattern::Link:
            return link(painter);
    }
}

}  // namespace assets
