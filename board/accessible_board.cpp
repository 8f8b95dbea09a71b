// What a board tells assistive technology: the commands are buttons named by
// their captions, the level number, the clock and the result banner read out
// their captions, and each grid cell its row, column and picture.
#include "board/board_screen.h"
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

}  // namespace

void Board::describeControls() {
    Label3.forEach([this](int i, platform::Label& command) {
        platform::setAccessibleText(
            command,
            {QAccessible::Button, [&command] { return captionOf(command); },
             [] { return said(text::kCommandDescription); }, [this, i] { runCommand(i); }});
    });
    const std::pair<platform::Label*, const char*> readOuts[] = {
        {&Label1(0), text::kLevelDescription},
        {&Label2(1), text::kSecondsDescription},
        {Label7, text::kResultDescription},
    };
    for (const auto& [label, meaning] : readOuts) {
        platform::setAccessibleText(*label, {QAccessible::StaticText,
                                             [label = label] { return captionOf(*label); },
                                             [meaning = meaning] { return said(meaning); },
                                             {}});
    }

    // Rows and columns are counted from 1, as a child would count them.
    const int n = layout_.n;
    Image1.forEach([this, n](int c, platform::PictureBox& cell) {
        auto name = [this, n, c] {
            QString cellName = said(text::kCellName).arg(c / n + 1).arg(c % n + 1);
            for (int p = 0; p < n * n; ++p) {
                if (Image2(p).Left() != Image1(c).Left() || Image2(p).Top() != Image1(c).Top())
                    continue;
                const auto& set = tables::catalogue(layout_.boardsize)[pictureset];
                return cellName +
                       platform::translated("Pictures", tables::pictureName(set.kind, p / n));
            }
            return cellName + said(text::kEmptyCell);
        };
        auto description = [this, n, c] {
            return said(game_.given[c % n][c / n] == 1 ? text::kGivenCell : text::kCell);
        };
        platform::setAccessibleText(cell, {QAccessible::Cell, name, description, {}});
    });
    setAccessibleName(said(text::kBoardName).arg(n));
}

}  // namespace board
