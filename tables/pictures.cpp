#include "tables/pictures.h"

#include <iterator>
#include <stdexcept>

#include "tables/geometry.h"
#include "tables/translatable.h"

namespace tables {
namespace {

using K = SetKind;

// The 4x4 polyhedra are the only symbol files without the size in their
// names; the bigger polyhedra carry it straight after the name.
constexpr const char* kPolyhedra4[] = {"greatstell.jpg", "greaticos.jpg", "smallstell.jpg",
                                       "tetra10.jpg"};
constexpr const char* kCards4[] = {"clubs4x4.jpg", "spades4x4.jpg", "diamonds4x4.jpg",
                                   "hearts4x4.jpg"};
constexpr const char* kDice4[] = {"1-4x4.jpg", "2-4x4.jpg", "3-4x4.jpg", "4-4x4.jpg"};
constexpr const char* kFaces4[] = {"tovi4x4.jpg", "jebu4x4.jpg", "moustache4x4.jpg",
                                   "kramble4x4.jpg"};
constexpr const char* kFlags4[] = {"uk4x4.jpg", "usa4x4.jpg", "sa4x4.jpg", "germany4x4.jpg"};
constexpr const char* kPatterns4[] = {"dots4x4.jpg", "stripes4x4.jpg", "tiles4x4.jpg",
                                      "triangles4x4.jpg"};
constexpr const char* kShapes4[] = {"polygon4x4.jpg", "triangle4x4.jpg", "star4x4.jpg",
                                    "square4x4.jpg"};
constexpr const char* kVehicles4[] = {"ambulance4x4.jpg", "fire4x4.jpg", "police4x4.jpg",
                                      "boat4x4.jpg"};

constexpr const char* kDice5[] = {"1-5x5.jpg", "2-5x5.jpg", "3-5x5.jpg", "4-5x5.jpg", "5-5x5.jpg"};
constexpr const char* kShapes5[] = {"polygon5x5.jpg", "triangle5x5.jpg", "star5x5.jpg",
                                    "square5x5.jpg", "rectangle5x5.jpg"};
constexpr const char* kPatterns5[] = {"dots5x5.jpg", "stripes5x5.jpg", "tiles5x5.jpg",
                                      "triangles5x5.jpg", "link5x5.jpg"};
constexpr const char* kFaces5[] = {"tovi5x5.jpg", "jebu5x5.jpg", "moustache5x5.jpg",
                                   "kramble5x5.jpg", "wuzzet5x5.jpg"};
constexpr const char* kFlags5[] = {"uk5x5.jpg", "usa5x5.jpg", "sa5x5.jpg", "germany5x5.jpg",
                                   "australia5x5.jpg"};
// Numbers and letters have plural folders but singular thumbnails.
constexpr const char* kNumbers5[] = {"1-5x5.jpg", "2-5x5.jpg", "3-5x5.jpg", "4-5x5.jpg",
                                     "5-5x5.jpg"};
constexpr const char* kLetters5[] = {"A-5x5.jpg", "B-5x5.jpg", "C-5x5.jpg", "D-5x5.jpg",
                                     "E-5x5.jpg"};
constexpr const char* kPolyhedra5[] = {"greatstell5x5.jpg", "greaticos5x5.jpg", "smallstell5x5.jpg",
                                       "tetra105x5.jpg", "tetra55x5.jpg"};

constexpr const char* kDice6[] = {"1-6x6.jpg", "2-6x6.jpg", "3-6x6.jpg",
                                  "4-6x6.jpg", "5-6x6.jpg", "6-6x6.jpg"};
constexpr const char* kShapes6[] = {"polygon6x6.jpg", "triangle6x6.jpg",  "star6x6.jpg",
                                    "square6x6.jpg",  "rectangle6x6.jpg", "doughnut6x6.jpg"};
constexpr const char* kFlags6[] = {"uk6x6.jpg",      "usa6x6.jpg",       "sa6x6.jpg",
                                   "germany6x6.jpg", "australia6x6.jpg", "france6x6.jpg"};
constexpr const char* kNumbers6[] = {"1-6x6.jpg", "2-6x6.jpg", "3-6x6.jpg",
                                     "4-6x6.jpg", "5-6x6.jpg", "6-6x6.jpg"};
constexpr const char* kLetters6[] = {"A-6x6.jpg", "B-6x6.jpg", "C-6x6.jpg",
                                     "D-6x6.jpg", "E-6x6.jpg", "F-6x6.jpg"};
constexpr const char* kPolyhedra6[] = {"greatstell6x6.jpg", "greaticos6x6.jpg",
                                       "smallstell6x6.jpg", "tetra106x6.jpg",
                                       "tetra56x6.jpg",     "greatdodec6x6.jpg"};

constexpr PictureSet k4x4[] = {
    {K::Polyhedra, "Images\\polyhedra\\", "polyhedra.jpg", kPolyhedra4},
    {K::Cards, "Images\\cards\\", "cards.jpg", kCards4},
    {K::Dice, "Images\\dice\\", "dice.jpg", kDice4},
    {K::Faces, "Images\\faces\\", "faces.jpg", kFaces4},
    {K::Flags, "Images\\flags\\", "flags.jpg", kFlags4},
    {K::Patterns, "Images\\patterns\\", "patterns.jpg", kPatterns4},
    {K::Shapes, "Images\\shapes\\", "shapes.jpg", kShapes4},
    {K::Vehicles, "Images\\vehicles\\", "vehicles.jpg", kVehicles4},
};
constexpr PictureSet k5x5[] = {
    {K::Dice, "Images\\dice\\", "dice.jpg", kDice5},
    {K::Shapes, "Images\\shapes\\", "shapes.jpg", kShapes5},
    {K::Patterns, "Images\\patterns\\", "patterns.jpg", kPatterns5},
    {K::Faces, "Images\\faces\\", "faces.jpg", kFaces5},
    {K::Flags, "Images\\flags\\", "flags.jpg", kFlags5},
    {K::Numbers, "Images\\numbers\\", "number.jpg", kNumbers5},
    {K::Letters, "Images\\letters\\", "letter.jpg", kLetters5},
    {K::Polyhedra, "Images\\polyhedra\\", "polyhedra.jpg", kPolyhedra5},
};
constexpr PictureSet k6x6[] = {
    {K::Dice, "Images\\dice\\", "dice.jpg", kDice6},
    {K::Shapes, "Images\\shapes\\", "shapes.jpg", kShapes6},
    {K::Flags, "Images\\flags\\", "flags.jpg", kFlags6},
    {K::Numbers, "Images\\numbers\\", "number.jpg", kNumbers6},
    {K::Letters, "Images\\letters\\", "letter.jpg", kLetters6},
    {K::Polyhedra, "Images\\polyhedra\\", "polyhedra.jpg", kPolyhedra6},
};

constexpr List<PictureSet> kCatalogues[kBoardSizes] = {k4x4, k5x5, k6x6};

// Each kind's names, picture by picture; kNames lists the kinds in the
// order SetKind declares them.
constexpr const char* kPolyhedronNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "great stellated dodecahedron"),
    QT_TRANSLATE_NOOP("Pictures", "great icosahedron"),
    QT_TRANSLATE_NOOP("Pictures", "small stellated dodecahedron"),
    QT_TRANSLATE_NOOP("Pictures", "ten tetrahedra"),
    QT_TRANSLATE_NOOP("Pictures", "five tetrahedra"),
    QT_TRANSLATE_NOOP("Pictures", "great dodecahedron")};
constexpr const char* kCardNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "clubs"), QT_TRANSLATE_NOOP("Pictures", "spades"),
    QT_TRANSLATE_NOOP("Pictures", "diamonds"), QT_TRANSLATE_NOOP("Pictures", "hearts")};
constexpr const char* kDieNames[] = {QT_TRANSLATE_NOOP("Pictures", "die showing one"),
                                     QT_TRANSLATE_NOOP("Pictures", "die showing two"),
                                     QT_TRANSLATE_NOOP("Pictures", "die showing three"),
                                     QT_TRANSLATE_NOOP("Pictures", "die showing four"),
                                     QT_TRANSLATE_NOOP("Pictures", "die showing five"),
                                     QT_TRANSLATE_NOOP("Pictures", "die showing six")};
// The faces' files carry made-up words; a child's helper hears what they show.
constexpr const char* kFaceNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "happy yellow face with a curl"),
    QT_TRANSLATE_NOOP("Pictures", "smiling green frog"),
    QT_TRANSLATE_NOOP("Pictures", "face with a big moustache and a hat"),
    QT_TRANSLATE_NOOP("Pictures", "grumpy purple monster with spiky hair"),
    QT_TRANSLATE_NOOP("Pictures", "fluffy orange cat")};
constexpr const char* kFlagNames[] = {QT_TRANSLATE_NOOP("Pictures", "flag of the United Kingdom"),
                                      QT_TRANSLATE_NOOP("Pictures", "flag of the United States"),
                                      QT_TRANSLATE_NOOP("Pictures", "flag of South Africa"),
                                      QT_TRANSLATE_NOOP("Pictures", "flag of Germany"),
                                      QT_TRANSLATE_NOOP("Pictures", "flag of Australia"),
                                      QT_TRANSLATE_NOOP("Pictures", "flag of France")};
constexpr const char* kPatternNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "dots"), QT_TRANSLATE_NOOP("Pictures", "stripes"),
    QT_TRANSLATE_NOOP("Pictures", "tiles"), QT_TRANSLATE_NOOP("Pictures", "triangles"),
    QT_TRANSLATE_NOOP("Pictures", "link")};
constexpr const char* kShapeNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "polygon"),   QT_TRANSLATE_NOOP("Pictures", "triangle"),
    QT_TRANSLATE_NOOP("Pictures", "star"),      QT_TRANSLATE_NOOP("Pictures", "square"),
    QT_TRANSLATE_NOOP("Pictures", "rectangle"), QT_TRANSLATE_NOOP("Pictures", "doughnut")};
constexpr const char* kVehicleNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "ambulance"), QT_TRANSLATE_NOOP("Pictures", "fire engine"),
    QT_TRANSLATE_NOOP("Pictures", "police car"), QT_TRANSLATE_NOOP("Pictures", "boat")};
constexpr const char* kNumberNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "number one"),   QT_TRANSLATE_NOOP("Pictures", "number two"),
    QT_TRANSLATE_NOOP("Pictures", "number three"), QT_TRANSLATE_NOOP("Pictures", "number four"),
    QT_TRANSLATE_NOOP("Pictures", "number five"),  QT_TRANSLATE_NOOP("Pictures", "number six")};
constexpr const char* kLetterNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "letter A"), QT_TRANSLATE_NOOP("Pictures", "letter B"),
    QT_TRANSLATE_NOOP("Pictures", "letter C"), QT_TRANSLATE_NOOP("Pictures", "letter D"),
    QT_TRANSLATE_NOOP("Pictures", "letter E"), QT_TRANSLATE_NOOP("Pictures", "letter F")};

constexpr List<const char*> kNames[] = {
    kPolyhedronNames, kCardNames,  kDieNames,     kFaceNames,   kFlagNames,
    kPatternNames,    kShapeNames, kVehicleNames, kNumberNames, kLetterNames,
};
static_assert(std::size(kNames) == static_cast<std::size_t>(SetKind::Letters) + 1);

// What a thumbnail is called, kind by kind in the order SetKind declares them.
constexpr const char* kSetNames[] = {
    QT_TRANSLATE_NOOP("Pictures", "Pictures: polyhedra"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: cards"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: dice"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: faces"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: flags"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: patterns"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: shapes"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: vehicles"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: numbers"),
    QT_TRANSLATE_NOOP("Pictures", "Pictures: letters"),
};
static_assert(std::size(kSetNames) == std::size(kNames));

}  // namespace

std::string PictureSet::thumbnailPath() const {
    return std::string(folder) + thumbnail;
}

std::string PictureSet::symbolPath(int symbol) const {
    if (symbol < 1 || symbol > symbols.size()) throw std::out_of_range("no such symbol");
    return std::string(folder) + symbols[symbol - 1];
}

List<PictureSet> catalogue(int boardsize) {
    if (boardsize < 0 || boardsize >= kBoardSizes)
        throw std::out_of_range("board size must be 0, 1 or 2");
    return kCatalogues[boardsize];
}

int symbolPixels(int boardsize) {
    return picturePixels(boardGeometry(boardsize).side);
}

int thumbnailPixels(int boardsize) {
    return picturePixels(boardGeometry(boardsize).thumbnails[0].width);
}

const char* pictureName(SetKind kind, int picture) {
    const List<const char*>& names = kNames[static_cast<int>(kind)];
    if (picture < 0 || picture >= names.size()) throw std::out_of_range("no such picture");
    return names[picture];
}

const char* setName(SetKind kind) {
    return kSetNames[static_cast<int>(kind)];
}

}  // namespace tables
