// Title, options and rules artwork: the logo on white with a few of the
// game's pictures around it, the board logo, the opening picture and the
// mascot panels.
#include "artwork.h"

#include <array>
#include <cmath>

#include "canvas.h"
#include "catalogue.h"
#include "cursor.h"
#include "glyphs.h"
#include "pictures.h"
#include "tables/geometry.h"
#include "tables/pictures.h"

namespace assets {

namespace {

const std::array<QColor, 7> kLetterColours = {
    QColor(235, 40, 50),  QColor(255, 140, 0), QColor(245, 200, 0),  QColor(40, 180, 60),
    QColor(20, 160, 220), QColor(60, 80, 220), QColor(170, 60, 210),
};

// One of the game's pictures as a tilted sticker with a white border.
void sticker(QPainter& painter, QPointF centre, double side, double degrees,
             const SquareDrawer& draw) {
    painter.save();
    painter.translate(centre);
    painter.rotate(degrees);
    QPainterPath border;
    border.addRoundedRect(QRectF(-side / 2 - 3, -side / 2 - 3, side + 6, side + 6), 6, 6);
    softShadow(painter, border, QPointF(1.5, 2.5), 4, QColor(0, 0, 0, 80));
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawPath(border);
    QPainterPath inner;
    inner.addRoundedRect(QRectF(-side / 2, -side / 2, side, side), 4, 4);
    painter.setClipPath(inner);
    painter.translate(-side / 2, -side / 2);
    painter.scale(side / 100, side / 100);
    draw(painter);
    painter.restore();
}

// White-on-colour banner art: logo with stickers left and right.
SquareDrawer titleBanner(double logicalWidth) {
    return [logicalWidth](QPainter& painter) {
        const double w = logicalWidth;
        painter.fillRect(QRectF(0, 0, w, 100), Qt::white);
        // Confetti dots in the game's colours, placed on a fixed pattern.
        for (int i = 0; i < 26; ++i) {
            const double x = std::fmod(37.0 * i * 1.618, w);
            const double y = std::fmod(23.0 * i * 2.414, 100.0);
            painter.setPen(Qt::NoPen);
            QColor c = kLetterColours[i % kLetterColours.size()];
            c.setAlpha(60);
            painter.setBrush(c);
            painter.drawEllipse(QPointF(x, y), 2.2 + (i % 3), 2.2 + (i % 3));
        }
        sticker(painter, QPointF(22, 30), 25, -12, [](QPainter& p) { drawDie(p, 5); });
        sticker(painter, QPointF(25, 71), 23, 9, [](QPainter& p) { drawShape(p, Shape::Star); });
        sticker(painter, QPointF(w - 23, 30), 25, 10,
                [](QPainter& p) { drawCard(p, Suit::Hearts); });
        sticker(painter, QPointF(w - 25, 71), 23, -8, [](QPainter& p) { drawFace(p, Face::Tovi); });
        drawLogoWord(painter, QRectF(44, 8, w - 88, 84));
    };
}

SquareDrawer boardLogo(double logicalWidth) {
    return [logicalWidth](QPainter& painter) {
        const double w = logicalWidth;
        QLinearGradient sky(0, 0, 0, 100);
        sky.setColorAt(0, QColor(255, 255, 255));
        sky.setColorAt(1, QColor(225, 238, 255));
        painter.fillRect(QRectF(0, 0, w, 100), sky);
        drawLogoWord(painter, QRectF(6, 6, w - 12, 88));
    };
}

// The hand pointer, drawn large with its fingertip at `tip`.
void drawHand(QPainter& painter, QPointF tip, double size) {
    painter.save();
    const double scale = size / kCursorSide;
    painter.translate(tip - QPointF(kHandHotSpot) * scale);
    painter.scale(scale, scale);
    QPainterPath whole;
    for (const QPainterPath& part : handParts()) whole.addPath(part);
    whole.setFillRule(Qt::WindingFill);
    softShadow(painter, whole.simplified(), QPointF(0.8, 1.2), 1.5, QColor(0, 0, 0, 90));
    painter.setPen(QPen(Qt::black, 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    for (const QPainterPath& part : handParts()) painter.drawPath(part);
    painter.restore();
}

// A miniature 4x4 board in its coloured quarters, partly filled, with the
// last star being dragged into its cell by the hand.
void drawOpening(QPainter& painter) {
    QRadialGradient backdrop(QPointF(50, 45), 80);
    backdrop.setColorAt(0, QColor(255, 255, 255));
    backdrop.setColorAt(1, QColor(210, 228, 255));
    painter.fillRect(QRectF(0, 0, 100, 100), backdrop);
    const auto& quarters = tables::boardGeometry(0).regions;
    const Shape shapes[] = {Shape::Polygon, Shape::Triangle, Shape::Star, Shape::Square};
    // A solved grid: rows, columns, diagonals and quarters all differ.
    const int grid[4][4] = {{0, 1, 2, 3}, {2, 3, 0, 1}, {3, 2, 1, 0}, {1, 0, 3, 2}};
    const bool shown[4][4] = {{true, false, true, true},
                              {false, true, true, false},
                              {true, true, false, true},
                              {true, false, true, false}};
    const double origin = 9;
    const double pitch = 19;
    const double cell = 16.5;
    const double edge = 2.5;
    const QRectF boardRect(origin - edge, origin - edge, 4 * pitch - pitch + cell + 2 * edge,
                           4 * pitch - pitch + cell + 2 * edge);
    QPainterPath board;
    board.addRoundedRect(boardRect, 3, 3);
    softShadow(painter, board, QPointF(1.5, 2.5), 4);
    const double half = boardRect.width() / 2;
    for (int q = 0; q < 4; ++q) {
        painter.fillRect(
            QRectF(boardRect.left() + (q % 2) * half, boardRect.top() + (q / 2) * half, half, half),
            bgrColor(quarters[q].colour));
    }
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            const QRectF r(origin + x * pitch, origin + y * pitch, cell, cell);
            painter.fillRect(r, QColor(255, 255, 255, 90));
            if (!shown[y][x]) continue;
            painter.save();
            painter.translate(r.topLeft());
            painter.scale(cell / 100, cell / 100);
            drawShape(painter, shapes[grid[y][x]]);
            painter.restore();
        }
    }
    // The bottom-right cell's star, on its way in.
    const QPointF target(origin + 3 * pitch + cell / 2, origin + 3 * pitch + cell / 2);
    const QPointF held = target + QPointF(8, 9);
    sticker(painter, held, 17, 6, [](QPainter& p) { drawShape(p, Shape::Star); });
    drawHand(painter, held + QPointF(1, 1), 22);
}

SquareDrawer mascotPanel(double logicalHeight) {
    return [logicalHeight](QPainter& painter) {
        QLinearGradient sky(0, 0, 0, logicalHeight);
        sky.setColorAt(0, QColor(255, 255, 255));
        sky.setColorAt(1, QColor(215, 235, 255));
        painter.fillRect(QRectF(0, 0, 100, logicalHeight), sky);
        drawMascot(painter, QRectF(4, 4, 92, logicalHeight - 8));
    };
}

PictureFile artFile(const tables::ScreenPicture& picture, std::function<SquareDrawer(double)> make,
                    bool byWidth) {
    const int w = tables::picturePixels(picture.width);
    const int h = tables::picturePixels(picture.height);
    // Wide art uses a logical height of 100, tall art a logical width of 100.
    const double lw = byWidth ? 100.0 * w / h : 100.0;
    const double lh = byWidth ? 100.0 : 100.0 * h / w;
    const SquareDrawer draw = make(byWidth ? lw : lh);
    return {gameFilePath(picture.path), w, h, [=] { return paintBox(w, h, lw, lh, draw); }};
}

}  // namespace

void drawLogoWord(QPainter& painter, const QRectF& box) {
    const std::string word = "Pimbalo";
    const SetWord set = setWord(word, 20, 6);
    const double scale = std::min(box.width() / set.width, box.height() / 122.0);
    painter.save();
    painter.translate(box.center().x() - set.width * scale / 2, box.center().y() - 100 * scale / 2);
    painter.scale(scale, scale);
    for (size_t i = 0; i < set.letters.size(); ++i) {
        // Letters bounce: every other one a little higher and tilted.
        QTransform bounce;
        const QPointF mid = set.letters[i].boundingRect().center();
        bounce.translate(mid.x(), mid.y() + (i % 2 ? 5 : -5));
        bounce.rotate(i % 2 ? 5 : -5);
        bounce.translate(-mid.x(), -mid.y());
        const QPainterPath letter = bounce.map(set.letters[i]);
        const QColor colour = kLetterColours[i % kLetterColours.size()];
        QPainterPathStroker rim;
        rim.setWidth(14);
        rim.setJoinStyle(Qt::RoundJoin);
        const QPainterPath halo = (letter + rim.createStroke(letter)).simplified();
        softShadow(painter, halo, QPointF(3, 5), 6, QColor(0, 0, 0, 90));
        painter.setPen(QPen(QColor(40, 40, 70), 3));
        painter.setBrush(Qt::white);
        painter.drawPath(halo);
        glossyFill(painter, letter, colour, 0);
        // A little shine on each letter.
        painter.save();
        painter.setClipPath(letter);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 255, 255, 80));
        painter.drawRect(QRectF(letter.boundingRect().left(), letter.boundingRect().top(),
                                letter.boundingRect().width(),
                                letter.boundingRect().height() * 0.35));
        painter.restore();
    }
    painter.restore();
}

void drawMascot(QPainter& painter, const QRectF& box) {
    // Designed in a 100 x 140 frame, fitted into the box.
    const double scale = std::min(box.width() / 100.0, box.height() / 140.0);
    painter.save();
    painter.translate(box.center().x() - 50 * scale, box.center().y() - 70 * scale);
    painter.scale(scale, scale);
    const QColor body(90, 110, 240);
    const QPen ink(QColor(30, 30, 70), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);

    // Feet.
    painter.setPen(ink);
    painter.setBrush(QColor(255, 150, 30));
    painter.drawEllipse(QPointF(36, 131), 13, 6);
    painter.drawEllipse(QPointF(64, 131), 13, 6);
    // Both arms come from behind the body: one waving, one holding up a star.
    auto arm = [&](QPointF shoulder, QPointF hand) {
        painter.setPen(QPen(QColor(30, 30, 70), 9.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(shoulder, hand);
        painter.setPen(QPen(body, 6.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(shoulder, hand);
        painter.setPen(ink);
        painter.setBrush(mix(body, Qt::white, 0.3));
        painter.drawEllipse(hand, 5.5, 5.5);
    };
    arm(QPointF(74, 80), QPointF(86, 44));
    arm(QPointF(24, 82), QPointF(9, 62));
    // Body.
    QPainterPath torso;
    torso.addEllipse(QPointF(50, 86), 34, 42);
    softShadow(painter, torso, QPointF(2, 3), 5);
    glossyFill(painter, torso, body, 2.2);
    // Tummy.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(215, 225, 255));
    painter.drawEllipse(QPointF(50, 102), 21, 21);
    // Eyes and smile.
    for (double x : {38.0, 62.0}) {
        painter.setPen(ink);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(x, 66), 9, 11);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(25, 25, 50));
        painter.drawEllipse(QPointF(x + 2, 68), 4.5, 5.5);
        painter.setBrush(Qt::white);
        painter.drawEllipse(QPointF(x + 0.5, 65.5), 1.6, 1.6);
    }
    QPainterPath smile;
    smile.moveTo(38, 82);
    smile.cubicTo(42, 93, 58, 93, 62, 82);
    smile.quadTo(50, 86, 38, 82);
    painter.setPen(ink);
    painter.setBrush(QColor(220, 50, 80));
    painter.drawPath(smile);
    QRadialGradient blush(QPointF(27, 80), 6);
    blush.setColorAt(0, QColor(255, 120, 160, 160));
    blush.setColorAt(1, QColor(255, 120, 160, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(blush);
    painter.drawEllipse(QPointF(27, 80), 6, 6);
    blush.setCenter(QPointF(73, 80));
    blush.setFocalPoint(QPointF(73, 80));
    painter.setBrush(blush);
    painter.drawEllipse(QPointF(73, 80), 6, 6);
    // Antenna with a bobble.
    painter.setPen(QPen(QColor(30, 30, 70), 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath stalk;
    stalk.moveTo(50, 45);
    stalk.quadTo(44, 34, 52, 26);
    painter.drawPath(stalk);
    painter.setPen(ink);
    painter.setBrush(QColor(255, 80, 120));
    painter.drawEllipse(QPointF(53, 24), 5, 5);
    // The star held up high.
    painter.save();
    painter.translate(87, 29);
    painter.scale(0.28, 0.28);
    painter.translate(-50, -50);
    QPainterPath star;
    for (int i = 0; i < 10; ++i) {
        const double a = -M_PI / 2 + M_PI * i / 5;
        const double r = (i % 2 == 0) ? 46 : 20;
        const QPointF p(50 + r * std::cos(a), 50 + r * std::sin(a));
        if (i == 0)
            star.moveTo(p);
        else
            star.lineTo(p);
    }
    star.closeSubpath();
    glossyFill(painter, star, QColor(255, 200, 0), 6);
    painter.restore();
    painter.restore();
}

std::vector<PictureFile> artworkFiles() {
    return {
        artFile(tables::kTitlePicture, titleBanner, true),
        artFile(tables::kOptionsPicture, titleBanner, true),
        artFile(tables::kRulesPicture, titleBanner, true),
        artFile(tables::kBoardLogo, boardLogo, true),
        artFile(
            tables::kOpeningPicture, [](double) -> SquareDrawer { return drawOpening; }, false),
        artFile(tables::kTitleMascot, mascotPanel, false),
        artFile(tables::kMascot, mascotPanel, false),
    };
}

}  // namespace assets
