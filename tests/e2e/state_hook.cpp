// Linked only into pimbalo_e2e, the end-to-end test's build of the game: every
// 100 ms it writes "e2e_state.txt" in the working directory, telling the test
// script where the shown screens are and, for a shown board, which moves solve
// its puzzle. Screen coordinates are global pixels, as xdotool uses them.
//
//   screen <name> <x> <y>         client-area origin of a shown screen
//   window <name> <id>            its X window, as xwininfo and wmctrl take it
//   move <fx> <fy> <tx> <ty> <s>  piece centre to its solution cell's centre;
//                                 s is the piece's picture (1 to N)
//   textbox <x> <y>               centre of the text box holding the focus
//   platform <name>               the Qt platform the game runs on
//   name <row> <text>             a name the fastest-times screen shows, row
//                                 5 * level + rank, as UTF-8
//
// and, for playing a board without dragging:
//
//   layout <n> <tray columns>     the board's size and how wide its tray is
//   place <piece> <cell>          a piece (its tray slot) and the cell it solves
//   picked <piece>                the picked piece, -1 for none
//
// Every sound the game plays is appended to "e2e_sounds.txt" as
// "<file> <milliseconds since the epoch>", so that a recording of the audio
// server can be matched with the events that played it.
#include <QDateTime>
#include <sstream>

#include "board/board_screen.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "records/highscores.h"
#include "state_report.h"
#include "tables/screens.h"

namespace {

using e2e::centreOf;

// Every piece that is not given, from where it lies to the cell it solves, as
// window positions and as indices; and what the player has picked.
void writeBoard(std::ostream& out, board::Board& board) {
    const engine::Game& game = board.game();
    const int n = game.n();
    out << "layout " << n << ' ' << board.layout().trayColumns << '\n';
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x) {
            if (game.given[x][y] == 1) continue;
            // Copy y of the solution's picture belongs in row y.
            const int piece = (game.solution[x][y] - 1) * n + y, cell = x + n * y;
            const QPoint from = centreOf(board.Image2(piece)), to = centreOf(board.Image1(cell));
            out << "move " << from.x() << ' ' << from.y() << ' ' << to.x() << ' ' << to.y() << ' '
                << game.solution[x][y] << '\n';
            out << "place " << piece << ' ' << cell << '\n';
        }
    }
    out << "picked " << board.picking().picked() << '\n';
}

void writeNames(std::ostream& out, records::Highscores& scores) {
    for (int k = 0; k < scores.Label8.count(); ++k) {
        const QString name = scores.Label8(k).text();
        if (!name.isEmpty()) out << "name " << k << ' ' << name.toStdString() << '\n';
    }
}

std::string describeScreens() {
    std::ostringstream out;
    for (const auto& [screen, name] : tables::kScreens) {
        platform::Form* form = platform::screens::loaded(screen);
        if (!form || !form->isVisible()) continue;
        const QPoint origin = form->client()->mapToGlobal(QPoint(0, 0));
        out << "screen " << name << ' ' << origin.x() << ' ' << origin.y() << '\n';
        out << "window " << name << ' ' << form->winId() << '\n';
        if (auto* board = dynamic_cast<board::Board*>(form)) writeBoard(out, *board);
        if (auto* scores = dynamic_cast<records::Highscores*>(form)) writeNames(out, *scores);
    }
    e2e::writeTextBox(out);
    out << "platform " << QGuiApplication::platformName().toStdString() << '\n';
    return out.str();
}

void logSound(const std::string& file) {
    QFile log(QStringLiteral("e2e_sounds.txt"));
    if (!log.open(QIODevice::Append)) return;
    const std::string line =
        file + ' ' + std::to_string(QDateTime::currentMSecsSinceEpoch()) + '\n';
    log.write(line.data(), static_cast<qint64>(line.size()));
}

void installStateHook() {
    e2e::reportEvery100ms(QStringLiteral("e2e_state.txt"), describeScreens);
    platform::setSoundObserver(logSound);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(installStateHook)
