#pragma once
// The two whole-grid moves shared by the solution and the given-cell mask.
// The solution is held [x][y] and the mask [row][column], so the same moves
// mirror the solution left to right and turn it clockwise, while they flip
// the mask top to bottom and turn it counter-clockwise: exactly how the mask
// has to follow the solution for the givens to land where the game wants them.
#include <cstdint>
#include <vector>

namespace engine {

using Grid = std::vector<std::vector<std::int16_t>>;

Grid makeGrid(int n);
// g[i][j] <-> g[n-1-i][j]
void reverseOuter(Grid& g);
// g[i][j] := old g[j][n-1-i]
void turnQuarter(Grid& g);

}  // namespace engine
