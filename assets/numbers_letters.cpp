// Numbers 1-6 and letters A-F: a chunky white character with a dark edge on
// a tile of its own bright colour.
#include <array>

#include "canvas.h"
#include "glyphs.h"
#include "pictures.h"

namespace assets {

namespace {

const std::array<QColor, 6> kNumberColours = {
    QColor(230, 40, 50), QColor(255, 140, 0),  QColor(235, 190, 0),
    QColor(40, 170, 60), QColor(30, 110, 230), QColor(150, 60, 210),
};
const std::array<QColor, 6> kLetterColours = {
    QColor(0, 165, 165), QColor(235, 60, 150), QColor(120, 190, 30),
    QColor(75, 70, 205), QColor(245, 120, 20), QColor(0, 150, 235),
};

void drawCharacterTile(QPainter& painter, char c, QColor colour) {
    tileBackground(painter, mix(colour, Qt::white, 0.25), mix(colour, Qt::black, 0.1));
    // A lighter disc behind the character, like a sticker.
    QRadialGradient glow(QPointF(50, 45), 48);
    glow.setColorAt(0, QColor(255, 255, 255, 90));
    glow.setColorAt(1, QColor(255, 255, 255, 0));
    painter.fillRect(QRectF(0, 0, 100, 100), glow);

    const double stroke = 21;
    QPainterPath outline = glyphOutline(c, stroke);
    const double height = 100;
    const double scale = 0.72;
    const double width = glyph(c).advance;
    QTransform place;
    place.translate(50 - width * scale / 2, 50 - height * scale / 2);
    place.scale(scale, scale);
    outline = place.map(outline);

    softShadow(painter, outline, QPointF(2, 3), 4, QColor(0, 0, 0, 110));
    painter.setPen(
        QPen(mix(colour, Qt::black, 0.55), 3.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QLinearGradient fill(0, 15, 0, 85);
    fill.setColorAt(0, Qt::white);
    fill.setColorAt(1, QColor(232, 236, 246));
    painter.setBrush(fill);
    painter.drawPath(outline);
}

}  // namespace

void drawNumber(QPainter& painter, int number) {
    drawCharacterTile(painter, char('0' + number), kNumberColours[(number - 1) % 6]);
}

void drawLetter(QPainter& painter, char letter) {
    drawCharacterTile(painter, letter, kLetterColours[(letter - 'A') % 6]);
}

}  // namespace assets
