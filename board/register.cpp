#include "board/register.h"

#include "board/board_layout.h"
#include "board/board_screen.h"
#include "platform/form.h"

namespace board {

void registerScreens() {
    for (int size = 0; size < 3; ++size) {
        const BoardLayout& layout = boardLayout(size);
        platform::screens::registerScreen(tables::boardScreen(size),
                                          [&layout] { return new Board(layout); });
    }
}

}  // namespace board
