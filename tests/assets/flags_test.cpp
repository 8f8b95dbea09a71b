// Flags drawn to their real designs: proportions, the union flag's
// counterchanged saltires, the stars and stripes counted, the colours where
// they belong. Rendered large straight from the drawing code.
#include <gtest/gtest.h>

#include <QColor>
#include <functional>
#include <set>

#include "canvas.h"
#include "pictures.h"

using namespace assets;

namespace {

constexpr int kSide = 800;

QImage render(Flag flag) {
    return paintSquare(kSide, [flag](QPainter& p) { drawFlag(p, flag); });
}

// Coloured or dark: the flag, not the grey backdrop around it.
bool inked(QColor c) {
    return c.hsvSaturation() > 80 || c.value() < 90;
}

// The flag's rectangle, found along a row and a column that cross inked colour
// from edge to edge.
QRectF flagRect(const QImage& image, double rowFraction, double columnFraction) {
    const int row = int(kSide * rowFraction);
    const int column = int(kSide * columnFraction);
    int left = kSide, right = -1, top = kSide, bottom = -1;
    for (int x = 0; x < kSide; ++x) {
        if (!inked(image.pixelColor(x, row))) continue;
        left = std::min(left, x);
        right = std::max(right, x);
    }
    for (int y = 0; y < kSide; ++y) {
        if (!inked(image.pixelColor(column, y))) continue;
        top = std::min(top, y);
        bottom = std::max(bottom, y);
    }
    return QRectF(left, top, right - left + 1, bottom - top + 1);
}

// The colour at a point given as fractions of the flag's width and height.
QColor at(const QImage& image, const QRectF& flag, double fx, double fy) {
    return image.pixelColor(int(flag.left() + fx * flag.width()),
                            int(flag.top() + fy * flag.height()));
}

bool near(QColor seen, QColor expected, int tolerance = 60) {
    return std::abs(seen.red() - expected.red()) + std::abs(seen.green() - expected.green()) +
               std::abs(seen.blue() - expected.blue()) <
           tolerance;
}

// Separate white shapes inside a region (stars), by flood fill over the eight
// neighbours; specks of a few pixels (antialiased star tips) do not count.
int whiteBlobs(const QImage& image, const QRect& region) {
    std::vector<bool> seen(size_t(region.width() * region.height()), false);
    auto index = [&](QPoint p) {
        return size_t((p.y() - region.top()) * region.width() + (p.x() - region.left()));
    };
    auto white = [&](QPoint p) { return qGray(image.pixel(p)) > 170; };
    int blobs = 0;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        for (int x = region.left(); x <= region.right(); ++x) {
            if (seen[index({x, y})] || !white({x, y})) continue;
            int size = 0;
            std::vector<QPoint> stack = {{x, y}};
            seen[index({x, y})] = true;
            while (!stack.empty()) {
                const QPoint p = stack.back();
                stack.pop_back();
                ++size;
                for (int dy = -1; dy <= 1; ++dy) {
                    for (int dx = -1; dx <= 1; ++dx) {
                        const QPoint q = p + QPoint(dx, dy);
                        if (!region.contains(q) || seen[index(q)] || !white(q)) continue;
                        seen[index(q)] = true;
                        stack.push_back(q);
                    }
                }
            }
            blobs += size >= 12;
        }
    }
    return blobs;
}

const QColor kWhite(255, 255, 255);
const QColor kUnionRed(200, 16, 46);

}  // namespace

TEST(Flags, KeepTheirOfficialProportions) {
    const struct {
        Flag flag;
        double ratio;        // width / height
        double row, column;  // fractions of the square crossing inked colour edge to edge
    } flags[] = {{Flag::UnitedKingdom, 2.0, 0.5, 0.5}, {Flag::Usa, 1.9, 0.5, 0.9},
                 {Flag::SouthAfrica, 1.5, 0.5, 0.8},   {Flag::Germany, 5.0 / 3, 0.5, 0.5},
                 {Flag::Australia, 2.0, 0.5, 0.8},     {Flag::France, 1.5, 0.5, 0.2}};
    for (const auto& f : flags) {
        const QRectF rect = flagRect(render(f.flag), f.row, f.column);
        EXPECT_NEAR(rect.width() / rect.height(), f.ratio, 0.03) << int(f.flag);
        EXPECT_GT(rect.width(), kSide * 0.8) << int(f.flag);
    }
}

// In every arm of the saltire the red runs on the clockwise side of the
// diagonal: next to the hoist the broad white is above the red, in the fly below.
TEST(Flags, UnionFlagSaltiresAreCounterchanged) {
    const QImage image = render(Flag::UnitedKingdom);
    const QRectF flag = flagRect(image, 0.5, 0.5);
    // Points a quarter of the way from each corner to the centre, in 60 x 30 units.
    const struct { QPointF corner; } arms[] = {{{0, 0}}, {{60, 0}}, {{60, 30}}, {{0, 30}}};
    for (const auto& arm : arms) {
        const QPointF centre(30, 15);
        const QPointF onDiagonal = arm.corner + (centre - arm.corner) * 0.35;
        const QPointF d = (arm.corner - centre) / std::hypot(30.0, 15.0);
        const QPointF clockwise(d.y(), -d.x());
        auto colourAt = [&](QPointF units) {
            return at(image, flag, units.x() / 60, units.y() / 30);
        };
        EXPECT_TRUE(near(colourAt(onDiagonal + clockwise * 1.0), kUnionRed))
            << "red beside the diagonal, arm " << arm.corner.x() << "," << arm.corner.y();
        EXPECT_TRUE(near(colourAt(onDiagonal - clockwise * 1.5), kWhite))
            << "broad white on the other side, arm " << arm.corner.x() << "," << arm.corner.y();
        EXPECT_TRUE(near(colourAt(onDiagonal + clockwise * 2.6), kWhite))
            << "narrow white edge beyond the red, arm " << arm.corner.x() << "," << arm.corner.y();
    }
    EXPECT_TRUE(near(at(image, flag, 0.5, 0.5), kUnionRed));
    EXPECT_TRUE(near(at(image, flag, 0.5, 0.05), kUnionRed)) << "St George's cross";
    EXPECT_TRUE(near(at(image, flag, 0.3, 0.05), QColor(1, 33, 105))) << "blue field";
}

TEST(Flags, UsaHasThirteenStripesAndFiftyStars) {
    const QImage image = render(Flag::Usa);
    const QRectF flag = flagRect(image, 0.5, 0.9);
    int stripes = 0;
    bool lastRed = false;
    const int x = int(flag.left() + 0.95 * flag.width());
    for (int y = int(flag.top()) + 1; y < int(flag.bottom()) - 1; ++y) {
        const bool red = image.pixelColor(x, y).hsvSaturation() > 100;
        if (y == int(flag.top()) + 1) {
            EXPECT_TRUE(red) << "the top stripe is red";
        }
        if (red && !lastRed) ++stripes;
        lastRed = red;
    }
    EXPECT_EQ(stripes, 7) << "seven red stripes, six white between them";
    EXPECT_TRUE(lastRed) << "the bottom stripe is red";
    const QRect canton(int(flag.left()) + 2, int(flag.top()) + 2, int(0.4 * flag.width()) - 4,
                       int(7.0 / 13 * flag.height()) - 4);
    EXPECT_EQ(whiteBlobs(image, canton), 50);
}

TEST(Flags, AustraliaHasTheCommonwealthStarAndTheSouthernCross) {
    const QImage image = render(Flag::Australia);
    const QRectF flag = flagRect(image, 0.5, 0.8);
    const QRect fly(int(flag.left() + flag.width() / 2) + 2, int(flag.top()) + 2,
                    int(flag.width() / 2) - 4, int(flag.height()) - 4);
    EXPECT_EQ(whiteBlobs(image, fly), 5);
    const QRect lowerHoist(int(flag.left()) + 2, int(flag.top() + flag.height() / 2) + 2,
                           int(flag.width() / 2) - 4, int(flag.height() / 2) - 4);
    EXPECT_EQ(whiteBlobs(image, lowerHoist), 1);
    EXPECT_TRUE(near(at(image, flag, 0.25, 0.75), kWhite)) << "Commonwealth Star centre";
    EXPECT_TRUE(near(at(image, flag, 0.25, 0.25), kUnionRed)) << "union flag in the canton";
}

TEST(Flags, TheSouthAfricanPallHasItsColoursInPlace) {
    const QImage sa = render(Flag::SouthAfrica);
    const QRectF s = flagRect(sa, 0.5, 0.8);
    EXPECT_TRUE(near(at(sa, s, 0.04, 0.5), QColor(0, 0, 0))) << "black triangle at the hoist";
    EXPECT_TRUE(near(at(sa, s, 0.9, 0.5), QColor(0, 119, 73))) << "green band";
    EXPECT_TRUE(near(at(sa, s, 0.9, 0.15), QColor(224, 60, 49))) << "red above";
    EXPECT_TRUE(near(at(sa, s, 0.9, 0.85), QColor(0, 20, 137))) << "blue below";
    EXPECT_TRUE(near(at(sa, s, 0.9, 1.0 / 3 + 0.01), kWhite)) << "white edge to the red";
    // Gold lies between the black triangle and the green, along the arms only.
    EXPECT_TRUE(near(at(sa, s, 0.01, 0.05), QColor(0, 119, 73))) << "no gold along the hoist";
    int gold = 0;
    for (double fx = 0.2; fx < 0.4; fx += 0.005)
        gold += near(at(sa, s, fx, 0.5), QColor(255, 184, 28));
    EXPECT_GT(gold, 0) << "gold edge across the middle line";
}
