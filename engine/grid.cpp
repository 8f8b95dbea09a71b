#include "engine/grid.h"

#include <utility>

namespace engine {

Grid makeGrid(int n) {
    return Grid(n, std::vector<std::int16_t>(n, 0));
}

void reverseOuter(Grid& g) {
    const int n = static_cast<int>(g.size());
    for (int i = 0; i < n / 2; ++i) std::swap(g[i], g[n - 1 - i]);
}

void turnQuarter(Grid& g) {
    const Grid copy = g;
    const int n = static_cast<int>(g.size());
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) g[i][j] = copy[j][n - 1 - i];
    }
}

}  // namespace engine
