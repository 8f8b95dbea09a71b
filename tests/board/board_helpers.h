#pragma once
// Opening a board with chosen options and driving it with real mouse events
// through its window (window pixels; the boards' twips are all multiples of
// 15, so every position below is exact).
#include <QtTest>
#include <functional>
#include <string>
#include <vector>

#include "board/board_screen.h"
#include "platform/form.h"
#include "records/highscores.h"
#include "shell/module1.h"

namespace boardtest {

enum Command { Exit, StartAgain, NewPuzzle, FastestTimes, ShowSolution, SwitchPanel };

inline std::vector<std::string> heard;  // every sound asked for (see the test's set-up)
inline std::vector<std::string> takeSounds() {
    return std::exchange(heard, {});
}

inline board::Board& openBoard(int size, int level = 2, int timerson = 0) {
    auto& m = shell::module1();
    m.level = static_cast<std::int16_t>(level);
    m.timerson = static_cast<std::int16_t>(timerson);
    m.playsound = 1;
    m.boardsize = static_cast<std::int16_t>(size);
    const std::string name = board::boardLayout(size).screenName;
    platform::screens::show(name);
    auto& b = platform::screens::get<board::Board>(name);
    if (!QTest::qWaitForWindowExposed(&b)) throw std::runtime_error("board not exposed");
    takeSounds();
    return b;
}

inline void closeScreens() {
    for (int size = 0; size < 3; ++size)
        platform::screens::unload(board::boardLayout(size).screenName);
    platform::screens::unload(records::Highscores::kName);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

inline QPoint pixel(float left, float top) {
    return {platform::toPixels(left), platform::toPixels(top)};
}
template <class Control>
QPoint centre(const Control& c) {
    return pixel(c.Left() + c.Width() / 2, c.Top() + c.Height() / 2);
}
template <class Control>
void click(board::Board& b, const Control& c) {
    QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, centre(c));
}

// Press over the piece's centre, one move to `to`, release there.
inline void drag(board::Board& b, int piece, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(b.windowHandle(), button, {}, centre(b.Image2(piece)));
    QTest::mouseMove(b.windowHandle(), to);
    QTest::mouseRelease(b.windowHandle(), button, {}, to);
}
// Drops the piece with its top-left corner at the target's plus an offset.
inline void dragTo(board::Board& b, int piece, const platform::PictureBox& target, float dx = 0,
                   float dy = 0) {
    const float half = b.layout().side / 2;
    drag(b, piece, pixel(target.Left() + dx + half, target.Top() + dy + half));
}

inline bool liesOn(const platform::PictureBox& a, const platform::PictureBox& b) {
    return a.Left() == b.Left() && a.Top() == b.Top();
}
inline int pieceOn(const board::Board& b, int cell) {
    for (int p = 0; p < b.cellcount; ++p)
        if (liesOn(b.Image2(p), b.Image1(cell))) return p;
    return -1;
}
inline bool isGiven(const board::Board& b, int cell) {
    return b.game().given[cell % b.layout().n][cell / b.layout().n] == 1;
}
inline int solutionPiece(const board::Board& b, int cell) {
    const int n = b.layout().n, x = cell % n, y = cell / n;
    return engine::pieceNumber(n, b.game().solution[x][y], y);
}
inline int firstCell(const board::Board& b, bool given) {
    for (int c = 0; c < b.cellcount; ++c)
        if (isGiven(b, c) == given) return c;
    return -1;
}
// Drags the chosen piece onto every empty cell, row by row.
inline void fillEmptyCells(board::Board& b, const std::function<int(int cell)>& pieceFor) {
    for (int c = 0; c < b.cellcount; ++c)
        if (pieceOn(b, c) < 0) dragTo(b, pieceFor(c), b.Image1(c));
}

}  // namespace boardtest
