// Playing-card suits: a big suit sign on a white card, small signs in two
// corners, the card lying on green baize.
#include "canvas.h"
#include "pictures.h"

namespace assets {

namespace {

// Suit signs in a box of -1..1 around the origin.
QPainterPath heart() {
    QPainterPath p;
    p.moveTo(0, 1);
    p.cubicTo(-0.55, 0.55, -1.05, 0.15, -1.0, -0.38);
    p.cubicTo(-0.95, -0.95, -0.2, -1.05, 0, -0.55);
    p.cubicTo(0.2, -1.05, 0.95, -0.95, 1.0, -0.38);
    p.cubicTo(1.05, 0.15, 0.55, 0.55, 0, 1);
    p.closeSubpath();
    return p;
}

QPainterPath diamond() {
    QPainterPath p;
    p.moveTo(0, -1);
    p.quadTo(0.35, -0.4, 0.78, 0);
    p.quadTo(0.35, 0.4, 0, 1);
    p.quadTo(-0.35, 0.4, -0.78, 0);
    p.quadTo(-0.35, -0.4, 0, -1);
    p.closeSubpath();
    return p;
}

QPainterPath stem() {
    QPainterPath p;
    p.moveTo(0, 0.15);
    p.quadTo(0.1, 0.75, 0.42, 1.0);
    p.lineTo(-0.42, 1.0);
    p.quadTo(-0.1, 0.75, 0, 0.15);
    p.closeSubpath();
    return p;
}

QPainterPath spade() {
    QPainterPath p;
    p.moveTo(0, -1);
    p.cubicTo(0.45, -0.55, 1.05, -0.2, 0.98, 0.25);
    p.cubicTo(0.93, 0.72, 0.3, 0.8, 0, 0.38);
    p.cubicTo(-0.3, 0.8, -0.93, 0.72, -0.98, 0.25);
    p.cubicTo(-1.05, -0.2, -0.45, -0.55, 0, -1);
    p.closeSubpath();
    return (p + stem()).simplified();
}

QPainterPath club() {
    QPainterPath p;
    p.addEllipse(QPointF(0, -0.5), 0.44, 0.44);
    p.addEllipse(QPointF(-0.5, 0.22), 0.44, 0.44);
    p.addEllipse(QPointF(0.5, 0.22), 0.44, 0.44);
    p.addRect(QRectF(-0.2, -0.3, 0.4, 0.6));
    p.setFillRule(Qt::WindingFill);
    return (p.simplified() + stem()).simplified();
}

QPainterPath suitSign(Suit suit) {
    switch (suit) {
        case Suit::Clubs:
            return club();
        case Suit::Spades:
            return spade();
        case Suit::Diamonds:
            return diamond();
        case Suit::Hearts:
            return heart();
    }
    return {};
}

QPainterPath placed(const QPainterPath& sign, QPointF centre, double halfSize) {
    QTransform t;
    t.translate(centre.x(), centre.y());
    t.scale(halfSize, halfSize);
    return t.map(sign);
}

// Each suit's card lies on its own colour of baize, so clubs and spades (both
// black) tell apart at a glance as well as by shape.
QColor baize(Suit suit) {
    switch (suit) {
        case Suit::Clubs:
            return QColor(30, 140, 70);
        case Suit::Spades:
            return QColor(40, 100, 200);
        case Suit::Diamonds:
            return QColor(245, 165, 20);
        case Suit::Hearts:
            return QColor(170, 60, 190);
    }
    return Qt::darkGreen;
}

}  // namespace

void drawCard(QPainter& painter, Suit suit) {
    const QColor table = baize(suit);
    tileBackground(painter, mix(table, Qt::white, 0.25), table);
    const QRectF cardRect(19, 7, 62, 86);
    QPainterPath card;
    card.addRoundedRect(cardRect, 7, 7);
    softShadow(painter, card, QPointF(2, 3), 5, QColor(0, 0, 0, 120));
    QLinearGradient paper(cardRect.topLeft(), cardRect.bottomRight());
    paper.setColorAt(0, Qt::white);
    paper.setColorAt(1, QColor(238, 238, 242));
    painter.setPen(QPen(QColor(170, 170, 180), 1));
    painter.setBrush(paper);
    painter.drawPath(card);

    const bool red = suit == Suit::Diamonds || suit == Suit::Hearts;
    const QColor ink = red ? QColor(215, 25, 45) : QColor(25, 25, 35);
    const QPainterPath sign = suitSign(suit);
    painter.setPen(Qt::NoPen);
    QLinearGradient shine(30, 25, 70, 80);
    shine.setColorAt(0, mix(ink, Qt::white, 0.3));
    shine.setColorAt(1, ink);
    painter.setBrush(shine);
    painter.drawPath(placed(sign, QPointF(50, 51), 22));
    painter.setBrush(ink);
    painter.drawPath(placed(sign, QPointF(28, 18), 6));
    painter.save();
    painter.translate(72, 82);
    painter.rotate(180);
    painter.drawPath(placed(sign, QPointF(0, 0), 6));
    painter.restore();
}

}  // namespace assets
