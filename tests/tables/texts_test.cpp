// The texts the game builds on: the answer check tells a congratulation from
// a complaint by its first letter, and the screen readers' texts keep the
// places their numbers go.
#include "tables/texts.h"

#include <gtest/gtest.h>

#include <string>

namespace text = tables::board_text;

TEST(Texts, OnlyTheCongratulationsBeginWithC) {
    for (const char* correct : {text::kCorrect, text::kCorrectIn})
        EXPECT_EQ(correct[0], 'C') << correct;
    for (const char* wrong : {text::kQuartersWrong, text::kDiagonalsWrong, text::kWrong})
        EXPECT_NE(wrong[0], 'C') << wrong;
}

TEST(Texts, SpokenTextsKeepTheirNumbers) {
    const std::string board = text::kBoardName, cell = text::kCellName;
    EXPECT_NE(board.find("%1"), std::string::npos);
    EXPECT_NE(cell.find("%1"), std::string::npos);
    EXPECT_NE(cell.find("%2"), std::string::npos);
    EXPECT_LT(cell.find("%1"), cell.find("%2"));  // the row is said first
}

// Each board has its own rule and its own fastest-times title.
TEST(Texts, EachBoardSizeHasItsOwnRuleAndTitle) {
    for (int a = 0; a < 3; ++a) {
        for (int b = a + 1; b < 3; ++b) {
            EXPECT_STRNE(tables::kRules[a], tables::kRules[b]);
            EXPECT_STRNE(tables::fastest_text::kTitles[a], tables::fastest_text::kTitles[b]);
            EXPECT_STRNE(tables::rules_text::kPages[a], tables::rules_text::kPages[b]);
        }
    }
}
