#pragma once
// One board's game: generation, set-up, drag and drop, checking, clock and
// show solution. Plain data plus the board's named procedures; the screen is
// reached only through BoardView and randomness only through RandomSource.
#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "engine/board_table.h"
#include "engine/board_view.h"
#include "engine/random_source.h"
#include "tables/options.h"

namespace engine {

// The shared options the procedures read: level, playsound and timerson (on/off
// values count as on only when 1).
using tables::Options;

// Window outer size, for the drag's edge tests.
struct WindowSize {
    float width = 15360.0f;
    float height = 11520.0f;
};

class Game {
  public:
    Game(int boardsize, BoardView& view, RandomSource& rnd);

    const BoardTable& table() const { return *table_; }
    int n() const { return table_->n; }

    // The named procedures of a board.
    void setsolution();
    void setstart(const Options& opt);
    void checkanswer(const Options& opt);
    void timer1Tick();                    // the game clock
    void timer2Tick(const Options& opt);  // the check delay: checkanswer, then Timer2 off
    void showsoln();
    void startAgain(const Options& opt);  // "Start again": givens back on, others home

    // Drag and drop of piece k. button 1 = left alone; x, y in twips relative
    // to the piece. pieceMouseMove returns true when the hand pointer should show.
    bool pieceMouseMove(int k, int button, float x, float y, WindowSize window);
    void pieceMouseUp(int k, const Options& opt);
    int coveredCells() const;

    // "New Puzzle" and a picture-set click clear the board this way before
    // the next set-up: every piece hidden and back in its own tray slot.
    void sendPiecesHome();

    // State, indexed [x][y] for grids (x the column); all 16-bit as on the board.
    std::vector<std::vector<std::int16_t>> solution;  // [x][y]
    std::vector<std::int16_t> picorder;               // index 1..N used, [0] unused
    std::int16_t mirrored = 0;
    std::int16_t turns = 0;
    std::int16_t templateNumber = 0;  // 4x4: 1 or 2
    std::array<std::int16_t, 6> swapflags{};
    std::vector<std::vector<std::int16_t>> given;   // [x][y]
    std::vector<std::vector<std::int16_t>> answer;  // [x][y]
    std::int16_t seconds = 0;
    std::int16_t pattern = 0;  // last forced-givens pattern drawn

  private:
    using Position = std::pair<float, float>;  // Left, Top

    int cellcount() const { return n() * n(); }
    // The copy chosen by the row: the solution's piece for cell (x, y).
    int solutionPiece(int x, int y) const { return pieceNumber(n(), solution[x][y], y); }
    std::vector<Position> positions(Pic pic) const;
    void moveOnto(Pic pic, int index, Pic target, int targetIndex);
    void setPiecesVisible(bool visible);
    void play(const Options& opt, const std::string& path);
    int quarterTurnsOfSolution() const;
    int quarterTurnsOfMask() const;
    void placeGiven(int x, int y);
    bool withinHalfOf(int piece, Pic target, int targetIndex) const;

    const BoardTable* table_;
    BoardView& view_;
    RandomSource& rnd_;
};

// The congratulation with the time: the clock's display as it reads,
// digits and all, in place of the pattern's "%1".
std::string correctIn(const std::string& shownSeconds);

}  // namespace engine
