// What a board tells assistive technology: the commands are buttons named by
// their captions, the level number, the clock and the result banner read out
// their captions, and each grid cell its row, column and picture.
#include "board/board_screen.h"
#include "board/catalogue.h"
#include "board/picture_names.h"
#include "platform/accessible.h"

namespace board {
namespace {

QString captionOf(const platform::Label& label) {
    return QString::fromStdString(label.Caption());
}

}  // namespace

void Board::describeControls() {
    Label3.forEach([this](int i, platform::Label& command) {
        platform::setAccessibleText(
            command,
            {QAccessible::Button, [&command] { return captionOf(command); },
             [] { return QStringLiteral("Board command"); }, [this, i] { runCommand(i); }});
    });
    const std::pair<platform::Label*, const char*> readOuts[] = {
        {&Label1(0), "Level"},
        {&Label2(1), "Seconds taken"},
        {Label7, "Result"},
    };
    for (const auto& [label, meaning] : readOuts) {
        platform::setAccessibleText(*label, {QAccessible::StaticText,
                                             [label = label] { return captionOf(*label); },
                                             [meaning = meaning] { return QString(meaning); },
                                             {}});
    }

    // Rows and columns are counted from 1, as a child would count them.
    const int n = layout_.n;
    Image1.forEach([this, n](int c, platform::PictureBox& cell) {
        auto name = [this, n, c] {
            QString text = QStringLiteral("Row %1, column %2: ").arg(c / n + 1).arg(c % n + 1);
            for (int p = 0; p < n * n; ++p) {
                if (Image2(p).Left() != Image1(c).Left() || Image2(p).Top() != Image1(c).Top())
                    continue;
                const auto& set = catalogue(layout_.boardsize).at(pictureset);
                return text + QString::fromStdString(pictureName(set, p / n + 1));
            }
            return text + QStringLiteral("empty");
        };
        auto description = [this, n, c] {
            return game_.given[c % n][c / n] == 1 ? QStringLiteral("Given, cannot be moved")
                                                  : QStringLiteral("Grid cell");
        };
        platform::setAccessibleText(cell, {QAccessible::Cell, name, description, {}});
    });
    setAccessibleName(QStringLiteral("Pimbalo %1x%1 board").arg(n));
}

}  // namespace board
