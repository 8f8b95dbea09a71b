// The picture sets of the three boards, drawn. A file named by several boards
// (the thumbnails) is drawn once.
#include "catalogue.h"

#include <QSet>

#include "pictures.h"
#include "tables/geometry.h"
#include "thumbnails.h"

namespace assets {

// Every kind's pictures are declared in the tables' order (pictures.h), so
// picture k of a kind is value k of its enumeration.
SquareDrawer setPicture(tables::SetKind kind, int k) {
    using K = tables::SetKind;
    switch (kind) {
        case K::Dice:
            return [k](QPainter& p) { drawDie(p, k + 1); };
        case K::Numbers:
            return [k](QPainter& p) { drawNumber(p, k + 1); };
        case K::Letters:
            return [k](QPainter& p) { drawLetter(p, char('A' + k)); };
        case K::Shapes:
            return [k](QPainter& p) { drawShape(p, Shape(k)); };
        case K::Patterns:
            return [k](QPainter& p) { drawPattern(p, Pattern(k)); };
        case K::Cards:
            return [k](QPainter& p) { drawCard(p, Suit(k)); };
        case K::Vehicles:
            return [k](QPainter& p) { drawVehicle(p, Vehicle(k)); };
        case K::Faces:
            return [k](QPainter& p) { drawFace(p, Face(k)); };
        case K::Flags:
            return [k](QPainter& p) { drawFlag(p, Flag(k)); };
        case K::Polyhedra:
            return [k](QPainter& p) { drawPolyhedron(p, Polyhedron(k)); };
    }
    return {};
}

QString gameFilePath(const std::string& path) {
    QString file = QString::fromStdString(path).replace('\\', '/');
    const QString folder = QStringLiteral("Images/");
    if (file.startsWith(folder, Qt::CaseInsensitive)) file.replace(0, folder.size(), folder);
    return file;
}

std::vector<PictureFile> pictureSetFiles() {
    std::vector<PictureFile> files;
    QSet<QString> seen;
    for (int board = 0; board < tables::kBoardSizes; ++board) {
        const int pixels = tables::symbolPixels(board);
        for (const tables::PictureSet& set : tables::catalogue(board)) {
            std::vector<SquareDrawer> drawings;
            for (int k = 0; k < set.symbols.size(); ++k) {
                const SquareDrawer draw = setPicture(set.kind, k);
                drawings.push_back(draw);
                files.push_back({gameFilePath(set.symbolPath(k + 1)), pixels, pixels,
                                 [pixels, draw] { return paintSquare(pixels, draw); }});
            }
            const QString thumbnail = gameFilePath(set.thumbnailPath());
            if (seen.contains(thumbnail)) continue;
            seen.insert(thumbnail);
            // A thumbnail shows the set's first four pictures.
            drawings.resize(std::min<size_t>(drawings.size(), 4));
            const int size = tables::thumbnailPixels(board);
            files.push_back({thumbnail, size, size,
                             [size, drawings] { return paintSquare(size, collage(drawings)); }});
        }
    }
    return files;
}

std::vector<PictureFile> allPictureFiles() {
    std::vector<PictureFile> files = pictureSetFiles();
    for (auto part : {markerFiles(), artworkFiles(), rulesExampleFiles()})
        files.insert(files.end(), part.begin(), part.end());
    return files;
}

}  // namespace assets
