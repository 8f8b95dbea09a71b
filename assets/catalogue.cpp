// The picture-set catalogues of the three boards, as the boards name them:
// folder, thumbnail and one file per symbol. A file named by several boards
// (the thumbnails) is drawn once.
#include "catalogue.h"

#include <QSet>

#include "canvas.h"
#include "pictures.h"
#include "thumbnails.h"

namespace assets {

namespace {

struct Symbol {
    QString file;
    SquareDrawer draw;
};

struct PictureSet {
    QString folder;
    QString thumbnail;
    std::vector<Symbol> symbols;
};

// Piece sides in twips: 1560 on the 4x4 board, 1140 on 5x5, 1020 on 6x6.
constexpr int kPieceTwips[] = {1560, 1140, 1020};
constexpr int kThumbnailTwips = 1080;

SquareDrawer die(int pips) {
    return [pips](QPainter& p) { drawDie(p, pips); };
}
SquareDrawer shape(Shape s) {
    return [s](QPainter& p) { drawShape(p, s); };
}
SquareDrawer pattern(Pattern s) {
    return [s](QPainter& p) { drawPattern(p, s); };
}
SquareDrawer number(int n) {
    return [n](QPainter& p) { drawNumber(p, n); };
}
SquareDrawer letter(char c) {
    return [c](QPainter& p) { drawLetter(p, c); };
}
SquareDrawer card(Suit s) {
    return [s](QPainter& p) { drawCard(p, s); };
}
SquareDrawer vehicle(Vehicle v) {
    return [v](QPainter& p) { drawVehicle(p, v); };
}
SquareDrawer face(Face f) {
    return [f](QPainter& p) { drawFace(p, f); };
}
SquareDrawer flag(Flag f) {
    return [f](QPainter& p) { drawFlag(p, f); };
}
SquareDrawer solid(Polyhedron s) {
    return [s](QPainter& p) { drawPolyhedron(p, s); };
}

// Most symbol files carry the board size in their names, e.g. "1-5x5.jpg" or
// "star5x5.jpg"; `tag` is "4x4", "5x5" or "6x6" and n the number of symbols.
PictureSet numbered(const QString& folder, const QString& thumbnail, const QString& tag, int n,
                    const std::function<SquareDrawer(int)>& draw, QChar first = '1') {
    PictureSet set{folder, thumbnail, {}};
    for (int k = 0; k < n; ++k)
        set.symbols.push_back(
            {QString("%1-%2.jpg").arg(QChar(first.unicode() + k)).arg(tag), draw(k)});
    return set;
}

template <typename Kind>
PictureSet named(const QString& folder, const std::vector<std::pair<QString, Kind>>& all,
                 const QString& tag, int n, SquareDrawer (*draw)(Kind)) {
    PictureSet set{folder, folder + ".jpg", {}};
    for (int k = 0; k < n; ++k)
        set.symbols.push_back({all[k].first + tag + ".jpg", draw(all[k].second)});
    return set;
}

PictureSet dice(const QString& tag, int n) {
    return numbered("dice", "dice.jpg", tag, n, [](int k) { return die(k + 1); });
}

PictureSet numbers(const QString& tag, int n) {
    return numbered("numbers", "number.jpg", tag, n, [](int k) { return number(k + 1); });
}

PictureSet letters(const QString& tag, int n) {
    return numbered(
        "letters", "letter.jpg", tag, n, [](int k) { return letter(char('A' + k)); }, 'A');
}

PictureSet shapes(const QString& tag, int n) {
    return named<Shape>("shapes",
                        {{"polygon", Shape::Polygon},
                         {"triangle", Shape::Triangle},
                         {"star", Shape::Star},
                         {"square", Shape::Square},
                         {"rectangle", Shape::Rectangle},
                         {"doughnut", Shape::Doughnut}},
                        tag, n, shape);
}

PictureSet patterns(const QString& tag, int n) {
    return named<Pattern>("patterns",
                          {{"dots", Pattern::Dots},
                           {"stripes", Pattern::Stripes},
                           {"tiles", Pattern::Tiles},
                           {"triangles", Pattern::Triangles},
                           {"link", Pattern::Link}},
                          tag, n, pattern);
}

PictureSet faces(const QString& tag, int n) {
    return named<Face>("faces",
                       {{"tovi", Face::Tovi},
                        {"jebu", Face::Jebu},
                        {"moustache", Face::Moustache},
                        {"kramble", Face::Kramble},
                        {"wuzzet", Face::Wuzzet}},
                       tag, n, face);
}

PictureSet flags(const QString& tag, int n) {
    return named<Flag>("flags",
                       {{"uk", Flag::UnitedKingdom},
                        {"usa", Flag::Usa},
                        {"sa", Flag::SouthAfrica},
                        {"germany", Flag::Germany},
                        {"australia", Flag::Australia},
                        {"france", Flag::France}},
                       tag, n, flag);
}

// The 4x4 board's polyhedra files carry no size ("greatstell.jpg"); the
// others carry it straight after the name ("tetra105x5.jpg").
PictureSet polyhedra(const QString& tag, int n) {
    return named<Polyhedron>("polyhedra",
                             {{"greatstell", Polyhedron::GreatStellatedDodecahedron},
                              {"greaticos", Polyhedron::GreatIcosahedron},
                              {"smallstell", Polyhedron::SmallStellatedDodecahedron},
                              {"tetra10", Polyhedron::TenTetrahedra},
                              {"tetra5", Polyhedron::FiveTetrahedra},
                              {"greatdodec", Polyhedron::GreatDodecahedron}},
                             tag, n, solid);
}

PictureSet cards() {
    return {"cards",
            "cards.jpg",
            {{"clubs4x4.jpg", card(Suit::Clubs)},
             {"spades4x4.jpg", card(Suit::Spades)},
             {"diamonds4x4.jpg", card(Suit::Diamonds)},
             {"hearts4x4.jpg", card(Suit::Hearts)}}};
}

PictureSet vehicles() {
    return {"vehicles",
            "vehicles.jpg",
            {{"ambulance4x4.jpg", vehicle(Vehicle::Ambulance)},
             {"fire4x4.jpg", vehicle(Vehicle::FireEngine)},
             {"police4x4.jpg", vehicle(Vehicle::PoliceCar)},
             {"boat4x4.jpg", vehicle(Vehicle::Boat)}}};
}

// The catalogues in the boards' own set order.
std::vector<std::vector<PictureSet>> catalogues() {
    return {
        {polyhedra("", 4), cards(), dice("4x4", 4), faces("4x4", 4), flags("4x4", 4),
         patterns("4x4", 4), shapes("4x4", 4), vehicles()},
        {dice("5x5", 5), shapes("5x5", 5), patterns("5x5", 5), faces("5x5", 5), flags("5x5", 5),
         numbers("5x5", 5), letters("5x5", 5), polyhedra("5x5", 5)},
        {dice("6x6", 6), shapes("6x6", 6), flags("6x6", 6), numbers("6x6", 6), letters("6x6", 6),
         polyhedra("6x6", 6)},
    };
}

}  // namespace

std::vector<PictureFile> pictureSetFiles() {
    std::vector<PictureFile> files;
    QSet<QString> seen;
    const auto boards = catalogues();
    for (size_t board = 0; board < boards.size(); ++board) {
        const int pixels = jpegPixels(kPieceTwips[board]);
        for (const PictureSet& set : boards[board]) {
            const QString folder = "Images/" + set.folder + "/";
            for (const Symbol& symbol : set.symbols) {
                const SquareDrawer draw = symbol.draw;
                files.push_back({folder + symbol.file, pixels, pixels,
                                 [pixels, draw] { return paintSquare(pixels, draw); }});
            }
            const QString thumbnail = folder + set.thumbnail;
            if (seen.contains(thumbnail)) continue;
            seen.insert(thumbnail);
            std::vector<SquareDrawer> firstFour;
            for (size_t k = 0; k < 4 && k < set.symbols.size(); ++k)
                firstFour.push_back(set.symbols[k].draw);
            const int size = jpegPixels(kThumbnailTwips);
            files.push_back({thumbnail, size, size,
                             [size, firstFour] { return paintSquare(size, collage(firstFour)); }});
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
