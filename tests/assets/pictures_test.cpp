// Every picture the game names is there, decodes, has the size of its control
// (doubled), and the pictures of a set are told apart easily.
#include <gtest/gtest.h>

#include <QColor>

#include "expected_files.h"
#include "game_folder.h"

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

std::vector<ExpectedPicture> everyPicture() {
    std::vector<ExpectedPicture> all = expectedOtherPictures();
    for (int board = 0; board < 3; ++board)
        for (const ExpectedSet& set : expectedSets(board))
            for (const QString& file : set.symbols)
                all.push_back({set.folder + "/" + file, set.pixels, set.pixels});
    return all;
}

}  // namespace

TEST(GeneratedPictures, EveryNamedPictureDecodesAtTwiceItsControlSize) {
    const auto all = everyPicture();
    EXPECT_EQ(all.size(), 108u + 34u);
    for (const ExpectedPicture& expected : all) {
        QImageReader reader(gamePath(expected.path));
        EXPECT_EQ(reader.format(), "jpeg") << qPrintable(expected.path);
        const QImage image = reader.read();
        ASSERT_FALSE(image.isNull())
            << qPrintable(expected.path) << ": " << qPrintable(reader.errorString());
        EXPECT_EQ(image.size(), QSize(expected.width, expected.height))
            << qPrintable(expected.path);
    }
}

TEST(GeneratedPictures, FoldersHaveTheLetterCaseTheGameWrites) {
    const QStringList top = gameFolder().entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    EXPECT_TRUE(top.contains("Images"));
    EXPECT_TRUE(top.contains("wav"));
    EXPECT_FALSE(top.contains("images")) << "one folder serves both spellings";
}

// At the size of a piece, every two pictures of a set differ plainly: in their
// colours (the dice, the numbers, the solids), or else in where the colours
// lie (the flags of red, white and blue). Two many-coloured solids in one
// palette differ in neither, however different their drawings.
TEST(GeneratedPictures, PicturesOfEverySetAreToldApartAtPieceSize) {
    constexpr double kOtherColours = 0.45, kOtherLayout = 35;
    for (int board = 0; board < 3; ++board) {
        for (const ExpectedSet& set : expectedSets(board)) {
            std::vector<QImage> pictures;
            for (const QString& file : set.symbols)
                pictures.push_back(atPieceSize(loadPicture(set.folder + "/" + file)));
            for (size_t i = 0; i < pictures.size(); ++i) {
                for (size_t j = i + 1; j < pictures.size(); ++j) {
                    const double colours = colourDistance(pictures[i], pictures[j]);
                    const double layout = meanDifference(pictures[i], pictures[j], 68);
                    EXPECT_TRUE(layout > kClearlyDifferent &&
                                (colours >= kOtherColours || layout >= kOtherLayout))
                        << qPrintable(set.folder) << ": " << qPrintable(set.symbols[int(i)])
                        << " vs " << qPrintable(set.symbols[int(j)]) << ": colours " << colours
                        << ", layout " << layout;
                }
            }
        }
    }
}

TEST(GeneratedPictures, ThumbnailsDifferFromEachOther) {
    std::vector<ExpectedPicture> thumbs;
    for (const ExpectedPicture& p : expectedOtherPictures())
        if (p.width == twoPixelsPer15Twips(1080)) thumbs.push_back(p);
    ASSERT_EQ(thumbs.size(), 10u);
    for (size_t i = 0; i < thumbs.size(); ++i)
        for (size_t j = i + 1; j < thumbs.size(); ++j)
            EXPECT_GT(meanDifference(loadPicture(thumbs[i].path), loadPicture(thumbs[j].path)),
                      kClearlyDifferent)
                << qPrintable(thumbs[i].path) << " vs " << qPrintable(thumbs[j].path);
}

// Colours are written &H00BBGGRR& on the boards: a swapped byte order would
// paint the dark-blue quarter's marker dark red.
TEST(GeneratedPictures, MarkersCarryTheirRegionColours) {
    const struct {
        const char* file;
        QColor colour;
    } markers[] = {
        {"Images/corner1.jpg", QColor(0, 0, 192)},
        {"Images/corner2.jpg", QColor(0, 192, 192)},
        {"Images/corner3.jpg", QColor(255, 128, 0)},
        {"Images/corner4.jpg", QColor(0, 192, 0)},
        {"Images/corner6x61.jpg", QColor(255, 128, 0)},
        {"Images/corner6x62.jpg", QColor(0, 192, 192)},
        {"Images/corner6x63.jpg", QColor(0, 192, 0)},
        {"Images/corner6x64.jpg", QColor(192, 0, 0)},
        {"Images/corner6x65.jpg", QColor(255, 128, 128)},
        {"Images/corner6x66.jpg", QColor(0, 0, 192)},
        {"Images/marker5x5.jpg", QColor(0, 0, 192)},
    };
    for (const auto& marker : markers) {
        const QImage image = loadPicture(marker.file);
        ASSERT_FALSE(image.isNull()) << marker.file;
        // Below the shine, in the middle of the coloured tile.
        const QColor seen = image.pixelColor(image.width() / 2, image.height() * 2 / 3);
        const int distance = std::abs(seen.red() - marker.colour.red()) +
                             std::abs(seen.green() - marker.colour.green()) +
                             std::abs(seen.blue() - marker.colour.blue());
        EXPECT_LT(distance, 90) << marker.file << " shows " << qPrintable(seen.name());
    }
}

// The rules examples picture the board in a 7560-twip square from (5460, 3900)
// with the game's own cell positions. A puzzle cell either shows the same
// picture as the solution (a given piece) or is plainly empty.
TEST(GeneratedPictures, RulesPuzzlesShowSomeOfTheirSolutionsPictures) {
    const struct {
        const char *puzzle, *solution;
        int n;
        double pitch, side;
        int fewestGiven, mostGiven;  // the level the examples are made at
    } boards[] = {{"4x4puzzle", "4x4solution", 4, 1800, 1560, 6, 8},
                  {"5x5puzzle", "5x5solution", 5, 1440, 1140, 10, 13},
                  {"6x6puzzle2", "6x6solution2", 6, 1200, 1020, 14, 19}};
    for (const auto& board : boards) {
        const QImage puzzle = loadPicture(QString("Images/%1.jpg").arg(board.puzzle));
        const QImage solution = loadPicture(QString("Images/%1.jpg").arg(board.solution));
        ASSERT_FALSE(puzzle.isNull() || solution.isNull()) << board.puzzle;
        const double scale = puzzle.width() / 7560.0;
        int same = 0;
        for (int k = 0; k < board.n * board.n; ++k) {
            const double left = (5760 + board.pitch * (k % board.n) - 5460) * scale;
            const double top = (4200 + board.pitch * (k / board.n) - 3900) * scale;
            const double s = board.side * scale;
            // The lower left of the cell: clear of the given-cell marker.
            const QRect part(int(left + 0.1 * s), int(top + 0.4 * s), int(0.5 * s), int(0.5 * s));
            const double d = meanDifference(puzzle.copy(part), solution.copy(part));
            EXPECT_TRUE(d < 4 || d > kClearlyDifferent)
                << board.puzzle << " cell " << k << ": " << d;
            same += d < 4;
        }
        EXPECT_GE(same, board.fewestGiven) << board.puzzle;
        EXPECT_LE(same, board.mostGiven) << board.puzzle;
    }
}
