// Dice faces: a white rounded die with soft shading, black pips (the single
// pip of the one is big and red), each face on its own pastel backdrop so the
// faces tell apart at a glance.
#include <array>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

const std::array<QColor, 6> kBackdrops = {
    QColor(255, 150, 150), QColor(120, 180, 255), QColor(140, 225, 120),
    QColor(255, 205, 90),  QColor(200, 150, 255), QColor(90, 215, 215),
};

// Pip positions on a 3 x 3 lattice, column then row (0..2).
std::vector<QPoint> pipCells(int pips) {
    switch (pips) {
        case 1:
            return {{1, 1}};
        case 2:
            return {{0, 0}, {2, 2}};
        case 3:
            return {{0, 0}, {1, 1}, {2, 2}};
        case 4:
            return {{0, 0}, {2, 0}, {0, 2}, {2, 2}};
        case 5:
            return {{0, 0}, {2, 0}, {1, 1}, {0, 2}, {2, 2}};
        default:
            return {{0, 0}, {2, 0}, {0, 1}, {2, 1}, {0, 2}, {2, 2}};
    }
}

void drawPip(QPainter& painter, QPointF centre, double radius, QColor colour) {
    QRadialGradient shade(centre + QPointF(-radius * 0.3, -radius * 0.3), radius * 1.3);
    shade.setColorAt(0, mix(colour, Qt::white, 0.35));
    shade.setColorAt(1, colour);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawEllipse(centre, radius, radius);
}

}  // namespace

void drawDie(QPainter& painter, int pips) {
    const QColor backdrop = kBackdrops[(pips - 1) % 6];
    tileBackground(painter, mix(backdrop, Qt::white, 0.35), backdrop);

    const QRectF body(14, 12, 72, 72);
    QPainterPath die;
    die.addRoundedRect(body, 16, 16);
    softShadow(painter, die, QPointF(2.5, 4), 6);

    QLinearGradient face(body.topLeft(), body.bottomRight());
    face.setColorAt(0, Qt::white);
    face.setColorAt(0.6, QColor(246, 246, 250));
    face.setColorAt(1, QColor(214, 216, 228));
    painter.setPen(QPen(QColor(150, 152, 170), 1.6));
    painter.setBrush(face);
    painter.drawPath(die);

    const double step = 21;
    const QPointF first = body.center() - QPointF(step, step);
    for (const QPoint& cell : pipCells(pips)) {
        const QPointF centre = first + QPointF(cell.x() * step, cell.y() * step);
        if (pips == 1)
            drawPip(painter, centre, 11.5, QColor(220, 30, 40));
        else
            drawPip(painter, centre, 7.2, QColor(30, 30, 40));
    }
}

}  // namespace assets
