#include "board/catalogue.h"

#include <array>

namespace board {
namespace {

// The 4x4 polyhedra are the only symbol files without the size in their
// names; the bigger polyhedra carry it straight after the name.
const std::vector<PictureSet> k4x4 = {
    {"Images\\polyhedra\\",
     "polyhedra.jpg",
     {"greatstell.jpg", "greaticos.jpg", "smallstell.jpg", "tetra10.jpg"}},
    {"Images\\cards\\",
     "cards.jpg",
     {"clubs4x4.jpg", "spades4x4.jpg", "diamonds4x4.jpg", "hearts4x4.jpg"}},
    {"Images\\dice\\", "dice.jpg", {"1-4x4.jpg", "2-4x4.jpg", "3-4x4.jpg", "4-4x4.jpg"}},
    {"Images\\faces\\",
     "faces.jpg",
     {"tovi4x4.jpg", "jebu4x4.jpg", "moustache4x4.jpg", "kramble4x4.jpg"}},
    {"Images\\flags\\", "flags.jpg", {"uk4x4.jpg", "usa4x4.jpg", "sa4x4.jpg", "germany4x4.jpg"}},
    {"Images\\patterns\\",
     "patterns.jpg",
     {"dots4x4.jpg", "stripes4x4.jpg", "tiles4x4.jpg", "triangles4x4.jpg"}},
    {"Images\\shapes\\",
     "shapes.jpg",
     {"polygon4x4.jpg", "triangle4x4.jpg", "star4x4.jpg", "square4x4.jpg"}},
    {"Images\\vehicles\\",
     "vehicles.jpg",
     {"ambulance4x4.jpg", "fire4x4.jpg", "police4x4.jpg", "boat4x4.jpg"}},
};

// Numbers and letters have plural folders but singular thumbnails.
const std::vector<PictureSet> k5x5 = {
    {"Images\\dice\\",
     "dice.jpg",
     {"1-5x5.jpg", "2-5x5.jpg", "3-5x5.jpg", "4-5x5.jpg", "5-5x5.jpg"}},
    {"Images\\shapes\\",
     "shapes.jpg",
     {"polygon5x5.jpg", "triangle5x5.jpg", "star5x5.jpg", "square5x5.jpg", "rectangle5x5.jpg"}},
    {"Images\\patterns\\",
     "patterns.jpg",
     {"dots5x5.jpg", "stripes5x5.jpg", "tiles5x5.jpg", "triangles5x5.jpg", "link5x5.jpg"}},
    {"Images\\faces\\",
     "faces.jpg",
     {"tovi5x5.jpg", "jebu5x5.jpg", "moustache5x5.jpg", "kramble5x5.jpg", "wuzzet5x5.jpg"}},
    {"Images\\flags\\",
     "flags.jpg",
     {"uk5x5.jpg", "usa5x5.jpg", "sa5x5.jpg", "germany5x5.jpg", "australia5x5.jpg"}},
    {"Images\\numbers\\",
     "number.jpg",
     {"1-5x5.jpg", "2-5x5.jpg", "3-5x5.jpg", "4-5x5.jpg", "5-5x5.jpg"}},
    {"Images\\letters\\",
     "letter.jpg",
     {"A-5x5.jpg", "B-5x5.jpg", "C-5x5.jpg", "D-5x5.jpg", "E-5x5.jpg"}},
    {"Images\\polyhedra\\",
     "polyhedra.jpg",
     {"greatstell5x5.jpg", "greaticos5x5.jpg", "smallstell5x5.jpg", "tetra105x5.jpg",
      "tetra55x5.jpg"}},
};

const std::vector<PictureSet> k6x6 = {
    {"Images\\dice\\",
     "dice.jpg",
     {"1-6x6.jpg", "2-6x6.jpg", "3-6x6.jpg", "4-6x6.jpg", "5-6x6.jpg", "6-6x6.jpg"}},
    {"Images\\shapes\\",
     "shapes.jpg",
     {"polygon6x6.jpg", "triangle6x6.jpg", "star6x6.jpg", "square6x6.jpg", "rectangle6x6.jpg",
      "doughnut6x6.jpg"}},
    {"Images\\flags\\",
     "flags.jpg",
     {"uk6x6.jpg", "usa6x6.jpg", "sa6x6.jpg", "germany6x6.jpg", "australia6x6.jpg",
      "france6x6.jpg"}},
    {"Images\\numbers\\",
     "number.jpg",
     {"1-6x6.jpg", "2-6x6.jpg", "3-6x6.jpg", "4-6x6.jpg", "5-6x6.jpg", "6-6x6.jpg"}},
    {"Images\\letters\\",
     "letter.jpg",
     {"A-6x6.jpg", "B-6x6.jpg", "C-6x6.jpg", "D-6x6.jpg", "E-6x6.jpg", "F-6x6.jpg"}},
    {"Images\\polyhedra\\",
     "polyhedra.jpg",
     {"greatstell6x6.jpg", "greaticos6x6.jpg", "smallstell6x6.jpg", "tetra106x6.jpg",
      "tetra56x6.jpg", "greatdodec6x6.jpg"}},
};

}  // namespace

const std::vector<PictureSet>& catalogue(int boardsize) {
    static const std::array<const std::vector<PictureSet>*, 3> bySize = {&k4x4, &k5x5, &k6x6};
    return *bySize.at(boardsize);
}

}  // namespace board
