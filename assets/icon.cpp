#include "icon.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QTransform>

#include "canvas.h"
#include "pictures.h"
#include "tables/geometry.h"

namespace assets {

namespace {

// One filled, outlined path; the fill runs along a line in colour stops.
struct Layer {
    QPainterPath path;
    QPointF from, to;
    QGradientStops stops;
    QColor outline;
    double outlineWidth = 0;
};

// The shapes' light-from-the-top-left look (see glossyFill).
Layer glossy(const QPainterPath& path, QColor base, double outline) {
    const QRectF box = path.boundingRect();
    return {path,
            box.topLeft(),
            box.bottomRight(),
            {{0, mix(base, Qt::white, 0.45)}, {0.45, base}, {1, mix(base, Qt::black, 0.25)}},
            mix(base, Qt::black, 0.45),
            outline};
}

std::vector<Layer> iconLayers() {
    std::vector<Layer> layers;
    QPainterPath rim;
    rim.addRoundedRect(QRectF(3, 3, 94, 94), 18, 18);
    layers.push_back(
        {rim, {0, 0}, {0, 100}, {{0, QColor(70, 70, 110)}, {1, QColor(30, 30, 60)}}, Qt::black, 0});

    QPainterPath board;
    board.addRoundedRect(QRectF(7, 7, 86, 86), 14, 14);
    // The 4x4 board's quarter colours, each quarter with one shape.
    const auto& quarters = tables::boardGeometry(0).regions;
    const Shape shapes[] = {Shape::Star, Shape::Triangle, Shape::Square, Shape::Polygon};
    for (int q = 0; q < 4; ++q) {
        const QPointF corner(7 + 43 * (q % 2), 7 + 43 * (q / 2));
        QPainterPath quarter;
        quarter.addRect(QRectF(corner, QSizeF(43, 43)));
        layers.push_back(glossy(board.intersected(quarter), bgrColor(quarters[q].colour), 0));

        QPainterPath tile;
        const QRectF tileBox(corner + QPointF(5, 5), QSizeF(33, 33));
        tile.addRoundedRect(tileBox, 6, 6);
        layers.push_back({tile,
                          tileBox.topLeft(),
                          tileBox.bottomLeft(),
                          {{0, Qt::white}, {1, QColor(225, 230, 240)}},
                          QColor(0, 0, 0, 70),
                          1});

        QTransform into;
        into.translate(tileBox.left() + 1.5, tileBox.top() + 1.5);
        into.scale(0.30, 0.30);
        layers.push_back(glossy(into.map(shapePath(shapes[q])), shapeColour(shapes[q]), 1.8));
    }
    return layers;
}

QString number(double v) {
    return QString::number(v, 'f', 2);
}

QString colour(const QColor& c) {
    return c.name(QColor::HexRgb);
}

QString svgPathData(const QPainterPath& path) {
    QString d;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element e = path.elementAt(i);
        if (e.type == QPainterPath::MoveToElement) {
            d += QStringLiteral("M%1 %2").arg(number(e.x), number(e.y));
        } else if (e.type == QPainterPath::LineToElement) {
            d += QStringLiteral("L%1 %2").arg(number(e.x), number(e.y));
        } else if (e.type == QPainterPath::CurveToElement) {
            const auto c2 = path.elementAt(i + 1);
            const auto end = path.elementAt(i + 2);
            d += QStringLiteral("C%1 %2 %3 %4 %5 %6")
                     .arg(number(e.x), number(e.y), number(c2.x), number(c2.y), number(end.x),
                          number(end.y));
            i += 2;
        }
    }
    return d;
}

}  // namespace

const std::vector<int>& iconSides() {
    static const std::vector<int> sides = {32, 48, 64, 128, 256};
    return sides;
}

QImage renderIcon(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 100.0, side / 100.0);
    for (const Layer& layer : iconLayers()) {
        QLinearGradient fill(layer.from, layer.to);
        fill.setStops(layer.stops);
        painter.setBrush(fill);
        painter.setPen(layer.outlineWidth > 0 ? QPen(layer.outline, layer.outlineWidth,
                                                     Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                                              : QPen(Qt::NoPen));
        painter.drawPath(layer.path);
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

QByteArray iconSvg() {
    QString defs, paths;
    int n = 0;
    for (const Layer& layer : iconLayers()) {
        const QString id = QStringLiteral("g%1").arg(n++);
        defs += QStringLiteral(
                    "<linearGradient id=\"%1\" gradientUnits=\"userSpaceOnUse\" "
                    "x1=\"%2\" y1=\"%3\" x2=\"%4\" y2=\"%5\">")
                    .arg(id, number(layer.from.x()), number(layer.from.y()), number(layer.to.x()),
                         number(layer.to.y()));
        for (const QGradientStop& stop : layer.stops)
            defs += QStringLiteral("<stop offset=\"%1\" stop-color=\"%2\"/>")
                        .arg(number(stop.first), colour(stop.second));
        defs += QStringLiteral("</linearGradient>\n");
        QString stroke = QStringLiteral("none");
        if (layer.outlineWidth > 0)
            stroke = QStringLiteral(
                         "%1\" stroke-opacity=\"%2\" stroke-width=\"%3\" "
                         "stroke-linejoin=\"round")
                         .arg(colour(layer.outline), number(layer.outline.alphaF()),
                              number(layer.outlineWidth));
        paths +=
            QStringLiteral("<path fill=\"url(#%1)\" fill-rule=\"%2\" stroke=\"%3\" d=\"%4\"/>\n")
                .arg(id,
                     layer.path.fillRule() == Qt::OddEvenFill ? QStringLiteral("evenodd")
                                                              : QStringLiteral("nonzero"),
                     stroke, svgPathData(layer.path));
    }
    const QString svg =
        QStringLiteral(
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" "
            "height=\"256\" viewBox=\"0 0 100 100\">\n<defs>\n%1</defs>\n%2</svg>\n")
            .arg(defs, paths);
    return svg.toUtf8();
}

}  // namespace assets
