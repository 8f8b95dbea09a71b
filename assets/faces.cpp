// Five cartoon characters, each with its own colours and silhouette:
// Tovi (sunny and smiling), Jebu (a goggle-eyed frog), Moustache (a gentleman
// with a huge moustache), Kramble (a crumpled grumpy monster) and Wuzzet
// (a fuzzy cat-eared furball).
#include <cmath>

#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

void backdrop(QPainter& painter, QColor colour) {
    QRadialGradient glow(QPointF(50, 40), 75);
    glow.setColorAt(0, mix(colour, Qt::white, 0.55));
    glow.setColorAt(1, colour);
    painter.fillRect(QRectF(0, 0, 100, 100), glow);
}

void eye(QPainter& painter, QPointF centre, double radius, QPointF look = QPointF(0.2, 0.1)) {
    painter.setPen(QPen(QColor(40, 30, 30), 1.2));
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, radius, radius * 1.12);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 25, 35));
    const QPointF pupil = centre + look * radius;
    painter.drawEllipse(pupil, radius * 0.5, radius * 0.55);
    painter.setBrush(Qt::white);
    painter.drawEllipse(pupil + QPointF(-radius * 0.18, -radius * 0.2), radius * 0.16,
                        radius * 0.16);
}

void cheek(QPainter& painter, QPointF centre, double radius) {
    QRadialGradient blush(centre, radius);
    blush.setColorAt(0, QColor(255, 90, 110, 150));
    blush.setColorAt(1, QColor(255, 90, 110, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(blush);
    painter.drawEllipse(centre, radius, radius);
}

QPen inkPen(double width) {
    return QPen(QColor(60, 30, 30), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void tovi(QPainter& painter) {
    backdrop(painter, QColor(90, 180, 250));
    QPainterPath head;
    head.addEllipse(QPointF(50, 54), 36, 36);
    softShadow(painter, head, QPointF(1.5, 3), 4);
    glossyFill(painter, head, QColor(255, 205, 40), 1.8);
    // A curl of hair on top.
    painter.setPen(inkPen(3));
    painter.setBrush(Qt::NoBrush);
    QPainterPath curl;
    curl.moveTo(48, 19);
    curl.cubicTo(40, 6, 60, 4, 58, 14);
    curl.cubicTo(56, 20, 49, 15, 53, 11);
    painter.drawPath(curl);
    eye(painter, QPointF(38, 47), 7);
    eye(painter, QPointF(62, 47), 7);
    cheek(painter, QPointF(29, 62), 7);
    cheek(painter, QPointF(71, 62), 7);
    QPainterPath smile;
    smile.moveTo(34, 62);
    smile.cubicTo(38, 80, 62, 80, 66, 62);
    smile.quadTo(50, 67, 34, 62);
    smile.closeSubpath();
    painter.setPen(inkPen(1.8));
    painter.setBrush(QColor(190, 40, 60));
    painter.drawPath(smile);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 130, 150));
    painter.drawEllipse(QPointF(50, 72), 7, 3.5);
}

void jebu(QPainter& painter) {
    backdrop(painter, QColor(255, 170, 60));
    QPainterPath head;
    head.addEllipse(QPointF(50, 60), 40, 30);
    head.addEllipse(QPointF(31, 33), 14, 14);
    head.addEllipse(QPointF(69, 33), 14, 14);
    head.setFillRule(Qt::WindingFill);
    head = head.simplified();
    softShadow(painter, head, QPointF(1.5, 3), 4);
    glossyFill(painter, head, QColor(70, 190, 60), 1.8);
    eye(painter, QPointF(31, 32), 9.5, QPointF(0.25, 0.2));
    eye(painter, QPointF(69, 32), 9.5, QPointF(-0.25, 0.2));
    // Two nostrils and a wide grin.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 90, 30));
    painter.drawEllipse(QPointF(45, 55), 1.8, 1.4);
    painter.drawEllipse(QPointF(55, 55), 1.8, 1.4);
    painter.setPen(inkPen(2.6));
    painter.setBrush(Qt::NoBrush);
    QPainterPath grin;
    grin.moveTo(20, 62);
    grin.cubicTo(34, 80, 66, 80, 80, 62);
    painter.drawPath(grin);
    cheek(painter, QPointF(22, 70), 6);
    cheek(painter, QPointF(78, 70), 6);
}

void moustache(QPainter& painter) {
    backdrop(painter, QColor(120, 210, 120));
    QPainterPath head;
    head.addEllipse(QPointF(50, 56), 32, 36);
    softShadow(painter, head, QPointF(1.5, 3), 4);
    glossyFill(painter, head, QColor(255, 195, 160), 1.6);
    // Ears.
    painter.setPen(inkPen(1.4));
    painter.setBrush(QColor(250, 180, 145));
    painter.drawEllipse(QPointF(18, 58), 6, 9);
    painter.drawEllipse(QPointF(82, 58), 6, 9);
    // A black bowler hat.
    QPainterPath hat;
    hat.moveTo(28, 30);
    hat.cubicTo(28, 4, 72, 4, 72, 30);
    hat.closeSubpath();
    QPainterPath brim;
    brim.addRoundedRect(QRectF(16, 27, 68, 8), 4, 4);
    glossyFill(painter, hat, QColor(45, 45, 55), 1.2);
    glossyFill(painter, brim, QColor(35, 35, 45), 1.2);
    painter.fillRect(QRectF(29, 23, 42, 4), QColor(180, 40, 40));
    eye(painter, QPointF(39, 47), 5.5);
    eye(painter, QPointF(61, 47), 5.5);
    // Bushy eyebrows.
    painter.setPen(inkPen(3));
    painter.drawLine(QPointF(32, 39), QPointF(45, 38));
    painter.drawLine(QPointF(55, 38), QPointF(68, 39));
    // A big round nose.
    painter.setPen(inkPen(1.2));
    painter.setBrush(QColor(240, 140, 120));
    painter.drawEllipse(QPointF(50, 58), 7, 6);
    // The great handlebar moustache with curled tips.
    QPainterPath tache;
    tache.moveTo(50, 63);
    tache.cubicTo(42, 58, 30, 60, 24, 68);
    tache.cubicTo(18, 74, 10, 70, 12, 62);
    tache.cubicTo(13, 58, 18, 58, 18, 62);
    tache.cubicTo(20, 76, 40, 78, 50, 70);
    tache.cubicTo(60, 78, 80, 76, 82, 62);
    tache.cubicTo(82, 58, 87, 58, 88, 62);
    tache.cubicTo(90, 70, 82, 74, 76, 68);
    tache.cubicTo(70, 60, 58, 58, 50, 63);
    tache.closeSubpath();
    glossyFill(painter, tache, QColor(80, 45, 25), 1.0);
    painter.setPen(inkPen(2));
    painter.drawLine(QPointF(44, 80), QPointF(56, 80));
}

void kramble(QPainter& painter) {
    backdrop(painter, QColor(250, 220, 70));
    // A lumpy, crumpled head.
    QPainterPath head;
    const int lumps = 14;
    for (int i = 0; i <= lumps; ++i) {
        const double a = 2 * M_PI * i / lumps;
        const double r = 36 + ((i % 2) ? 3.5 : -1.5);
        const QPointF p(50 + r * std::cos(a), 57 + r * 0.92 * std::sin(a));
        if (i == 0)
            head.moveTo(p);
        else
            head.quadTo(QPointF(50 + (r + 5) * std::cos(a - M_PI / lumps),
                                57 + (r + 5) * 0.92 * std::sin(a - M_PI / lumps)),
                        p);
    }
    head.closeSubpath();
    // Wild spiky hair.
    QPainterPath hair;
    hair.moveTo(20, 34);
    const double spikes[][2] = {{22, 10}, {32, 26}, {38, 4},  {46, 24}, {54, 3},
                                {60, 24}, {68, 6},  {72, 26}, {82, 12}, {80, 34}};
    for (const auto& s : spikes) hair.lineTo(s[0], s[1]);
    hair.closeSubpath();
    glossyFill(painter, hair, QColor(230, 60, 40), 1.4);
    softShadow(painter, head, QPointF(1.5, 3), 4);
    glossyFill(painter, head, QColor(160, 90, 210), 1.8);
    // One big grumpy eyebrow over mismatched eyes.
    eye(painter, QPointF(38, 51), 8, QPointF(0.3, 0.25));
    eye(painter, QPointF(62, 52), 6, QPointF(-0.2, 0.25));
    painter.setPen(inkPen(4));
    painter.setBrush(Qt::NoBrush);
    QPainterPath brow;
    brow.moveTo(27, 38);
    brow.lineTo(50, 45);
    brow.lineTo(72, 40);
    painter.drawPath(brow);
    // A wobbly frown with one tooth.
    QPainterPath frown;
    frown.moveTo(32, 80);
    frown.cubicTo(38, 70, 44, 74, 50, 71);
    frown.cubicTo(56, 74, 62, 68, 68, 79);
    painter.setPen(inkPen(2.8));
    painter.drawPath(frown);
    painter.setPen(inkPen(1));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(46, 72, 5, 5));
}

void wuzzet(QPainter& painter) {
    backdrop(painter, QColor(190, 160, 250));
    // A fuzzy outline: many little tufts around a circle.
    QPainterPath fur;
    const int tufts = 40;
    for (int i = 0; i <= tufts; ++i) {
        const double a = 2 * M_PI * i / tufts;
        const double r = (i % 2) ? 40 : 35;
        const QPointF p(50 + r * std::cos(a), 56 + r * std::sin(a));
        if (i == 0)
            fur.moveTo(p);
        else
            fur.lineTo(p);
    }
    fur.closeSubpath();
    // Pointed cat ears.
    QPainterPath ears;
    ears.addPolygon(QPolygonF({{18, 36}, {20, 6}, {42, 22}}));
    ears.closeSubpath();
    ears.addPolygon(QPolygonF({{82, 36}, {80, 6}, {58, 22}}));
    ears.closeSubpath();
    const QColor orange(255, 140, 30);
    glossyFill(painter, ears, orange, 1.4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 180, 190));
    painter.drawPolygon(QPolygonF({{23, 30}, {24, 14}, {35, 23}}));
    painter.drawPolygon(QPolygonF({{77, 30}, {76, 14}, {65, 23}}));
    softShadow(painter, fur, QPointF(1.5, 3), 4);
    glossyFill(painter, fur, orange, 1.4);
    // A pale muzzle.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 235, 200));
    painter.drawEllipse(QPointF(50, 70), 17, 12);
    eye(painter, QPointF(37, 50), 8.5, QPointF(0.1, 0.1));
    eye(painter, QPointF(63, 50), 8.5, QPointF(-0.1, 0.1));
    painter.setBrush(QColor(230, 70, 110));
    painter.setPen(inkPen(1));
    QPainterPath nose;
    nose.moveTo(45, 63);
    nose.lineTo(55, 63);
    nose.lineTo(50, 68);
    nose.closeSubpath();
    painter.drawPath(nose);
    painter.setPen(inkPen(1.8));
    painter.setBrush(Qt::NoBrush);
    QPainterPath mouth;
    mouth.moveTo(42, 72);
    mouth.quadTo(46, 77, 50, 70);
    mouth.quadTo(54, 77, 58, 72);
    painter.drawPath(mouth);
    // Whiskers.
    painter.setPen(QPen(QColor(90, 50, 30), 1.1, Qt::SolidLine, Qt::RoundCap));
    for (int side : {-1, 1}) {
        for (int k = -1; k <= 1; ++k) {
            painter.drawLine(QPointF(50 + side * 16, 70 + k * 3),
                             QPointF(50 + side * 40, 66 + k * 7));
        }
    }
}

}  // namespace

void drawFace(QPainter& painter, Face face) {
    switch (face) {
        case Face::Tovi:
            return tovi(painter);
        case Face::Jebu:
            return jebu(painter);
        case Face::Moustache:
            return moustache(painter);
        case Face::Kramble:
            return kramble(painter);
        case Face::Wuzzet:
            return wuzzet(painter);
    }
}

}  // namespace assets
