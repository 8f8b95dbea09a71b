// Preloaded (LD_PRELOAD) into the installed game by the install test, which
// cannot link a hook into that program: every 100 ms it writes the file named
// by $PIMBALO_E2E_STATE in the end-to-end script's format (see
// tests/e2e/state_hook.cpp). It knows only what a player sees: the windows
// and controls by their names, and where the pieces lie; the moves come from
// solving the shown puzzle itself, so this is also an independent check that
// every puzzle the game deals can be solved.
//
//   screen <name> <x> <y>         client-area origin of a shown screen
//   move <fx> <fy> <tx> <ty>      piece centre to the centre of a cell it solves
//   textbox <x> <y>               centre of the text box holding the focus
#include <map>
#include <sstream>
#include <vector>

#include "../e2e/state_report.h"
#include "tables/screens.h"

namespace {

using e2e::centreOf;

// The regions besides rows and columns, as the rules screen tells them:
// region number of cell (x, y) for each kind, -1 when the cell is in none.
std::vector<std::function<int(int, int)>> extraRegions(int n) {
    const auto diagonal = [](int x, int y) { return x == y ? 0 : -1; };
    const auto anti = [n](int x, int y) { return x + y == n - 1 ? 0 : -1; };
    if (n == 4) return {diagonal, anti, [](int x, int y) { return x / 2 + 2 * (y / 2); }};
    if (n == 5) return {diagonal, anti};
    return {[](int x, int y) { return x / 3 + 2 * (y / 2); }};  // 3 columns by 2 rows
}

using Grid = std::vector<std::vector<int>>;  // [x][y], 0 = empty

bool fits(const Grid& g, int n, int x, int y, int s) {
    for (int k = 0; k < n; ++k)
        if (g[k][y] == s || g[x][k] == s) return false;
    for (const auto& region : extraRegions(n)) {
        const int r = region(x, y);
        if (r < 0) continue;
        for (int cx = 0; cx < n; ++cx)
            for (int cy = 0; cy < n; ++cy)
                if (g[cx][cy] == s && region(cx, cy) == r) return false;
    }
    return true;
}

bool solve(Grid& g, int n, int cell = 0) {
    if (cell == n * n) return true;
    const int x = cell % n, y = cell / n;
    if (g[x][y] != 0) return solve(g, n, cell + 1);
    for (int s = 1; s <= n; ++s) {
        if (!fits(g, n, x, y, s)) continue;
        g[x][y] = s;
        if (solve(g, n, cell + 1)) return true;
    }
    g[x][y] = 0;
    return false;
}

// Piece Image2(p) shows picture p / n + 1; a piece lies on a cell when its
// corner is the cell's. Moves every loose piece to a cell its picture solves.
void writeMoves(std::ostream& out, const QWidget& board, int n) {
    auto control = [&](const char* array, int index) {
        return board.findChild<QWidget*>(QStringLiteral("%1(%2)").arg(array).arg(index));
    };
    auto corner = [&](const QWidget* w) { return w->mapTo(&board, QPoint(0, 0)); };
    Grid grid(n, std::vector<int>(n, 0));
    std::map<int, std::vector<const QWidget*>> loose;  // by picture
    for (int p = 0; p < n * n; ++p) {
        const QWidget* piece = control("Image2", p);
        if (!piece) return;
        bool placed = false;
        for (int c = 0; c < n * n && !placed; ++c) {
            const QWidget* cell = control("Image1", c);
            if (cell && corner(cell) == corner(piece)) {
                grid[c % n][c / n] = p / n + 1;
                placed = true;
            }
        }
        if (!placed) loose[p / n + 1].push_back(piece);
    }
    Grid solved = grid;
    if (!solve(solved, n)) return;
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            if (grid[x][y] != 0) continue;
            auto& pieces = loose[solved[x][y]];
            if (pieces.empty()) return;
            const QPoint from = centreOf(*pieces.back());
            const QPoint to = centreOf(*control("Image1", x + n * y));
            pieces.pop_back();
            out << "move " << from.x() << ' ' << from.y() << ' ' << to.x() << ' ' << to.y() << '\n';
        }
    }
}

std::string describeScreens() {
    std::ostringstream out;
    for (const auto& [screen, name] : tables::kScreens) {
        QWidget* form = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == QLatin1String(name) && w->isVisible()) form = w;
        if (!form) continue;
        const QPoint origin = form->mapToGlobal(QPoint(0, 0));
        out << "screen " << name << ' ' << origin.x() << ' ' << origin.y() << '\n';
        if (const int boardsize = tables::boardsizeOf(screen); boardsize >= 0)
            writeMoves(out, *form, boardsize + 4);
    }
    e2e::writeTextBox(out);
    return out.str();
}

void installStateHook() {
    const QString path = qEnvironmentVariable("PIMBALO_E2E_STATE");
    if (path.isEmpty() || !qobject_cast<QApplication*>(QCoreApplication::instance())) return;
    e2e::reportEvery100ms(path, describeScreens);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(installStateHook)
