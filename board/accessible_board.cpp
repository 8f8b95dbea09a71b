// What a board tells assistive technology (its commands are made buttons
// where they are wired): the level number, the clock and the result banner
// read out their captions, each grid cell its row, column and picture, each piece its
// picture and where it lies, each tray place what it holds, and each
// thumbnail its picture set. The keyboard's ring is the focus a screen reader
// follows; the logo, the markers, the regions and the marks are decoration.
#include "board/board_screen.h"
#include "board/marks.h"
#include "platform/accessible.h"
#include "platform/translation.h"
#include "tables/pictures.h"
#include "tables/texts.h"

namespace board {
namespace {

namespace text = tables::board_text;

// What the label shows, in the player's language.
QString captionOf(const platform::Label& label) {
    return label.text();
}

QString said(const char* text) {
    return platform::translated("Board", text);
}

template <class A, class B>
bool samePlace(const A& a, const B& b) {
    return a.Left() == b.Left() && a.Top() == b.Top();
}

// Describes every element of an array now and each one loaded later.
template <class Control, class Describe>
void describeEach(platform::ControlArray<Control>& array, Describe describe) {
    array.forEach(describe);
    array.wire = [wired = std::move(array.wire), describe](int i, Control& control) {
        if (wired) wired(i, control);
        describe(i, control);
    };
}

}  // namespace

QString Board::spokenPicture(int piece) const {
    const auto& set = tables::catalogue(layout_.boardsize)[pictureset];
    return platform::translated("Pictures", tables::pictureName(set.kind, piece / layout_.n));
}

void Board::describeControls() {
    // The verdict is a notification: screen readers say it as it shows.
    const std::tuple<platform::Label*, const char*, QAccessible::Role> readOuts[] = {
        {&Label1(0), text::kLevelDescription, QAccessible::StaticText},
        {&Label2(1), text::kSecondsDescription, QAccessible::StaticText},
        {Label7, text::kResultDescription, QAccessible::Notification},
    };
    for (const auto& [label, meaning, role] : readOuts) {
        platform::setAccessibleText(*label, {role,
                                             [label = label] { return captionOf(*label); },
                                             [meaning = meaning] { return said(meaning); },
                                             {},
                                             {}});
    }

    // Rows and columns are counted from 1, as a child would count them.
    const int n = layout_.n;
    Image1.forEach([this, n](int c, platform::PictureBox& cell) {
        auto name = [this, n, c] {
            QString cellName = said(text::kCellName).arg(c / n + 1).arg(c % n + 1);
            for (int p = 0; p < n * n; ++p) {
                if (samePlace(Image2(p), Image1(c))) return cellName + spokenPicture(p);
            }
            return cellName + said(text::kEmptyCell);
        };
        auto description = [this, n, c] {
            return said(game_.given[c % n][c / n] == 1 ? text::kGivenCell : text::kCell);
        };
        platform::setAccessibleText(
            cell, {QAccessible::Cell, name, description, [this, c] { chooseCell(c); }, {}, true});
    });

    // Copies of a picture lie side by side in the tray, so each says which
    // copy it is.
    Image2.forEach([this, n](int k, platform::PictureBox& piece) {
        auto name = [this, n, k] {
            return said(text::kPieceName).arg(spokenPicture(k)).arg(k % n + 1).arg(n);
        };
        auto where = [this, n, k] {
            if (!Image2(k).Enabled()) return said(text::kGivenCell);
            if (samePlace(Image2(k), Image3(k))) return said(text::kPieceInTray);
            for (int c = 0; c < n * n; ++c) {
                if (samePlace(Image2(k), Image1(c)))
                    return said(text::kPieceOnCell).arg(c / n + 1).arg(c % n + 1);
            }
            return said(text::kPieceOffCells);
        };
        // A press does what Enter does with the ring on the piece.
        auto press = [this, n, k] {
            if (samePlace(Image2(k), Image3(k))) return chooseSlot(k);
            for (int c = 0; c < n * n; ++c) {
                if (samePlace(Image2(k), Image1(c))) return chooseCell(c);
            }
        };
        platform::setAccessibleText(piece, {QAccessible::Graphic, name, where, press, {}, true});
    });

    describeEach(Image3, [this](int slot, platform::PictureBox& place) {
        auto name = [this, slot] {
            const QString placeName = said(text::kTrayPlaceName).arg(slot + 1);
            const int piece = picking_.pieceAtHome(slot);
            return placeName + (piece == engine::Picking::kNone ? said(text::kEmptyCell)
                                                                : spokenPicture(piece));
        };
        platform::setAccessibleText(
            place, {QAccessible::Cell, name, {}, [this, slot] { chooseSlot(slot); }, {}, true});
    });

    const auto sets = tables::catalogue(layout_.boardsize);
    Image4.forEach([this, &sets](int i, platform::PictureBox& thumbnail) {
        if (i >= sets.size()) return platform::setDecorative(thumbnail);  // the 4x4 logo
        platform::setAccessibleText(thumbnail, {QAccessible::Button,
                                                [kind = sets[i].kind] {
                                                    return platform::translated(
                                                        "Pictures", tables::setName(kind));
                                                },
                                                [] { return said(text::kThumbnailDescription); },
                                                [this, i] { runCommand(kThumbnail + i); },
                                                {},
                                                true});
    });

    if (Image6) platform::setDecorative(*Image6);
    describeEach(Image5,
                 [](int, platform::PictureBox& marker) { platform::setDecorative(marker); });
    Shape1.forEach([](int, platform::Shape& region) { platform::setDecorative(region); });
    platform::setDecorative(*pickMark_);
    platform::setDecorative(*ringMark_);
    setAccessibleName(said(text::kBoardName).arg(n));
}

// The control the ring stands on as a screen reader should hear it: in the
// tray the piece lying in the slot, or the empty slot; in the grid the cell,
// which names its piece; among the commands a thumbnail.
QWidget* Board::ringControl() const {
    if (!ring_.shown()) return nullptr;
    switch (ring_.zone()) {
        case engine::Zone::Tray: {
            const int piece = picking_.pieceAtHome(ring_.slot());
            if (piece != engine::Picking::kNone && platform::takesInput(Image2(piece)))
                return &Image2(piece);
            return &Image3(ring_.slot());
        }
        case engine::Zone::Grid:
            return &Image1(ring_.cell());
        case engine::Zone::Commands:
            break;
    }
    // A command takes Qt's own focus from the ring (hand_play.cpp), which
    // screen readers hear without us.
    const int command = ring_.command(keyboardCommands());
    return command >= kThumbnail ? &Image4(command - kThumbnail) : nullptr;
}

// After every key and choice: a ring that moved is a focus that moved; a ring
// that stayed on a control whose name changed (a piece put on its cell, say)
// has the new name said.
void Board::announceRing() {
    QWidget* control = ringControl();
    QAccessibleInterface* spoken =
        control ? QAccessible::queryAccessibleInterface(control) : nullptr;
    const QString name = spoken ? spoken->text(QAccessible::Name) : QString();
    if (control != announced_)
        platform::announceFocus(control);
    else if (control && name != announcedName_)
        platform::announceNameChange(*control);
    announced_ = control;
    announcedName_ = name;
}

}  // namespace board
