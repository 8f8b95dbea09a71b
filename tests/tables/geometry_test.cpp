// The boards' geometry: the regions behind the grid are the rule regions the
// engine checks and marks, and every control fits the window without lying
// on another.
#include "tables/geometry.h"

#include <gtest/gtest.h>

#include <vector>

#include "engine/board_table.h"

namespace {

using tables::Rect;

bool inside(const Rect& inner, const Rect& outer) {
    return inner.left >= outer.left && inner.top >= outer.top &&
           inner.left + inner.width <= outer.left + outer.width &&
           inner.top + inner.height <= outer.top + outer.height;
}

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
           b.top < a.top + a.height;
}

// The region kind the engine numbers the coloured regions by.
engine::RegionKind colouredKind(int size) {
    return size == 2 ? engine::RegionKind::Rectangle : engine::RegionKind::Quarter;
}

}  // namespace

// 4x4: four 2x2 quarters; 5x5: one square behind the whole grid; 6x6: six
// rectangles 3 columns wide and 2 rows high; each numbered left to right,
// then top to bottom. Every cell lies wholly under exactly one of them, the
// one whose marker the engine gives the cell.
TEST(BoardGeometry, RegionsCoverTheGridBlockByBlock) {
    const struct {
        int columns, rows;  // of one block
    } blocks[] = {{2, 2}, {5, 5}, {3, 2}};
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        const engine::BoardTable& rules = engine::boardTable(size);
        ASSERT_EQ(board.n, rules.n);
        const int across = board.n / blocks[size].columns;
        for (int y = 0; y < board.n; ++y) {
            for (int x = 0; x < board.n; ++x) {
                const Rect cell = board.cell(x, y);
                std::vector<int> under;
                for (int r = 0; r < board.regions.size(); ++r) {
                    const Rect& region = board.regions[r].rect;
                    if (inside(cell, region)) {
                        under.push_back(r);
                    } else {
                        // A region's edge never runs through a cell.
                        EXPECT_FALSE(overlap(cell, region))
                            << "size " << size << " region " << r << " cuts cell " << x << "," << y;
                    }
                }
                const int block = y / blocks[size].rows * across + x / blocks[size].columns;
                EXPECT_EQ(under, std::vector<int>{block})
                    << "size " << size << " cell " << x << "," << y;
                if (rules.markerRule != engine::MarkerRule::OwnPicture) {
                    EXPECT_EQ(engine::regionNumberOf(rules, colouredKind(size), {x, y}) - 1, block)
                        << "size " << size << " cell " << x << "," << y;
                }
            }
        }
        EXPECT_EQ(board.regions.size(), across * (board.n / blocks[size].rows)) << size;
    }
}

// The cells, the tray slots (each at its piece's home), the thumbnails and the
// logo all lie inside the window and none lies on another; the regions lie
// only under the cells.
TEST(BoardGeometry, ControlsFitTheWindowApart) {
    const Rect window{0, 0, tables::kWindowWidth, tables::kWindowHeight};
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        struct Placed {
            const char* what;
            int index;
            Rect rect;
        };
        std::vector<Placed> placed;
        for (int k = 0; k < board.n * board.n; ++k) {
            placed.push_back({"cell", k, board.cell(k % board.n, k / board.n)});
            placed.push_back({"tray slot", k, board.home(k)});
        }
        for (int i = 0; i < board.thumbnails.size(); ++i)
            placed.push_back({"thumbnail", i, board.thumbnails[i]});
        placed.push_back({"logo", 0, board.logo});
        for (const Placed& p : placed)
            EXPECT_TRUE(inside(p.rect, window)) << "size " << size << " " << p.what << p.index;
        for (size_t i = 0; i < placed.size(); ++i)
            for (size_t j = i + 1; j < placed.size(); ++j)
                EXPECT_FALSE(overlap(placed[i].rect, placed[j].rect))
                    << "size " << size << ": " << placed[i].what << placed[i].index << " and "
                    << placed[j].what << placed[j].index;
        for (int r = 0; r < board.regions.size(); ++r) {
            EXPECT_TRUE(inside(board.regions[r].rect, window)) << "size " << size;
            for (const Placed& p : placed) {
                if (std::string(p.what) == "cell") continue;
                EXPECT_FALSE(overlap(board.regions[r].rect, p.rect))
                    << "size " << size << " region " << r << " under " << p.what << p.index;
            }
        }
    }
}

// A marker per region, each its own picture, small enough to sit in the
// corner of a piece.
TEST(BoardGeometry, EveryRegionHasItsOwnMarker) {
    std::vector<std::string> seen;
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        EXPECT_EQ(board.markerPictures.size(), board.regions.size()) << size;
        EXPECT_LT(board.marker.width, board.side / 2) << size;
        EXPECT_EQ(board.marker.width, board.marker.height) << size;
        for (const char* picture : board.markerPictures) {
            for (const std::string& other : seen) EXPECT_NE(other, picture);
            seen.push_back(picture);
        }
        // The engine keeps the designed picture exactly where there is no
        // marker per region.
        EXPECT_EQ(board.markerByRegion,
                  engine::boardTable(size).markerRule != engine::MarkerRule::OwnPicture)
            << size;
    }
    EXPECT_THROW(tables::boardGeometry(3), std::out_of_range);
}
