// Playing a board without dragging. A click on a piece picks it and a click
// on a cell puts it there; on the keyboard a ring walks the tray, the grid
// and the commands, and Enter or Space does what a click there would. The
// rules are the engine's (Picking, FocusRing): this file turns clicks and
// keys into their calls and shows the two marks.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "board/board_screen.h"
#include "board/marks.h"
#include "records/highscores.h"
#include "tables/pictures.h"

namespace board {
namespace {

using engine::Arrow;
using engine::Picking;
using engine::Zone;

// The order the arrows walk the commands: down the left-hand column, through
// the picture sets while they are shown, then the right-hand side.
constexpr int kPictureSets = -1;
constexpr int kKeyboardOrder[] = {
    4,  // "Show solution"
    2,  // "New Puzzle"
    5,  // "Change Pictures" / "Show Rules"
    kPictureSets,
    1,  // "Start again"
    3,  // "Fastest Times"
    0,  // "Exit"
};

std::optional<Arrow> arrowOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return Arrow::Left;
        case Qt::Key_Right:
            return Arrow::Right;
        case Qt::Key_Up:
            return Arrow::Up;
        case Qt::Key_Down:
            return Arrow::Down;
        default:
            return std::nullopt;
    }
}

}  // namespace

engine::RingLayout Board::ringLayout(const BoardLayout& layout) {
    engine::RingLayout ring{layout.n, layout.trayColumns, {}, {}};
    const float half = layout.side / 2;
    for (int c = 0; c < layout.trayColumns; ++c)
        ring.trayColumnCentres.push_back(layout.trayLeft + layout.trayPitch * c + half);
    for (int x = 0; x < layout.n; ++x)
        ring.gridColumnCentres.push_back(layout.gridLeft + layout.pitch * x + half);
    return ring;
}

void Board::chooseCell(int cell) {
    afterChoice(picking_.chooseCell(cell, options(), {Width(), Height()}));
}

void Board::chooseSlot(int slot) {
    afterChoice(picking_.chooseSlot(slot, options(), {Width(), Height()}));
}

void Board::afterChoice(engine::Picking::Choice choice) {
    if (choice.handPointer) setMouseIcon(tables::kHandCursor);
    showMarks();
}

// Clicks the pieces and cells do not take: on a given piece (which takes no
// pointer events, so its board gets them), and on the bare background. On a
// cell that counts as the cell, in the tray as the tray; a click that misses
// both (the gaps between cells, say) keeps the pick, so a slightly missed
// click costs nothing.
void Board::mouseReleaseEvent(QMouseEvent* e) {
    if (e->button() != Qt::LeftButton) return;
    const float x = platform::toTwips(e->position().x());
    const float y = platform::toTwips(e->position().y());
    for (int c = 0; c < layout_.n * layout_.n; ++c) {
        const auto& cell = Image1(c);
        if (x >= cell.Left() && x < cell.Left() + cell.Width() && y >= cell.Top() &&
            y < cell.Top() + cell.Height()) {
            chooseCell(c);
            return;
        }
    }
    const int rows = (layout_.n * layout_.n + layout_.trayColumns - 1) / layout_.trayColumns;
    if (x >= layout_.trayLeft && x < layout_.trayLeft + layout_.trayColumns * layout_.trayPitch &&
        y >= layout_.trayTop && y < layout_.trayTop + rows * layout_.trayPitch)
        chooseSlot(Picking::kNone);
}

void Board::keyPressEvent(QKeyEvent* e) {
    // Keys typed into another window's box (a name for the fastest times)
    // never move anything here; nor do shortcuts with Ctrl or Alt.
    const QWidget* focus = QApplication::focusWidget();
    if ((focus && focus->window() != this) ||
        (e->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))) {
        e->ignore();
        return;
    }
    const int key = e->key();
    if (key == Qt::Key_Escape) {
        picking_.letGo();
    } else if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
        const bool forward = key == Qt::Key_Tab && !(e->modifiers() & Qt::ShiftModifier);
        if (!ring_.reveal()) ring_.tab(forward, keyboardCommands());
    } else if (auto arrow = arrowOf(key)) {
        if (!ring_.reveal()) ring_.arrow(*arrow, keyboardCommands());
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        if (!ring_.reveal()) chooseAtRing();
    } else {
        e->ignore();
        return;
    }
    showMarks();
}

// Tab walks the board's own ring, never Qt's focus chain.
bool Board::focusNextPrevChild(bool) {
    return false;
}

void Board::chooseAtRing() {
    switch (ring_.zone()) {
        case Zone::Tray:
            chooseSlot(ring_.slot());
            break;
        case Zone::Grid:
            chooseCell(ring_.cell());
            break;
        case Zone::Commands:
            if (const int command = ring_.command(keyboardCommands()); command >= 0)
                runCommand(command);
            break;
    }
}

// While the fastest times are open just for looking (no name box has the
// focus), the keys still play the board behind them, so the command that
// closes them is a key away.
bool Board::eventFilter(QObject* watched, QEvent* e) {
    if (e->type() == QEvent::KeyPress && !QApplication::focusWidget() &&
        watched == platform::screens::loaded(records::Highscores::kScreen)) {
        keyPressEvent(static_cast<QKeyEvent*>(e));
        return e->isAccepted();
    }
    return Form::eventFilter(watched, e);
}

// Every command may move the pieces, so it ends any pick first. The 4x4
// logo among the thumbnails is no command: a click on it changes nothing.
void Board::runCommand(int command) {
    if (command >= kThumbnail + layout_.pictureSets) return;
    picking_.letGo();
    showMarks();
    if (command >= kThumbnail)
        Image4_Click(command - kThumbnail);
    else
        Label3_Click(command);
    if (auto* scores = platform::screens::loaded(records::Highscores::kScreen))
        scores->installEventFilter(this);
    if (platform::screens::loaded(screen()) == this) showMarks();
}

std::vector<int> Board::keyboardCommands() const {
    std::vector<int> offered;
    for (int command : kKeyboardOrder) {
        if (command != kPictureSets) {
            if (Label3(command).Visible()) offered.push_back(command);
            continue;
        }
        for (int set = 0; set < layout_.pictureSets; ++set)
            if (Image4(set).Visible()) offered.push_back(kThumbnail + set);
    }
    return offered;
}

std::optional<QRect> Board::ringTarget() const {
    if (!ring_.shown()) return std::nullopt;
    switch (ring_.zone()) {
        case Zone::Tray:
            return Image3(ring_.slot()).geometry();
        case Zone::Grid:
            return Image1(ring_.cell()).geometry();
        case Zone::Commands:
            break;
    }
    const int command = ring_.command(keyboardCommands());
    if (command < 0) return std::nullopt;
    if (command >= kThumbnail) return Image4(command - kThumbnail).geometry();
    return Label3(command).geometry();
}

void Board::showMarks() {
    const int piece = picking_.picked();
    pickMark_->showAround(piece == Picking::kNone ? std::nullopt
                                                  : std::optional<QRect>(Image2(piece).geometry()));
    ringMark_->showAround(ringTarget());
    followRingWithFocus();
    announceRing();
}

// Screen readers follow the focus: while the ring stands on a command, that
// command holds it (and Space or Enter reach it first, which run it as the
// ring would); anywhere else the board itself takes the keys.
void Board::followRingWithFocus() {
    platform::Label* command = nullptr;
    if (ring_.shown() && ring_.zone() == Zone::Commands) {
        const int c = ring_.command(keyboardCommands());
        if (c >= 0 && c < kThumbnail) command = &Label3(c);
    }
    QWidget* now = focusWidget();
    if (command && now != command)
        command->setFocus(Qt::TabFocusReason);
    else if (!command && now && now->parentWidget() == this && dynamic_cast<platform::Label*>(now))
        now->clearFocus();
}

std::optional<QRect> Board::pickMarked() const {
    return pickMark_->marked();
}

std::optional<QRect> Board::ringMarked() const {
    return ringMark_->marked();
}

}  // namespace board
