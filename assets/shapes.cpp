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

QPainterPath shapePath(Shape shape) {
    const QPointF centre(50, 50);
    QPainterPath path;
    switch (shape) {
        case Shape::Polygon:
            path = regularPolygon(centre, 36, 6, 0);
            break;
        case Shape::Triangle:
            path = regularPolygon(centre + QPointF(0, 7), 40, 3, -90);
            break;
        case Shape::Star:
            path = starPath(centre + QPointF(0, 3), 42, 18, 5);
            break;
        case Shape::Square:
            path.addRect(QRectF(22, 22, 56, 56));
            break;
        case Shape::Rectangle:
            path.addRect(QRectF(12, 31, 76, 38));
            break;
        case Shape::Doughnut:
            path.addEllipse(centre, 36, 36);
            path.addEllipse(centre, 15, 15);
            path.setFillRule(Qt::OddEvenFill);
            return path;
    }
    return softened(path, 2.5);
}

QColor shapeColour(Shape shape) {
    switch (shape) {
        case Shape::Polygon:
            return QColor(150, 60, 220);
        case Shape::Triangle:
            return QColor(30, 180, 60);
        case Shape::Star:
            return QColor(255, 200, 0);
        case Shape::Square:
            return QColor(30, 110, 235);
        case Shape::Rectangle:
            return QColor(235, 40, 40);
        case Shape::Doughnut:
            return QColor(255, 120, 30);
    }
    return Qt::black;
}

void drawShape(QPainter& painter, Shape shape) {
    tileBackground(painter, QColor(255, 255, 255), QColor(232, 236, 244));
    const QPainterPath path = shapePath(shape);
    softShadow(painter, path, QPointF(2.5, 3.5), 5);
    glossyFill(painter, path, shapeColour(shape), 2.2);
}

}  // namespace assets
