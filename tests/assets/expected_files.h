#pragma once
// The picture files the game loads, written out here from the boards' and
// screens' own tables (not taken from the generator), with the pixel size each
// should have: twice the size of the control that shows it.
#include <QString>
#include <QStringList>
#include <vector>

struct ExpectedPicture {
    QString path;  // relative to the game folder
    int width, height;
};

struct ExpectedSet {
    QString folder;       // e.g. "Images/dice"
    QStringList symbols;  // file names, symbol 1 first
    int pixels;           // side of every symbol picture
};

inline int twoPixelsPer15Twips(int twips) {
    return 2 * twips / 15;
}

// The picture sets of one board (0 = 4x4, 1 = 5x5, 2 = 6x6), in catalogue order.
inline std::vector<ExpectedSet> expectedSets(int boardsize) {
    const int side = twoPixelsPer15Twips(boardsize == 0 ? 1560 : boardsize == 1 ? 1140 : 1020);
    const QString tag = QString("%1x%1").arg(boardsize + 4);
    auto sized = [&](const QStringList& names) {
        QStringList files;
        for (const QString& name : names) files << name + tag + ".jpg";
        return files;
    };
    auto numbered = [&](const QStringList& names) {
        QStringList files;
        for (const QString& name : names) files << name + "-" + tag + ".jpg";
        return files;
    };
    const QStringList shapes = {"polygon", "triangle", "star", "square", "rectangle", "doughnut"};
    const QStringList flags = {"uk", "usa", "sa", "germany", "australia", "france"};
    const QStringList faces = {"tovi", "jebu", "moustache", "kramble", "wuzzet"};
    const QStringList patterns = {"dots", "stripes", "tiles", "triangles", "link"};
    const QStringList solids = {"greatstell", "greaticos", "smallstell",
                                "tetra10",    "tetra5",    "greatdodec"};
    const int n = boardsize + 4;
    auto first = [n](const QStringList& all) { return all.mid(0, n); };
    const QStringList digits = {"1", "2", "3", "4", "5", "6"};
    const QStringList capitals = {"A", "B", "C", "D", "E", "F"};
    switch (boardsize) {
        case 0:
            return {{"Images/polyhedra",
                     {"greatstell.jpg", "greaticos.jpg", "smallstell.jpg", "tetra10.jpg"},
                     side},
                    {"Images/cards",
                     {"clubs4x4.jpg", "spades4x4.jpg", "diamonds4x4.jpg", "hearts4x4.jpg"},
                     side},
                    {"Images/dice", numbered(first(digits)), side},
                    {"Images/faces", sized(first(faces)), side},
                    {"Images/flags", sized(first(flags)), side},
                    {"Images/patterns", sized(first(patterns)), side},
                    {"Images/shapes", sized(first(shapes)), side},
                    {"Images/vehicles",
                     {"ambulance4x4.jpg", "fire4x4.jpg", "police4x4.jpg", "boat4x4.jpg"},
                     side}};
        case 1:
            return {{"Images/dice", numbered(first(digits)), side},
                    {"Images/shapes", sized(first(shapes)), side},
                    {"Images/patterns", sized(first(patterns)), side},
                    {"Images/faces", sized(first(faces)), side},
                    {"Images/flags", sized(first(flags)), side},
                    {"Images/numbers", numbered(first(digits)), side},
                    {"Images/letters", numbered(first(capitals)), side},
                    {"Images/polyhedra", sized(first(solids)), side}};
        default:
            return {{"Images/dice", numbered(first(digits)), side},
                    {"Images/shapes", sized(first(shapes)), side},
                    {"Images/flags", sized(first(flags)), side},
                    {"Images/numbers", numbered(first(digits)), side},
                    {"Images/letters", numbered(first(capitals)), side},
                    {"Images/polyhedra", sized(first(solids)), side}};
    }
}

// Thumbnails, markers and the pictures of the title, options and rules screens.
inline std::vector<ExpectedPicture> expectedOtherPictures() {
    auto twips = [](const QString& path, int w, int h) {
        return ExpectedPicture{path, twoPixelsPer15Twips(w), twoPixelsPer15Twips(h)};
    };
    std::vector<ExpectedPicture> files;
    for (const char* thumb : {"polyhedra/polyhedra", "cards/cards", "dice/dice", "faces/faces",
                              "flags/flags", "patterns/patterns", "shapes/shapes",
                              "vehicles/vehicles", "numbers/number", "letters/letter"})
        files.push_back(twips(QString("Images/%1.jpg").arg(thumb), 1080, 1080));
    for (int q = 1; q <= 4; ++q)
        files.push_back(twips(QString("Images/corner%1.jpg").arg(q), 240, 240));
    for (int r = 1; r <= 6; ++r)
        files.push_back(twips(QString("Images/corner6x6%1.jpg").arg(r), 150, 150));
    files.push_back(twips("Images/marker5x5.jpg", 240, 240));
    files.push_back(twips("Images/pimbalo4.jpg", 2220, 840));
    files.push_back(twips("Images/pimbalo.jpg", 6000, 2160));
    files.push_back(twips("Images/opening3.jpg", 3600, 3600));
    files.push_back(twips("Images/logo4.jpg", 1005, 1425));
    files.push_back(twips("Images/pimbalo3.jpg", 4170, 1500));
    files.push_back(twips("Images/logo2.jpg", 1500, 2085));
    files.push_back(twips("Images/pimbalo2.jpg", 4995, 1800));
    for (const char* rules :
         {"4x4puzzle", "4x4solution", "5x5puzzle", "5x5solution", "6x6puzzle2", "6x6solution2"})
        files.push_back(twips(QString("Images/%1.jpg").arg(rules), 5400, 5400));
    return files;
}
