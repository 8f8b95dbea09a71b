// Given-cell markers: a small glossy square in the colour of the board region
// the cell belongs to, with a white edge so it stands out on any picture.
#include "markers.h"

#include <QFileInfo>

#include "catalogue.h"

namespace assets {

namespace {

SquareDrawer marker(QColor colour) {
    return [colour](QPainter& painter) {
        painter.fillRect(QRectF(0, 0, 100, 100), Qt::white);
        QPainterPath tile;
        tile.addRoundedRect(QRectF(11, 11, 78, 78), 16, 16);
        QLinearGradient shade(0, 11, 0, 89);
        shade.setColorAt(0, mix(colour, Qt::white, 0.35));
        shade.setColorAt(1, mix(colour, Qt::black, 0.15));
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade);
        painter.drawPath(tile);
        // A soft shine on the upper half.
        QPainterPath shine;
        shine.addRoundedRect(QRectF(22, 18, 56, 26), 12, 12);
        painter.setBrush(QColor(255, 255, 255, 70));
        painter.drawPath(shine);
    };
}

struct MarkerStyle {
    const char* name;
    int twips;
    std::uint32_t bbggrr;
};

// The 4x4 quarters and the 6x6 rectangles in the boards' region colours
// (written &H00BBGGRR&), and the 5x5 board's own dark-blue marker.
const MarkerStyle kMarkers[] = {
    {"corner1.jpg", 240, 0x00C00000},    {"corner2.jpg", 240, 0x00C0C000},
    {"corner3.jpg", 240, 0x000080FF},    {"corner4.jpg", 240, 0x0000C000},
    {"corner6x61.jpg", 150, 0x000080FF}, {"corner6x62.jpg", 150, 0x00C0C000},
    {"corner6x63.jpg", 150, 0x0000C000}, {"corner6x64.jpg", 150, 0x000000C0},
    {"corner6x65.jpg", 150, 0x008080FF}, {"corner6x66.jpg", 150, 0x00C00000},
    {"marker5x5.jpg", 240, 0x00C00000},
};

}  // namespace

SquareDrawer markerPicture(const std::string& path) {
    const QString name = QFileInfo(QString::fromStdString(path).replace('\\', '/')).fileName();
    for (const MarkerStyle& style : kMarkers)
        if (name.compare(style.name, Qt::CaseInsensitive) == 0)
            return marker(bgrColor(style.bbggrr));
    return marker(Qt::gray);
}

std::vector<PictureFile> markerFiles() {
    std::vector<PictureFile> files;
    for (const MarkerStyle& style : kMarkers) {
        const int pixels = jpegPixels(style.twips);
        const SquareDrawer draw = marker(bgrColor(style.bbggrr));
        files.push_back({QString("Images/") + style.name, pixels, pixels,
                         [pixels, draw] { return paintSquare(pixels, draw); }});
    }
    return files;
}

}  // namespace assets
