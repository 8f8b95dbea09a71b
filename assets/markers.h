#pragma once
// The given-cell marker pictures, shared by the marker files and the rules
// examples (which draw the markers onto the pictured board).
#include <string>

#include "canvas.h"

namespace assets {

// The marker a board loads by its "Images\..." path (any slashes, any case);
// the 5x5 board's own marker for "marker5x5.jpg".
SquareDrawer markerPicture(const std::string& path);

}  // namespace assets
