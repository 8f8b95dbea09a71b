// Plain geometric shapes, each in its own bright colour, with a soft shadow
// and a glossy fill so they look like chunky toy blocks.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

QPainterPath regularPolygon(QPointF centre, double radius, int corners, double startDegrees) {
    return pathAround(centre, corners, startDegrees * M_PI / 180.0, [=](int) { return radius; });
}

// Rounds the corners of a straight-edged path a little: friendlier to small
// hands than knife-sharp points.
QPainterPath softened(const QPainterPath& path, double radius) {
    QPainterPathStroker stroker;
    stroker.setWidth(2 * radius);
    stroker.setJoinStyle(Qt::RoundJoin);
    return (path + stroker.createStroke(path)).simplified();
}

}  // namespace

void drawShape(QPainter& painter, Shape shape) {
    tileBackground(painter, QColor(255, 255, 255), QColor(232, 236, 244));
    const QPointF centre(50, 50);
    QPainterPath path;
    QColor colour;
    switch (shape) {
        case Shape::Polygon:
            path = regularPolygon(centre, 36, 6, 0);
            colour = QColor(150, 60, 220);
            break;
        case Shape::Triangle:
            path = regularPolygon(centre + QPointF(0, 7), 40, 3, -90);
            colour = QColor(30, 180, 60);
            break;
        case Shape::Star:
            path = starPath(centre + QPointF(0, 3), 42, 18, 5);
            colour = QColor(255, 200, 0);
            break;
        case Shape::Square:
            path.addRect(QRectF(22, 22, 56, 56));
            colour = QColor(30, 110, 235);
            break;
        case Shape::Rectangle:
            path.addRect(QRectF(12, 31, 76, 38));
            colour = QColor(235, 40, 40);
            break;
        case Shape::Doughnut:
            path.addEllipse(centre, 36, 36);
            path.addEllipse(centre, 15, 15);
            path.setFillRule(Qt::OddEvenFill);
            colour = QColor(255, 120, 30);
            break;
    }
    if (shape != Shape::Doughnut) path = softened(path, 2.5);
    softShadow(painter, path, QPointF(2.5, 3.5), 5);
    glossyFill(painter, path, colour, 2.2);
}

}  // namespace assets
