// Judging a full grid. Only the region sums count: a grid that repeats
// pictures but adds up right in every tested region passes.
#include "engine/game.h"
#include "tables/sounds.h"
#include "tables/texts.h"

namespace engine {
namespace {

namespace text = tables::board_text;

const char* failureMessage(RegionKind kind) {
    switch (kind) {
        case RegionKind::Quarter:
            return text::kQuartersWrong;
        case RegionKind::Diagonal:
            return text::kDiagonalsWrong;
        default:
            return text::kWrong;
    }
}

}  // namespace

std::string correctIn(const std::string& shownSeconds) {
    std::string message = text::kCorrectIn;
    return message.replace(message.find("%1"), 2, shownSeconds);
}

void Game::checkanswer(const Options& opt) {
    const int size = n();
    const std::vector<Position> cells = positions(Pic::Image1);
    const std::vector<Position> pieces = positions(Pic::Image2);

    // When several pieces share a cell, the last one found counts.
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            answer[x][y] = 0;
            for (int copy = 0; copy < size; ++copy) {
                for (int s = 1; s <= size; ++s) {
                    if (pieces[pieceNumber(size, s, copy)] == cells[cellNumber(size, x, y)]) {
                        answer[x][y] = static_cast<std::int16_t>(s);
                    }
                }
            }
        }
    }

    // Start from the congratulation; every failing region overwrites it, so
    // the kind tested last (rows and columns) wins.
    if (opt.timerson == 0) {
        view_.setCaption(Lab::Label7, text::kCorrect);
    } else {
        view_.setCaption(Lab::Label7, correctIn(view_.caption(Lab::Label2_1)));
    }
    for (RegionKind kind : table().testedKinds) {
        for (const Region& region : regionsOfKind(table(), kind)) {
            int sum = 0;
            for (const CellXY& cell : region.cells) sum += answer[cell.x][cell.y];
            if (sum != table().regionSum) {
                view_.setCaption(Lab::Label7, failureMessage(kind));
                view_.setVisible(Lab::Label3_4, true);
            }
        }
    }
    view_.setVisible(Lab::Label7, true);

    // Only the congratulations begin with "C".
    const std::string verdict = view_.caption(Lab::Label7);
    if (verdict.empty() || verdict[0] != 'C') {
        play(opt, tables::kBoinkWav);
        return;
    }
    play(opt, tables::kFanf3Wav);
    view_.setVisible(Lab::Label3_4, false);
    view_.setVisible(Lab::Label3_2, true);
    view_.setTimerEnabled(Tmr::Timer1, false);
    seconds = 0;
    if (opt.timerson == 1) view_.checkhighscore();
}

void Game::timer2Tick(const Options& opt) {
    checkanswer(opt);
    view_.setTimerEnabled(Tmr::Timer2, false);
}

}  // namespace engine
