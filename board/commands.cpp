// The six command labels and the picture-set thumbnails of a board.
#include "board/board_screen.h"
#include "platform/form.h"
#include "records/highscores.h"
#include "records/inf_files.h"
#include "shell/module1.h"
#include "tables/sounds.h"
#include "tables/texts.h"

namespace board {
namespace {

namespace text = tables::board_text;

enum Command { Exit, StartAgain, NewPuzzle, FastestTimes, ShowSolution, SwitchPanel };

void closeFastestTimes() {
    platform::screens::unload(records::Highscores::kScreen);
}

}  // namespace

void Board::Label3_Click(int index) {
    // Whatever the fastest-times screen was showing, a command closes it first.
    closeFastestTimes();
    switch (index) {
        case Exit:
            exitBoard();
            break;
        case StartAgain:
            game_.startAgain(options());
            break;
        case NewPuzzle:
            newPuzzle();
            break;
        case FastestTimes:
            records::openForViewing(shell::module1(), shell::module1().boardsize, BackColor());
            break;
        case ShowSolution:
            showSolution();
            break;
        case SwitchPanel:
            switchPanel();
            break;
        default:
            break;
    }
}

// Leaving the board is the one moment the options and the fastest times are
// written. A failed save is silent: the player still gets back to the options.
void Board::exitBoard() {
    const auto& m = shell::module1();
    try {
        records::saveBoth(records::kLastGameFile, records::kHighscoreFile, m, m);
    } catch (...) {
    }
    platform::screens::show(tables::Screen::Startplay2);
    closeFastestTimes();
    platform::screens::unload(screen());
    play(tables::kClickWav);
}

void Board::newPuzzle() {
    Label7->hide();
    Label3(ShowSolution).show();
    game_.sendPiecesHome();
    startNewGame();
    play(tables::kSpaceWav);
}

void Board::showSolution() {
    Label7->hide();
    game_.showsoln();
    Label3(NewPuzzle).show();
    play(tables::kMetal2Wav);
}

void Board::switchPanel() {
    const bool showThumbnails = iconson == 0;
    Label3(SwitchPanel)
        .setCaption(showThumbnails ? text::kShowRules : text::kCommands[SwitchPanel]);
    Image4.forEach(
        [&](int, platform::PictureBox& thumbnail) { thumbnail.setVisible(showThumbnails); });
    Label1(1).setCaption(showThumbnails ? text::kSelectPicture : layout_.rulesText);
    iconson = (iconson + 1) % 2;
    play(tables::kSpaceWav);
}

// A thumbnail starts a new puzzle in its set; the panel stays open so the
// player can go on choosing. The 4x4 logo sits among the thumbnails but is
// not a set.
void Board::Image4_Click(int index) {
    if (index >= layout_.pictureSets) return;
    pictureset = index;
    Label7->hide();
    game_.sendPiecesHome();
    startNewGame();
    play(tables::kSpaceWav);
}

void Board::startNewGame() {
    setpicture();
    game_.setsolution();
    game_.setstart(options());
}

}  // namespace board
