// National flags drawn to their official proportions and construction,
// letterboxed on a soft grey backdrop with a gentle shadow.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

// Runs `paint` in a units-wide by units-high coordinate system mapped onto rect.
template <typename Paint>
void inFlagUnits(QPainter& painter, const QRectF& rect, double unitsWide, double unitsHigh,
                 Paint paint) {
    painter.save();
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / unitsWide, rect.height() / unitsHigh);
    painter.setClipRect(QRectF(0, 0, unitsWide, unitsHigh));
    painter.setPen(Qt::NoPen);
    paint();
    painter.restore();
}

// The union flag on a 60 x 30 grid. The red saltire is counterchanged: in
// each arm it lies on the clockwise side of the white diagonal, so the broad
// white is uppermost next to the hoist and lowermost in the fly.
void unionFlag(QPainter& painter, const QRectF& rect) {
    const QColor blue(1, 33, 105), red(200, 16, 46);
    inFlagUnits(painter, rect, 60, 30, [&] {
        painter.fillRect(QRectF(0, 0, 60, 30), blue);
        const QPointF centre(30, 15);
        const QPointF corners[] = {{0, 0}, {60, 0}, {60, 30}, {0, 30}};
        painter.setPen(QPen(Qt::white, 6, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(-6, -3), QPointF(66, 33));
        painter.drawLine(QPointF(-6, 33), QPointF(66, -3));
        for (const QPointF& corner : corners) {
            const QPointF d = corner - centre;
            const double length = std::hypot(d.x(), d.y());
            const QPointF unit = d / length;
            const QPointF side(unit.y(), -unit.x());  // clockwise side of the arm
            painter.save();
            painter.setClipRect(
                QRectF(std::min(corner.x(), centre.x()), std::min(corner.y(), centre.y()), 30, 15),
                Qt::IntersectClip);
            painter.setPen(QPen(red, 2, Qt::SolidLine, Qt::FlatCap));
            painter.drawLine(centre + side - unit * 5, corner + side + unit * 5);
            painter.restore();
        }
        painter.setPen(Qt::NoPen);
        painter.fillRect(QRectF(0, 10, 60, 10), Qt::white);
        painter.fillRect(QRectF(25, 0, 10, 30), Qt::white);
        painter.fillRect(QRectF(0, 12, 60, 6), red);
        painter.fillRect(QRectF(27, 0, 6, 30), red);
    });
}

// 13 stripes, a union 7 stripes deep and 0.76 of the hoist wide, 50 stars in
// nine rows of six and five (the hoist is 1, the fly 1.9).
void usa(QPainter& painter, const QRectF& rect) {
    const QColor red(178, 34, 52), blue(60, 59, 110);
    inFlagUnits(painter, rect, 1.9, 1.0, [&] {
        for (int i = 0; i < 13; ++i)
            painter.fillRect(QRectF(0, i / 13.0, 1.9, 1 / 13.0), i % 2 == 0 ? red : Qt::white);
        painter.fillRect(QRectF(0, 0, 0.76, 7 / 13.0), blue);
        painter.setBrush(Qt::white);
        const double k = 0.0616;
        for (int row = 1; row <= 9; ++row) {
            const bool six = row % 2 == 1;
            for (int col = six ? 1 : 2; col <= 11; col += 2) {
                painter.drawPath(
                    starPath(QPointF(col * 0.063, row * 0.054), k / 2, k / 2 * 0.382, 5));
            }
        }
    });
}

// The Y-shaped pall on a 9 x 6 grid: green with white edges towards the red
// and blue bands and gold edges towards the black triangle at the hoist.
void southAfrica(QPainter& painter, const QRectF& rect) {
    inFlagUnits(painter, rect, 9, 6, [&] {
        painter.fillRect(QRectF(0, 0, 9, 3), QColor(224, 60, 49));
        painter.fillRect(QRectF(0, 3, 9, 3), QColor(0, 20, 137));
        QPainterPath pall;
        pall.moveTo(0, 0);
        pall.lineTo(4.5, 3);
        pall.lineTo(0, 6);
        pall.moveTo(4.5, 3);
        pall.lineTo(9.5, 3);
        QPainterPath triangle;
        triangle.moveTo(0, 0);
        triangle.lineTo(4.5, 3);
        triangle.lineTo(0, 6);
        triangle.closeSubpath();
        painter.strokePath(pall, QPen(Qt::white, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.save();
        painter.setClipPath(triangle, Qt::IntersectClip);
        painter.fillPath(triangle, Qt::black);
        // Gold only along the two arms, not along the hoist.
        QPainterPath arms;
        arms.moveTo(0, 0);
        arms.lineTo(4.5, 3);
        arms.lineTo(0, 6);
        painter.strokePath(
            arms, QPen(QColor(255, 184, 28), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.restore();
        painter.strokePath(
            pall, QPen(QColor(0, 119, 73), 1.2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    });
}

void germany(QPainter& painter, const QRectF& rect) {
    inFlagUnits(painter, rect, 5, 3, [&] {
        painter.fillRect(QRectF(0, 0, 5, 1), Qt::black);
        painter.fillRect(QRectF(0, 1, 5, 1), QColor(221, 0, 0));
        painter.fillRect(QRectF(0, 2, 5, 1), QColor(255, 206, 0));
    });
}

void france(QPainter& painter, const QRectF& rect) {
    inFlagUnits(painter, rect, 3, 2, [&] {
        painter.fillRect(QRectF(0, 0, 1, 2), QColor(0, 85, 164));
        painter.fillRect(QRectF(1, 0, 1, 2), Qt::white);
        painter.fillRect(QRectF(2, 0, 1, 2), QColor(239, 65, 53));
    });
}

// On a 10080 x 5040 grid: the union flag in the upper hoist, the seven-pointed
// Commonwealth Star below it and the Southern Cross in the fly.
void australia(QPainter& painter, const QRectF& rect) {
    const double w = rect.width() / 10080.0;
    const double h = rect.height() / 5040.0;
    inFlagUnits(painter, rect, 10080, 5040,
                [&] { painter.fillRect(QRectF(0, 0, 10080, 5040), QColor(1, 33, 105)); });
    unionFlag(painter, QRectF(rect.topLeft(), QSizeF(5040 * w, 2520 * h)));
    inFlagUnits(painter, rect, 10080, 5040, [&] {
        painter.setBrush(Qt::white);
        auto star = [&](double x, double y, double outer, int points) {
            painter.drawPath(starPath(QPointF(x, y), outer, outer * 4 / 9, points));
        };
        star(2520, 3780, 756, 7);  // Commonwealth Star
        star(7560, 4200, 360, 7);  // Alpha Crucis
        star(6300, 2205, 360, 7);  // Beta
        star(7560, 840, 360, 7);   // Gamma
        star(8680, 1869, 360, 7);  // Delta
        star(8064, 2730, 210, 5);  // Epsilon
    });
}

double aspect(Flag flag) {
    switch (flag) {
        case Flag::UnitedKingdom:
            return 2.0;
        case Flag::Usa:
            return 1.9;
        case Flag::SouthAfrica:
            return 1.5;
        case Flag::Germany:
            return 5.0 / 3.0;
        case Flag::Australia:
            return 2.0;
        case Flag::France:
            return 1.5;
    }
    return 1.5;
}

}  // namespace

void drawFlag(QPainter& painter, Flag flag) {
    tileBackground(painter, QColor(246, 247, 250), QColor(214, 218, 228));
    const double width = 92;
    const double height = width / aspect(flag);
    const QRectF rect(50 - width / 2, 50 - height / 2, width, height);
    QPainterPath outline;
    outline.addRect(rect);
    softShadow(painter, outline, QPointF(1.5, 2.5), 4, QColor(0, 0, 0, 100));
    switch (flag) {
        case Flag::UnitedKingdom:
            unionFlag(painter, rect);
            break;
        case Flag::Usa:
            usa(painter, rect);
            break;
        case Flag::SouthAfrica:
            southAfrica(painter, rect);
            break;
        case Flag::Germany:
            germany(painter, rect);
            break;
        case Flag::Australia:
            australia(painter, rect);
            break;
        case Flag::France:
            france(painter, rect);
            break;
    }
    painter.setPen(QPen(QColor(0, 0, 0, 60), 0.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect);
}

}  // namespace assets
