// Every picture the game names is there, decodes, has the size of its control
// (doubled), and the pictures of a set are told apart easily.
#include <gtest/gtest.h>

#include <QColor>
#include <QDirIterator>

#include "named_pictures.h"
#include "tables/colours.h"

namespace {

// Mean absolute difference of two pictures per colour channel (0..255),
// compared at a common size.
double meanDifference(const QImage& a, const QImage& b, int side = 48) {
    const QImage x = a.scaled(side, side).convertToFormat(QImage::Format_RGB32);
    const QImage y = b.scaled(side, side).convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int row = 0; row < side; ++row) {
        for (int col = 0; col < side; ++col) {
            const QRgb p = x.pixel(col, row);
            const QRgb q = y.pixel(col, row);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (double(side) * side * 3.0);
}

// Differences below this are pictures a small child could confuse.
constexpr double kClearlyDifferent = 18.0;

// A picture at the size of the smallest piece, 68 pixels square (the 6x6 board).
QImage atPieceSize(const QImage& picture) {
    return picture.scaled(68, 68, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

// How far apart two pictures' colours are, wherever they lie: the share of
// pixels that would have to change colour to turn one into the other, on a
// coarse palette of 4 x 4 x 4 colours. 0: the same colours; 2: none in common.
double colourDistance(const QImage& a, const QImage& b) {
    double share[64] = {};
    auto count = [&share](const QImage& image, double weight) {
        const double pixel = weight / (image.width() * image.height());
        for (int row = 0; row < image.height(); ++row)
            for (int col = 0; col < image.width(); ++col) {
                const QRgb p = image.pixel(col, row);
                share[qRed(p) / 64 * 16 + qGreen(p) / 64 * 4 + qBlue(p) / 64] += pixel;
            }
    };
    count(a, 1);
    count(b, -1);
    double distance = 0;
    for (double s : share) distance += std::abs(s);
    return distance;
}

// Full paths of every file below a folder.
QStringList filesBelow(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) files << QDir(it.next()).absolutePath();
    return files;
}

}  // namespace

// Whatever name a table gives a picture, the game finds it and it has the
// size of its control, doubled. A picture named by two tables (a thumbnail
// on two boards) must suit both.
TEST(GeneratedPictures, EveryPictureTheTablesNameDecodesAtItsSize) {
    for (const NamedPicture& named : picturesTheTablesName()) {
        const QString file = findGamePicture(named.path);
        ASSERT_FALSE(file.isEmpty()) << named.path << " is missing";
        QImageReader reader(file);
        EXPECT_EQ(reader.format(), "jpeg") << named.path;
        const QImage image = reader.read();
        ASSERT_FALSE(image.isNull()) << named.path << ": " << qPrintable(reader.errorString());
        EXPECT_EQ(image.size(), QSize(named.width, named.height)) << named.path;
    }
}

// And nothing else is drawn: a picture the game never asks for (a misspelt
// name, a second copy in another folder) is a picture the game goes without.
TEST(GeneratedPictures, TheImagesFolderHoldsOnlyWhatTheTablesName) {
    std::set<QString> named = {findGamePicture(tables::kHandCursor)};
    for (const NamedPicture& picture : picturesTheTablesName())
        named.insert(findGamePicture(picture.path));
    for (const QString& file : filesBelow(gamePath("Images")))
        EXPECT_TRUE(named.count(file)) << qPrintable(file) << " is named by no table";
}

// At the size of a piece, every two pictures of a set differ plainly: in their
// colours (the dice, the numbers, the solids), or else in where the colours
// lie (the flags of red, white and blue). Two many-coloured solids in one
// palette differ in neither, however different their drawings.
TEST(GeneratedPictures, PicturesOfEverySetAreToldApartAtPieceSize) {
    constexpr double kOtherColours = 0.45, kOtherLayout = 35;
    for (int board = 0; board < 3; ++board) {
        for (const tables::PictureSet& set : tables::catalogue(board)) {
            std::vector<QImage> pictures;
            for (int k = 1; k <= set.symbols.size(); ++k)
                pictures.push_back(atPieceSize(QImage(findGamePicture(set.symbolPath(k)))));
            for (size_t i = 0; i < pictures.size(); ++i) {
                for (size_t j = i + 1; j < pictures.size(); ++j) {
                    const double colours = colourDistance(pictures[i], pictures[j]);
                    const double layout = meanDifference(pictures[i], pictures[j], 68);
                    EXPECT_TRUE(layout > kClearlyDifferent &&
                                (colours >= kOtherColours || layout >= kOtherLayout))
                        << set.folder << ": " << set.symbols[int(i)] << " vs "
                        << set.symbols[int(j)] << ": colours " << colours << ", layout " << layout;
                }
            }
        }
    }
}

// Colours are written &H00BBGGRR& on the boards: a swapped byte order would
// paint the dark-blue quarter's marker dark red. A marker wears the colour of
// the region its givens lie in.
TEST(GeneratedPictures, MarkersCarryTheirRegionColours) {
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        for (int i = 0; i < board.markerPictures.size(); ++i) {
            const char* marker = board.markerPictures[i];
            const QImage image(findGamePicture(marker));
            ASSERT_FALSE(image.isNull()) << marker;
            const std::uint32_t bbggrr = board.regions[i].colour;
            const QColor colour(bbggrr & 0xFF, (bbggrr >> 8) & 0xFF, (bbggrr >> 16) & 0xFF);
            // Below the shine, in the middle of the coloured tile.
            const QColor seen = image.pixelColor(image.width() / 2, image.height() * 2 / 3);
            const int distance = std::abs(seen.red() - colour.red()) +
                                 std::abs(seen.green() - colour.green()) +
                                 std::abs(seen.blue() - colour.blue());
            EXPECT_LT(distance, 90) << marker << " shows " << qPrintable(seen.name());
        }
    }
}

// The rules examples picture the board in a 7560-twip square from (5460, 3900)
// with the game's own cell positions. A puzzle cell either shows the same
// picture as the solution (a given piece) or is plainly empty.
TEST(GeneratedPictures, RulesPuzzlesShowSomeOfTheirSolutionsPictures) {
    const struct {
        int fewestGiven, mostGiven;  // the level the examples are made at
    } givens[] = {{6, 8}, {10, 13}, {14, 19}};
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        const auto& example = tables::kRulesExamples[size];
        const QImage puzzle(findGamePicture(example.puzzle.path));
        const QImage solution(findGamePicture(example.solution.path));
        ASSERT_FALSE(puzzle.isNull() || solution.isNull()) << example.puzzle.path;
        const double scale = puzzle.width() / 7560.0;
        int same = 0;
        for (int k = 0; k < board.n * board.n; ++k) {
            const tables::Rect cell = board.cell(k % board.n, k / board.n);
            const double left = (cell.left - 5460) * scale;
            const double top = (cell.top - 3900) * scale;
            const double s = cell.width * scale;
            // The lower left of the cell: clear of the given-cell marker.
            const QRect part(int(left + 0.1 * s), int(top + 0.4 * s), int(0.5 * s), int(0.5 * s));
            const double d = meanDifference(puzzle.copy(part), solution.copy(part));
            EXPECT_TRUE(d < 4 || d > kClearlyDifferent)
                << example.puzzle.path << " cell " << k << ": " << d;
            same += d < 4;
        }
        EXPECT_GE(same, givens[size].fewestGiven) << example.puzzle.path;
        EXPECT_LE(same, givens[size].mostGiven) << example.puzzle.path;
    }
}
