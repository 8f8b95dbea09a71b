#include "board/board_layout.h"

#include <array>

#include "tables/pictures.h"
#include "tables/texts.h"

namespace board {
namespace {

using A = LabelArray;
using L = LabelLookKind;
namespace text = tables::board_text;

// The labels as the 4x4 screen has them; the other sizes move a few (below).
const std::vector<LabelDesign>& commonLabels() {
    static const std::vector<LabelDesign> labels = {
        {A::Label3, 0, text::kCommands[0], {13740, 10680, 1245, 555}, 18, L::Command, true},
        {A::Label3, 1, text::kCommands[1], {1125, 10680, 3345, 555}, 18, L::Command, true},
        {A::Label3, 2, text::kCommands[2], {1080, 4920, 3345, 555}, 18, L::Command, true},
        {A::Label3, 3, text::kCommands[3], {13200, 8880, 1785, 1095}, 20.25, L::Command, false},
        {A::Label3, 4, text::kCommands[4], {1080, 4080, 3345, 555}, 18, L::Command, true},
        {A::Label3, 5, text::kCommands[5], {1080, 5760, 3345, 555}, 18, L::Command, true},
        {A::Label1, 0, "1", {13620, 4860, 975, 855}, 32.25, L::LevelNumber, true},
        {A::Label1, 1, "", {300, 6540, 4905, 4155}, 18, L::Text, true},
        {A::Label2, 0, text::kTimeTaken, {13200, 6120, 1785, 1275}, 24, L::Text, false},
        {A::Label2, 1, "0", {13200, 7320, 1785, 675}, 24, L::FramedText, false},
        {A::Label2, 2, text::kSeconds, {12960, 8040, 2265, 555}, 21.75, L::Text, false},
        {A::Label2, 3, text::kLevel, {13200, 4140, 1785, 600}, 27.75, L::Text, true},
        {A::Label7, 0, text::kBannerDesign, {5760, 3480, 6945, 675}, 26.25, L::Text, false},
    };
    return labels;
}

// What the labels of one size do differently from the common table.
struct LabelChanges {
    float newPuzzleTop;
    float fastestTimesTop;
    float showSolutionTop;
    float changePicturesTop;
    Rect rules;
    float bannerTop;
    double bannerPoints;
};

std::vector<LabelDesign> labelsWith(const LabelChanges& c, const std::string& rulesText) {
    std::vector<LabelDesign> labels = commonLabels();
    for (LabelDesign& design : labels) {
        if (design.array == A::Label3 && design.index == 2) design.rect.top = c.newPuzzleTop;
        if (design.array == A::Label3 && design.index == 3) design.rect.top = c.fastestTimesTop;
        if (design.array == A::Label3 && design.index == 4) design.rect.top = c.showSolutionTop;
        if (design.array == A::Label3 && design.index == 5) design.rect.top = c.changePicturesTop;
        if (design.array == A::Label1 && design.index == 1) {
            design.rect = c.rules;
            design.caption = rulesText;
        }
        if (design.array == A::Label7) {
            design.rect.top = c.bannerTop;
            design.points = c.bannerPoints;
        }
    }
    return labels;
}

BoardLayout make(int boardsize, const LabelChanges& changes) {
    BoardLayout b;
    static_cast<tables::BoardGeometry&>(b) = tables::boardGeometry(boardsize);
    b.boardsize = boardsize;
    b.pictureSets = tables::catalogue(boardsize).size();
    b.rulesText = tables::kRules[boardsize];
    b.labels = labelsWith(changes, b.rulesText);
    return b;
}

}  // namespace

const BoardLayout& boardLayout(int boardsize) {
    static const std::array<BoardLayout, 3> layouts = {
        make(0, {4920, 8880, 4080, 5760, {300, 6540, 4905, 4155}, 3480, 26.25}),
        make(1, {5040, 9120, 4200, 5880, {180, 6600, 5265, 3075}, 3240, 26.25}),
        make(2, {4740, 9000, 3960, 5520, {300, 6240, 4785, 3435}, 3525, 24}),
    };
    return layouts.at(boardsize);
}

std::optional<std::uint32_t> levelColour(int level) {
    if (level < 0 || level >= tables::kLevels) return std::nullopt;
    return tables::kLevelColours[level];
}

}  // namespace board
