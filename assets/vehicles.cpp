// Vehicles seen from the side, facing right, on a road under a blue sky
// (the boat on waves): ambulance, fire engine, police car and a sailing boat.
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

void skyAndRoad(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, 80);
    sky.setColorAt(0, QColor(120, 195, 255));
    sky.setColorAt(1, QColor(215, 240, 255));
    painter.fillRect(QRectF(0, 0, 100, 80), sky);
    painter.fillRect(QRectF(0, 76, 100, 6), QColor(110, 190, 80));
    QLinearGradient road(0, 82, 0, 100);
    road.setColorAt(0, QColor(105, 105, 115));
    road.setColorAt(1, QColor(70, 70, 80));
    painter.fillRect(QRectF(0, 82, 100, 18), road);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(245, 245, 245));
    for (int i = 0; i < 4; ++i) painter.drawRoundedRect(QRectF(4 + i * 26, 92, 14, 2.6), 1, 1);
}

void wheel(QPainter& painter, QPointF centre, double radius) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 30, 35));
    painter.drawEllipse(centre, radius, radius);
    QRadialGradient hub(centre - QPointF(radius * 0.2, radius * 0.2), radius * 0.6);
    hub.setColorAt(0, QColor(245, 245, 250));
    hub.setColorAt(1, QColor(150, 155, 165));
    painter.setBrush(hub);
    painter.drawEllipse(centre, radius * 0.52, radius * 0.52);
    painter.setBrush(QColor(90, 90, 100));
    painter.drawEllipse(centre, radius * 0.16, radius * 0.16);
}

// The dark arch in the body around a wheel, then the wheel itself.
void wheelInArch(QPainter& painter, const QPainterPath& body, QPointF centre, double radius) {
    painter.save();
    painter.setClipPath(body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(45, 45, 55));
    painter.drawEllipse(centre, radius + 2, radius + 2);
    painter.restore();
    wheel(painter, centre, radius);
}

// Head lamp at the front (right), tail lamp at the back and grey bumpers.
void lampsAndBumpers(QPainter& painter, double back, double front, double bottom) {
    QPainterPath head;
    head.addRoundedRect(QRectF(front - 4, bottom - 14, 4.5, 4), 1.5, 1.5);
    glossyFill(painter, head, QColor(255, 230, 120), 0.6);
    QPainterPath tail;
    tail.addRoundedRect(QRectF(back - 0.5, bottom - 14, 3.5, 4), 1.5, 1.5);
    glossyFill(painter, tail, QColor(230, 40, 40), 0.6);
    QPainterPath bumpers;
    bumpers.addRoundedRect(QRectF(front - 6, bottom - 4, 8, 4), 1.8, 1.8);
    bumpers.addRoundedRect(QRectF(back - 2, bottom - 4, 8, 4), 1.8, 1.8);
    glossyFill(painter, bumpers, QColor(170, 175, 185), 0.6);
}

void windowPane(QPainter& painter, const QPainterPath& pane) {
    QLinearGradient glass(pane.boundingRect().topLeft(), pane.boundingRect().bottomRight());
    glass.setColorAt(0, QColor(225, 245, 255));
    glass.setColorAt(1, QColor(110, 170, 220));
    painter.setPen(QPen(QColor(60, 70, 90), 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(glass);
    painter.drawPath(pane);
}

void beacon(QPainter& painter, QPointF base, QColor colour) {
    QPainterPath dome;
    dome.moveTo(base + QPointF(-4, 0));
    dome.cubicTo(base + QPointF(-4, -7), base + QPointF(4, -7), base + QPointF(4, 0));
    dome.closeSubpath();
    QRadialGradient glow(base + QPointF(0, -3), 9);
    glow.setColorAt(0, QColor(colour.red(), colour.green(), colour.blue(), 140));
    glow.setColorAt(1, QColor(colour.red(), colour.green(), colour.blue(), 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(base + QPointF(0, -3), 9, 9);
    glossyFill(painter, dome, colour, 0.8);
}

QPainterPath bodyPath(const QPolygonF& outline, double radius) {
    QPainterPath p;
    p.addPolygon(outline);
    p.closeSubpath();
    QPainterPathStroker stroker;
    stroker.setWidth(2 * radius);
    stroker.setJoinStyle(Qt::RoundJoin);
    return (p + stroker.createStroke(p)).simplified();
}

void ambulance(QPainter& painter) {
    skyAndRoad(painter);
    const QPainterPath body = bodyPath(
        QPolygonF({{9, 30}, {66, 30}, {74, 30}, {84, 48}, {91, 52}, {91, 78}, {9, 78}}), 3);
    softShadow(painter, body, QPointF(0, 3), 3, QColor(0, 0, 0, 70));
    glossyFill(painter, body, QColor(250, 250, 250), 1.4);
    painter.fillRect(QRectF(7, 60, 86, 5), QColor(225, 30, 40));
    QPainterPath cabWindow;
    cabWindow.addPolygon(QPolygonF({{70, 35}, {74, 35}, {82, 50}, {70, 50}}));
    cabWindow.closeSubpath();
    windowPane(painter, cabWindow);
    // The red cross on the side of the box.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(225, 30, 40));
    painter.drawRect(QRectF(31, 36, 8, 22));
    painter.drawRect(QRectF(24, 43, 22, 8));
    beacon(painter, QPointF(60, 28), QColor(40, 110, 255));
    // The back door of the box.
    painter.setPen(QPen(QColor(190, 190, 200), 0.8));
    painter.drawLine(QPointF(52, 33), QPointF(52, 59));
    lampsAndBumpers(painter, 8, 92, 79);
    wheelInArch(painter, body, QPointF(26, 79), 9);
    wheelInArch(painter, body, QPointF(75, 79), 9);
}

void fireEngine(QPainter& painter) {
    skyAndRoad(painter);
    const QPainterPath body = bodyPath(
        QPolygonF({{6, 44}, {70, 44}, {70, 32}, {82, 32}, {93, 50}, {93, 78}, {6, 78}}), 2.5);
    softShadow(painter, body, QPointF(0, 3), 3, QColor(0, 0, 0, 70));
    glossyFill(painter, body, QColor(225, 25, 30), 1.4);
    QPainterPath cabWindow;
    cabWindow.addPolygon(QPolygonF({{74, 36}, {81, 36}, {88, 50}, {74, 50}}));
    cabWindow.closeSubpath();
    windowPane(painter, cabWindow);
    // Lockers and a white stripe along the body.
    painter.fillRect(QRectF(4, 62, 91, 4), QColor(250, 250, 250));
    painter.setPen(QPen(QColor(150, 20, 25), 1));
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 3; ++i) painter.drawRoundedRect(QRectF(10 + i * 19, 48, 16, 12), 2, 2);
    // The ladder on the roof.
    painter.setPen(QPen(QColor(200, 200, 210), 2.2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(4, 36), QPointF(72, 36));
    painter.drawLine(QPointF(4, 41), QPointF(72, 41));
    painter.setPen(QPen(QColor(170, 170, 180), 1.6, Qt::SolidLine, Qt::RoundCap));
    for (double x = 7; x < 72; x += 6) painter.drawLine(QPointF(x, 36), QPointF(x, 41));
    beacon(painter, QPointF(77, 31), QColor(40, 110, 255));
    lampsAndBumpers(painter, 5, 94, 79);
    wheelInArch(painter, body, QPointF(20, 79), 8.5);
    wheelInArch(painter, body, QPointF(38, 79), 8.5);
    wheelInArch(painter, body, QPointF(79, 79), 8.5);
}

void policeCar(QPainter& painter) {
    skyAndRoad(painter);
    QPainterPath body;
    body.moveTo(6, 70);
    body.lineTo(6, 58);
    body.quadTo(7, 52, 18, 51);
    body.lineTo(28, 50);
    body.lineTo(37, 38);
    body.quadTo(39, 36, 43, 36);
    body.lineTo(64, 36);
    body.quadTo(68, 36, 70, 39);
    body.lineTo(78, 50);
    body.lineTo(89, 52);
    body.quadTo(95, 54, 95, 60);
    body.lineTo(95, 70);
    body.quadTo(95, 76, 89, 76);
    body.lineTo(12, 76);
    body.quadTo(6, 76, 6, 70);
    body.closeSubpath();
    softShadow(painter, body, QPointF(0, 3), 3, QColor(0, 0, 0, 70));
    glossyFill(painter, body, QColor(250, 250, 252), 1.4);
    // Blue-and-yellow chequered band along the doors.
    painter.save();
    painter.setClipPath(body);
    for (int i = 0; i < 12; ++i) {
        const QColor c = (i % 2 == 0) ? QColor(25, 70, 200) : QColor(255, 215, 0);
        painter.fillRect(QRectF(4 + i * 8, 58, 8, 4.5), c);
        painter.fillRect(QRectF(4 + i * 8, 62.5, 8, 4.5),
                         (i % 2 == 0) ? QColor(255, 215, 0) : QColor(25, 70, 200));
    }
    painter.restore();
    QPainterPath rear;
    rear.addPolygon(QPolygonF({{33, 49}, {40, 40}, {52, 40}, {52, 49}}));
    rear.closeSubpath();
    QPainterPath front;
    front.addPolygon(QPolygonF({{56, 40}, {66, 40}, {73, 49}, {56, 49}}));
    front.closeSubpath();
    windowPane(painter, rear);
    windowPane(painter, front);
    // The light bar: blue and red.
    QPainterPath blue;
    blue.addRoundedRect(QRectF(43, 30, 8, 6), 2, 2);
    QPainterPath red;
    red.addRoundedRect(QRectF(53, 30, 8, 6), 2, 2);
    glossyFill(painter, blue, QColor(30, 90, 255), 0.8);
    glossyFill(painter, red, QColor(235, 30, 40), 0.8);
    // Door lines and handles.
    painter.setPen(QPen(QColor(150, 155, 170), 0.8));
    painter.drawLine(QPointF(54, 40), QPointF(54, 74));
    painter.drawLine(QPointF(33, 50), QPointF(33, 74));
    painter.setPen(QPen(QColor(120, 125, 140), 1.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(45, 55), QPointF(49, 55));
    painter.drawLine(QPointF(65, 55), QPointF(69, 55));
    lampsAndBumpers(painter, 6, 95, 75);
    wheelInArch(painter, body, QPointF(24, 76), 9);
    wheelInArch(painter, body, QPointF(77, 76), 9);
}

void boat(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, 70);
    sky.setColorAt(0, QColor(110, 190, 255));
    sky.setColorAt(1, QColor(220, 242, 255));
    painter.fillRect(QRectF(0, 0, 100, 72), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 225, 60));
    painter.drawEllipse(QPointF(16, 16), 8, 8);

    // Mast and two sails.
    painter.setPen(QPen(QColor(120, 80, 40), 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(50, 12), QPointF(50, 66));
    QPainterPath mainSail;
    mainSail.moveTo(52, 12);
    mainSail.quadTo(70, 36, 80, 62);
    mainSail.lineTo(52, 62);
    mainSail.closeSubpath();
    QPainterPath jib;
    jib.moveTo(48, 18);
    jib.lineTo(48, 62);
    jib.lineTo(24, 62);
    jib.quadTo(36, 42, 48, 18);
    jib.closeSubpath();
    glossyFill(painter, mainSail, QColor(252, 252, 255), 1.2);
    glossyFill(painter, jib, QColor(255, 210, 60), 1.2);
    // A little flag at the top of the mast.
    QPainterPath flag;
    flag.moveTo(50, 8);
    flag.lineTo(59, 10.5);
    flag.lineTo(50, 13);
    flag.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(230, 30, 40));
    painter.drawPath(flag);

    QPainterPath hull;
    hull.moveTo(12, 64);
    hull.lineTo(90, 64);
    hull.quadTo(86, 74, 78, 80);
    hull.lineTo(24, 80);
    hull.quadTo(16, 74, 12, 64);
    hull.closeSubpath();
    glossyFill(painter, hull, QColor(220, 40, 45), 1.4);
    painter.fillRect(QRectF(14, 66, 75, 3), QColor(250, 250, 250));
    // Portholes.
    painter.setPen(QPen(QColor(250, 250, 250), 1.2));
    painter.setBrush(QColor(120, 190, 240));
    for (double x : {32.0, 46.0, 60.0, 74.0}) painter.drawEllipse(QPointF(x, 73.5), 2.4, 2.4);

    // Waves in front of the hull.
    QPainterPath sea;
    sea.moveTo(0, 76);
    for (int i = 0; i < 6; ++i) {
        const double x = i * 20;
        sea.quadTo(x + 5, 72, x + 10, 76);
        sea.quadTo(x + 15, 80, x + 20, 76);
    }
    sea.lineTo(100, 100);
    sea.lineTo(0, 100);
    sea.closeSubpath();
    QLinearGradient water(0, 72, 0, 100);
    water.setColorAt(0, QColor(40, 150, 230));
    water.setColorAt(1, QColor(10, 80, 170));
    painter.setPen(QPen(QColor(220, 240, 255), 1.4));
    painter.setBrush(water);
    painter.drawPath(sea);
    painter.setPen(QPen(QColor(200, 230, 255), 1.2, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 4; ++i) {
        const double x = 8 + i * 24;
        const double y = 88 + (i % 2) * 5;
        painter.drawArc(QRectF(x, y, 10, 5), 20 * 16, 140 * 16);
    }
}

}  // namespace

void drawVehicle(QPainter& painter, Vehicle vehicle) {
    switch (vehicle) {
        case Vehicle::Ambulance:
            return ambulance(painter);
        case Vehicle::FireEngine:
            return fireEngine(painter);
        case Vehicle::PoliceCar:
            return policeCar(painter);
        case Vehicle::Boat:
            return boat(painter);
    }
}

}  // namespace assets
