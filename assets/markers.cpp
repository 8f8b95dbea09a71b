// Given-cell markers: a small glossy square in the colour of the board region
// the cell belongs to, with a white edge so it stands out on any picture.
#include "markers.h"

#include <QFileInfo>

#include "catalogue.h"
#include "tables/geometry.h"

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

QString fileName(const std::string& path) {
    return QFileInfo(gameFilePath(path)).fileName();
}

}  // namespace

// Marker i of a board wears the colour of the board's region i (the 5x5
// board's one marker that of the region behind its whole grid).
SquareDrawer markerPicture(const std::string& path) {
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        for (int i = 0; i < board.markerPictures.size(); ++i)
            if (fileName(board.markerPictures[i]).compare(fileName(path), Qt::CaseInsensitive) == 0)
                return marker(bgrColor(board.regions[i].colour));
    }
    return marker(Qt::gray);
}

std::vector<PictureFile> markerFiles() {
    std::vector<PictureFile> files;
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        const int pixels = tables::picturePixels(board.marker.width);
        for (int i = 0; i < board.markerPictures.size(); ++i) {
            const SquareDrawer draw = marker(bgrColor(board.regions[i].colour));
            files.push_back({gameFilePath(board.markerPictures[i]), pixels, pixels,
                             [pixels, draw] { return paintSquare(pixels, draw); }});
        }
    }
    return files;
}

}  // namespace assets
