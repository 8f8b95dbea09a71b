// The picture catalogue: each board's sets have one picture per symbol, no
// file is asked for twice at different sizes, a folder is one kind of picture
// with one thumbnail, and every picture has a name a child can listen to.
#include "tables/pictures.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>

#include "tables/geometry.h"

namespace {

std::string lower(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

}  // namespace

TEST(Catalogue, EverySetHasOnePictureForEachSymbolAndAThumbnail) {
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        const auto sets = tables::catalogue(size);
        EXPECT_EQ(sets.size(), board.thumbnails.size()) << size;
        std::set<std::string> paths;
        for (const tables::PictureSet& set : sets) {
            EXPECT_EQ(set.symbols.size(), board.n) << set.folder;
            for (int k = 1; k <= set.symbols.size(); ++k)
                EXPECT_TRUE(paths.insert(lower(set.symbolPath(k))).second)
                    << set.symbolPath(k) << " stands for two symbols";
            EXPECT_TRUE(paths.insert(lower(set.thumbnailPath())).second) << set.thumbnailPath();
        }
        EXPECT_THROW(sets[0].symbolPath(board.n + 1), std::out_of_range);
    }
}

// The game finds files without regard to letter case and the generator draws
// each file once, so a path two boards name must be one picture: the same
// kind, at one size. A folder holds one kind and one thumbnail.
TEST(Catalogue, APathNamedTwiceIsOnePicture) {
    std::map<std::string, std::pair<tables::SetKind, int>> pictures;  // path: kind, pixels
    std::map<std::string, std::pair<tables::SetKind, std::string>> folders;
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        for (const tables::PictureSet& set : tables::catalogue(size)) {
            const auto folder = folders.emplace(lower(set.folder), std::pair(set.kind, ""));
            EXPECT_TRUE(folder.first->second.first == set.kind) << set.folder << " of two kinds";
            if (folder.second) folder.first->second.second = set.thumbnail;
            EXPECT_EQ(folder.first->second.second, set.thumbnail) << set.folder;

            auto named = [&](const std::string& path, int pixels) {
                const auto seen = pictures.emplace(lower(path), std::pair(set.kind, pixels));
                EXPECT_TRUE(seen.first->second == std::pair(set.kind, pixels)) << path;
            };
            for (int k = 1; k <= set.symbols.size(); ++k)
                named(set.symbolPath(k), tables::symbolPixels(size));
            named(set.thumbnailPath(), tables::thumbnailPixels(size));
        }
    }
}

// What a screen reader says for a picture: a few plain words, different for
// every picture of a set, with nothing of the file's name about it.
TEST(Catalogue, PictureNamesAreWordsAChildCanTellApart) {
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        for (const tables::PictureSet& set : tables::catalogue(size)) {
            std::set<std::string> names;
            for (int k = 0; k < set.symbols.size(); ++k) {
                const std::string name = tables::pictureName(set.kind, k);
                EXPECT_TRUE(names.insert(name).second) << set.folder << ": " << name << " twice";
                EXPECT_FALSE(name.empty()) << set.folder << " picture " << k;
                for (char c : name)
                    EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(c)) || c == ' ')
                        << set.folder << ": \"" << name << "\"";
                EXPECT_EQ(name.find("jpg"), std::string::npos) << name;
            }
        }
    }
    EXPECT_THROW(tables::pictureName(tables::SetKind::Cards, 4), std::out_of_range);
}
