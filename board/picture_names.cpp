#include "board/picture_names.h"

#include <map>

namespace board {
namespace {

// Symbol files are named after their picture, then the board size
// ("star5x5.jpg", "1-4x4.jpg"); the 4x4 polyhedra have no size.
std::string stemOf(const std::string& file) {
    std::string stem = file.substr(0, file.rfind('.'));
    for (const char* size : {"4x4", "5x5", "6x6"}) {
        const std::string suffix = size;
        if (stem.size() > suffix.size() &&
            stem.compare(stem.size() - suffix.size(), suffix.size(), suffix) == 0)
            stem.erase(stem.size() - suffix.size());
    }
    if (!stem.empty() && stem.back() == '-') stem.pop_back();
    return stem;
}

const std::map<std::string, std::string>& names() {
    static const std::map<std::string, std::string> byFolderAndStem = {
        {"dice/1", "die showing one"},
        {"dice/2", "die showing two"},
        {"dice/3", "die showing three"},
        {"dice/4", "die showing four"},
        {"dice/5", "die showing five"},
        {"dice/6", "die showing six"},
        {"numbers/1", "number one"},
        {"numbers/2", "number two"},
        {"numbers/3", "number three"},
        {"numbers/4", "number four"},
        {"numbers/5", "number five"},
        {"numbers/6", "number six"},
        {"cards/clubs", "clubs"},
        {"cards/spades", "spades"},
        {"cards/diamonds", "diamonds"},
        {"cards/hearts", "hearts"},
        {"flags/uk", "flag of the United Kingdom"},
        {"flags/usa", "flag of the United States"},
        {"flags/sa", "flag of South Africa"},
        {"flags/germany", "flag of Germany"},
        {"flags/australia", "flag of Australia"},
        {"flags/france", "flag of France"},
        {"polyhedra/greatstell", "great stellated dodecahedron"},
        {"polyhedra/greaticos", "great icosahedron"},
        {"polyhedra/smallstell", "small stellated dodecahedron"},
        {"polyhedra/tetra10", "ten tetrahedra"},
        {"polyhedra/tetra5", "five tetrahedra"},
        {"polyhedra/greatdodec", "great dodecahedron"},
        {"vehicles/fire", "fire engine"},
        {"vehicles/police", "police car"},
    };
    return byFolderAndStem;
}

}  // namespace

// Faces, letters, shapes, patterns and the rest are called what their
// files are called ("moustache", "letter A" from "A").
std::string pictureName(const PictureSet& set, int symbol) {
    std::string folder = set.folder;
    if (!folder.empty() && folder.back() == '\\') folder.pop_back();
    folder = folder.substr(folder.rfind('\\') + 1);
    const std::string stem = stemOf(set.symbols.at(symbol - 1));
    if (auto it = names().find(folder + "/" + stem); it != names().end()) return it->second;
    if (folder == "letters") return "letter " + stem;
    return stem;
}

}  // namespace board
