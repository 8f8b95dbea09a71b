#pragma once
// The picture sets each board size offers: a folder under "Images\" with one
// picture per symbol and a thumbnail standing for the whole set. Fixed data;
// nothing looks into the folders to discover sets.
#include <string>
#include <vector>

namespace board {

struct PictureSet {
    std::string folder;                // "Images\dice\"
    std::string thumbnail;             // file name in the folder
    std::vector<std::string> symbols;  // symbols 1..N in order

    std::string thumbnailPath() const { return folder + thumbnail; }
    std::string symbolPath(int symbol) const { return folder + symbols.at(symbol - 1); }
};

// The catalogue of a board size index (0 = 4x4: 8 sets, 1 = 5x5: 8, 2 = 6x6: 6).
const std::vector<PictureSet>& catalogue(int boardsize);

}  // namespace board
