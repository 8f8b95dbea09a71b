#pragma once
// A set's thumbnail: its first four pictures as a 2 x 2 collage.
#include <vector>

#include "canvas.h"

namespace assets {

SquareDrawer collage(const std::vector<SquareDrawer>& pictures);

}  // namespace assets
