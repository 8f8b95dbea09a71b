// Properties of the drawings themselves: the lettering's strokes stay in
// their box and keep their holes open, the solids stay inside their picture,
// each solid has a colour of its own, and each thumbnail shows the
// first pictures of its set in order.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "canvas.h"
#include "game_folder.h"
#include "glyphs.h"
#include "named_pictures.h"
#include "pictures.h"

using namespace assets;

TEST(Lettering, EveryGlyphStaysInItsBoxAndKeepsItsHoles) {
    for (char c : std::string("123456ABCDEFPimbalo")) {
        const QPainterPath outline = glyphOutline(c, 20);
        const QRectF box = outline.boundingRect();
        EXPECT_GE(box.top(), -0.5) << c;
        EXPECT_LE(box.bottom(), 100.5) << c;
        EXPECT_GE(box.left(), -0.5) << c;
        EXPECT_LE(box.right(), glyph(c).advance + 0.5) << c;
        EXPECT_GT(box.height(), 40) << c;
    }
    // Points inside a bowl must stay open, points on a stroke filled.
    const struct {
        char c;
        QPointF hole, ink;
    } bowls[] = {{'o', {36, 66}, {13, 66}}, {'b', {38, 66}, {15, 30}}, {'a', {35, 66}, {57, 80}},
                 {'6', {41, 64}, {15, 64}}, {'D', {40, 50}, {16, 50}}, {'B', {38, 30}, {16, 60}},
                 {'P', {38, 32}, {16, 80}}, {'A', {42, 45}, {42, 11}}};
    for (const auto& b : bowls) {
        const QPainterPath outline = glyphOutline(b.c, 20);
        EXPECT_FALSE(outline.contains(b.hole)) << b.c << " hole filled";
        EXPECT_TRUE(outline.contains(b.ink)) << b.c << " stroke missing";
    }
}

TEST(Lettering, WordsAreSetLeftToRightWithoutOverlap) {
    const SetWord word = setWord("Pimbalo", 20, 6);
    ASSERT_EQ(word.letters.size(), 7u);
    for (size_t i = 1; i < word.letters.size(); ++i) {
        EXPECT_LT(word.letters[i - 1].boundingRect().right(), word.letters[i].boundingRect().left())
            << "letters " << i - 1 << " and " << i;
    }
    EXPECT_NEAR(word.letters.back().boundingRect().right(), word.width, 12);
}

namespace {

QImage solidPicture(Polyhedron p) {
    return paintSquare(200, [p](QPainter& painter) { drawPolyhedron(painter, p); });
}

// Hues of strongly coloured pixels, in 30-degree buckets, by pixel count.
std::map<int, int> hueBuckets(const QImage& image) {
    std::map<int, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.hsvSaturation() > 120 && c.value() > 110) ++counts[c.hsvHue() / 30];
        }
    }
    for (auto it = counts.begin(); it != counts.end();)
        it = it->second > 150 ? std::next(it) : counts.erase(it);
    return counts;
}

}  // namespace

TEST(Polyhedra, EverySolidSitsWhollyInsideItsPicture) {
    for (int p = 0; p <= int(Polyhedron::GreatDodecahedron); ++p) {
        const QImage image = solidPicture(Polyhedron(p));
        int solidPixels = 0;
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 200; ++x) {
                const QColor c = image.pixelColor(x, y);
                const bool solid = c.hsvSaturation() > 110 || c.value() < 120;
                solidPixels += solid;
                const bool edge = x < 3 || y < 3 || x > 196 || y > 196;
                if (edge) {
                    EXPECT_FALSE(solid) << "polyhedron " << p << " touches " << x << "," << y;
                }
            }
        }
        EXPECT_GT(solidPixels, 200 * 200 / 6) << "polyhedron " << p << " too small";
    }
}

// A child tells the solids apart by colour first: each is one colour family
// (the compounds shade their tetrahedra within it), and no two share theirs.
TEST(Polyhedra, EachSolidHasAColourOfItsOwn) {
    std::map<int, int> solidOfHue;
    for (int p = 0; p <= int(Polyhedron::GreatDodecahedron); ++p) {
        const auto hues = hueBuckets(solidPicture(Polyhedron(p)));
        ASSERT_FALSE(hues.empty()) << "polyhedron " << p;
        EXPECT_LE(hues.size(), 2u) << "polyhedron " << p;
        const auto main = std::max_element(hues.begin(), hues.end(), [](auto a, auto b) {
                              return a.second < b.second;
                          })->first;
        EXPECT_TRUE(solidOfHue.emplace(main, p).second)
            << "polyhedra " << solidOfHue[main] << " and " << p << " share hue " << main * 30;
    }
}

// Each quarter of a thumbnail looks most like the set's picture of the same
// position (pictures 1 to 4, left to right, top to bottom).
TEST(Thumbnails, ShowTheFirstFourPicturesOfTheirSetInOrder) {
    auto difference = [](const QImage& a, const QImage& b) {
        const QImage x = a.scaled(24, 24).convertToFormat(QImage::Format_RGB32);
        const QImage y = b.scaled(24, 24).convertToFormat(QImage::Format_RGB32);
        double sum = 0;
        for (int r = 0; r < 24; ++r)
            for (int c = 0; c < 24; ++c)
                sum += std::abs(qGray(x.pixel(c, r)) - qGray(y.pixel(c, r))) +
                       std::abs(qRed(x.pixel(c, r)) - qRed(y.pixel(c, r)));
        return sum;
    };
    std::set<std::string> checked;
    for (int board = 0; board < tables::kBoardSizes; ++board) {
        for (const tables::PictureSet& set : tables::catalogue(board)) {
            if (!checked.insert(set.thumbnailPath()).second) continue;
            const QImage thumb(findGamePicture(set.thumbnailPath()));
            ASSERT_FALSE(thumb.isNull()) << set.thumbnailPath();
            const int half = thumb.width() / 2;
            for (int k = 0; k < 4; ++k) {
                const QImage quarter =
                    thumb.copy((k % 2) * half + 4, (k / 2) * half + 4, half - 8, half - 8);
                int best = -1;
                double bestDifference = 1e18;
                for (int s = 0; s < 4; ++s) {
                    const QImage symbol(findGamePicture(set.symbolPath(s + 1)));
                    const int inset = symbol.width() * 4 / 70;
                    const double d =
                        difference(quarter, symbol.copy(inset, inset, symbol.width() - 2 * inset,
                                                        symbol.height() - 2 * inset));
                    if (d < bestDifference) bestDifference = d, best = s;
                }
                EXPECT_EQ(best, k) << set.folder << " quarter " << k;
            }
        }
    }
}
