#include "glyphs.h"

#include <QPainterPathStroker>

namespace assets {

namespace {

// A dot is a zero-length stroke: round caps turn it into a disc.
void dot(QPainterPath& path, double x, double y) {
    path.moveTo(x, y);
    path.lineTo(x, y + 0.01);
}

void bowl(QPainterPath& path, double cx, double cy, double rx, double ry) {
    path.addEllipse(QPointF(cx, cy), rx, ry);
}

}  // namespace

Glyph glyph(char c) {
    Glyph g;
    QPainterPath& p = g.centreLine;
    switch (c) {
        case '1':
            p.moveTo(16, 30);
            p.lineTo(42, 11);
            p.lineTo(42, 89);
            g.advance = 62;
            break;
        case '2':
            p.moveTo(14, 30);
            p.cubicTo(16, 4, 66, 4, 66, 30);
            p.cubicTo(66, 50, 40, 62, 14, 89);
            p.lineTo(70, 89);
            g.advance = 84;
            break;
        case '3':
            p.moveTo(14, 22);
            p.cubicTo(26, 5, 65, 6, 64, 30);
            p.cubicTo(63, 45, 50, 49, 36, 49);
            p.cubicTo(56, 49, 68, 56, 67, 70);
            p.cubicTo(66, 93, 25, 96, 12, 78);
            g.advance = 82;
            break;
        case '4':
            p.moveTo(52, 89);
            p.lineTo(52, 11);
            p.lineTo(12, 64);
            p.lineTo(72, 64);
            g.advance = 84;
            break;
        case '5':
            p.moveTo(64, 11);
            p.lineTo(23, 11);
            p.lineTo(19, 45);
            p.cubicTo(35, 35, 68, 38, 68, 63);
            p.cubicTo(68, 92, 26, 96, 12, 80);
            g.advance = 82;
            break;
        case '6':
            p.moveTo(60, 15);
            p.cubicTo(40, 3, 15, 16, 15, 62);
            bowl(p, 41, 64, 26, 25);
            g.advance = 82;
            break;
        case 'A':
            p.moveTo(10, 89);
            p.lineTo(42, 11);
            p.lineTo(74, 89);
            p.moveTo(23, 61);
            p.lineTo(61, 61);
            g.advance = 84;
            break;
        case 'B':
            p.moveTo(16, 89);
            p.lineTo(16, 11);
            p.lineTo(42, 11);
            p.cubicTo(68, 11, 68, 48, 42, 48);
            p.lineTo(16, 48);
            p.moveTo(42, 48);
            p.cubicTo(74, 48, 74, 89, 42, 89);
            p.lineTo(16, 89);
            g.advance = 80;
            break;
        case 'C':
            p.moveTo(70, 24);
            p.cubicTo(56, 3, 12, 6, 12, 50);
            p.cubicTo(12, 94, 56, 97, 70, 76);
            g.advance = 80;
            break;
        case 'D':
            p.moveTo(16, 11);
            p.lineTo(16, 89);
            p.lineTo(36, 89);
            p.cubicTo(80, 89, 80, 11, 36, 11);
            p.closeSubpath();
            g.advance = 80;
            break;
        case 'E':
            p.moveTo(64, 11);
            p.lineTo(16, 11);
            p.lineTo(16, 89);
            p.lineTo(64, 89);
            p.moveTo(16, 50);
            p.lineTo(54, 50);
            g.advance = 76;
            break;
        case 'F':
            p.moveTo(64, 11);
            p.lineTo(16, 11);
            p.lineTo(16, 89);
            p.moveTo(16, 50);
            p.lineTo(54, 50);
            g.advance = 76;
            break;
        case 'P':
            p.moveTo(16, 89);
            p.lineTo(16, 11);
            p.lineTo(40, 11);
            p.cubicTo(70, 11, 70, 54, 40, 54);
            p.lineTo(16, 54);
            g.advance = 74;
            break;
        case 'i':
            p.moveTo(16, 44);
            p.lineTo(16, 89);
            dot(p, 16, 17);
            g.advance = 32;
            break;
        case 'm':
            p.moveTo(14, 89);
            p.lineTo(14, 44);
            p.moveTo(14, 60);
            p.cubicTo(14, 38, 44, 38, 44, 60);
            p.lineTo(44, 89);
            p.moveTo(44, 60);
            p.cubicTo(44, 38, 74, 38, 74, 60);
            p.lineTo(74, 89);
            g.advance = 88;
            break;
        case 'b':
            p.moveTo(15, 11);
            p.lineTo(15, 89);
            bowl(p, 38, 66, 23, 23);
            g.advance = 72;
            break;
        case 'a':
            bowl(p, 35, 66, 22, 23);
            p.moveTo(57, 44);
            p.lineTo(57, 89);
            g.advance = 72;
            break;
        case 'l':
            p.moveTo(16, 11);
            p.lineTo(16, 89);
            g.advance = 32;
            break;
        case 'o':
            bowl(p, 36, 66, 23, 23);
            g.advance = 72;
            break;
        default:
            g.advance = 40;
            break;
    }
    return g;
}

QPainterPath glyphOutline(char c, double strokeWidth) {
    QPainterPathStroker stroker;
    stroker.setWidth(strokeWidth);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    // simplified() merges the overlapping strokes into one even-odd outline,
    // keeping the holes of 'o', 'b' and '6' open.
    return stroker.createStroke(glyph(c).centreLine).simplified();
}

SetWord setWord(const std::string& word, double strokeWidth, double spacing) {
    SetWord set;
    double pen = 0;
    for (char c : word) {
        set.letters.push_back(glyphOutline(c, strokeWidth).translated(pen, 0));
        pen += glyph(c).advance + spacing;
    }
    set.width = pen - spacing;
    return set;
}

}  // namespace assets
