#pragma once
// Every text the player reads or hears, grouped by the screen that shows
// it: captions, commands, headings, the rules, the verdicts, and the names
// and descriptions given to screen readers. Plain constant strings, in one
// place so that they can be translated together.
#include "tables/translatable.h"

namespace tables {

// One sentence per board size, shown on its board and on the rules screen.
inline constexpr const char* kRules[] = {
    QT_TRANSLATE_NOOP(
        "Rules",
        "Drag and drop the pictures into the grid so that all the pictures in each row are "
        "different, all the pictures in each column are different, all the pictures in each "
        "diagonal are different and all the pictures in each quarter are different."),
    QT_TRANSLATE_NOOP(
        "Rules",
        "Drag and drop the pictures into the grid so that all the pictures in each row are "
        "different, all the pictures in each column are different and all the pictures along each "
        "diagonal are different."),
    QT_TRANSLATE_NOOP(
        "Rules",
        "Drag and drop the pictures into the grid so that all the pictures in each row are "
        "different, all the pictures in each column are different and all the pictures in each of "
        "the six coloured rectangles are different."),
};

// The one-line notice at the foot of the title and options screens.
inline constexpr char kLegalNotice[] =
    QT_TRANSLATE_NOOP("Common", "Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.");
// The publisher's web address as the options screen shows it.
inline constexpr char kPublisherCaption[] = "www.pimbalo.example.org";

namespace title_text {
inline constexpr char kOk[] = QT_TRANSLATE_NOOP("Title", "OK");
// The first button after a return from the options screen.
inline constexpr char kCancel[] = QT_TRANSLATE_NOOP("Title", "Cancel");
inline constexpr char kExit[] = QT_TRANSLATE_NOOP("Title", "Exit");
}  // namespace title_text

namespace options_text {
inline constexpr char kBoardSize[] = QT_TRANSLATE_NOOP("Options", "Board Size");
inline constexpr const char* kSizes[] = {"4x4", "5x5", "6x6"};
inline constexpr char kTheRules[] = QT_TRANSLATE_NOOP("Options", "The Rules");
inline constexpr char kTimersOn[] = QT_TRANSLATE_NOOP("Options", "Timers On");
inline constexpr char kPlaySound[] = QT_TRANSLATE_NOOP("Options", "Play Sound");
inline constexpr char kHideDesktop[] = QT_TRANSLATE_NOOP("Options", "Hide Desktop");
inline constexpr char kLevel[] = QT_TRANSLATE_NOOP("Options", "Level");
inline constexpr const char* kLevels[] = {"1", "2", "3"};
inline constexpr char kExit[] = QT_TRANSLATE_NOOP("Options", "Exit");
}  // namespace options_text

namespace rules_text {
// The page buttons' captions, and the heading of each page.
inline constexpr const char* kPages[] = {QT_TRANSLATE_NOOP("Rules", "4x4 Board"),
                                         QT_TRANSLATE_NOOP("Rules", "5x5 Board"),
                                         QT_TRANSLATE_NOOP("Rules", "6x6 Board")};
inline constexpr char kTitle[] = QT_TRANSLATE_NOOP("Rules", "The Rules of Pimbalo");
inline constexpr char kPuzzle[] = QT_TRANSLATE_NOOP("Rules", "Puzzle");
inline constexpr char kSolution[] = QT_TRANSLATE_NOOP("Rules", "Solution");
inline constexpr char kInstallNotice[] = QT_TRANSLATE_NOOP(
    "Rules",
    "High scores will only be saved if Pimbalo is installed on your hard disk. To install "
    "Pimbalo run the setup program on the CD-ROM.");
inline constexpr char kExit[] = QT_TRANSLATE_NOOP("Rules", "Exit");
}  // namespace rules_text

namespace board_text {
// The commands, by Label3 element.
inline constexpr const char* kCommands[] = {
    QT_TRANSLATE_NOOP("Board", "Exit"),          QT_TRANSLATE_NOOP("Board", "Start again"),
    QT_TRANSLATE_NOOP("Board", "New Puzzle"),    QT_TRANSLATE_NOOP("Board", "Fastest Times"),
    QT_TRANSLATE_NOOP("Board", "Show solution"), QT_TRANSLATE_NOOP("Board", "Change Pictures")};
// Label3(5) while the thumbnails are shown, and the prompt over them.
inline constexpr char kShowRules[] = QT_TRANSLATE_NOOP("Board", "Show Rules");
inline constexpr char kSelectPicture[] = QT_TRANSLATE_NOOP("Board", "Select a picture");
inline constexpr char kTimeTaken[] = QT_TRANSLATE_NOOP("Board", " Time Taken");
inline constexpr char kSeconds[] = QT_TRANSLATE_NOOP("Board", "seconds");
inline constexpr char kLevel[] = QT_TRANSLATE_NOOP("Board", "Level");
// The banner as designed, before any check writes a verdict into it.
inline constexpr char kBannerDesign[] = QT_TRANSLATE_NOOP("Board", "Correct Well Done!!!");

// Verdicts of the answer check. Only the congratulations begin with "C",
// which is how the check tells them apart.
inline constexpr char kCorrect[] = QT_TRANSLATE_NOOP("Board", "Correct, Well Done!!!");
// "%1" stands for the seconds shown by the clock.
inline constexpr char kCorrectIn[] = QT_TRANSLATE_NOOP("Board", "Correct in %1 seconds!!!");
inline constexpr char kQuartersWrong[] = QT_TRANSLATE_NOOP("Board", "The Quarters are Wrong!");
inline constexpr char kDiagonalsWrong[] = QT_TRANSLATE_NOOP("Board", "The Diagonals are Wrong!");
inline constexpr char kWrong[] = QT_TRANSLATE_NOOP("Board", "Wrong, Try Again");

// For screen readers. "%1" and "%2" stand for numbers filled in.
inline constexpr char kBoardName[] = QT_TRANSLATE_NOOP("Board", "Pimbalo %1x%1 board");
inline constexpr char kCommandDescription[] = QT_TRANSLATE_NOOP("Board", "Board command");
inline constexpr char kLevelDescription[] = QT_TRANSLATE_NOOP("Board", "Level");
inline constexpr char kSecondsDescription[] = QT_TRANSLATE_NOOP("Board", "Seconds taken");
inline constexpr char kResultDescription[] = QT_TRANSLATE_NOOP("Board", "Result");
inline constexpr char kCellName[] =
    QT_TRANSLATE_NOOP("Board", "Row %1, column %2: ");  // then the picture
inline constexpr char kEmptyCell[] = QT_TRANSLATE_NOOP("Board", "empty");
inline constexpr char kGivenCell[] = QT_TRANSLATE_NOOP("Board", "Given, cannot be moved");
inline constexpr char kCell[] = QT_TRANSLATE_NOOP("Board", "Grid cell");
}  // namespace board_text

namespace fastest_text {
inline constexpr const char* kTitles[] = {
    QT_TRANSLATE_NOOP("FastestTimes", "Pimbalo 4x4 Fastest Times"),
    QT_TRANSLATE_NOOP("FastestTimes", "Pimbalo 5x5 Fastest Times"),
    QT_TRANSLATE_NOOP("FastestTimes", "Pimbalo 6x6 Fastest Times")};
inline constexpr char kContinue[] = QT_TRANSLATE_NOOP("FastestTimes", "Continue");
inline constexpr const char* kLevels[] = {QT_TRANSLATE_NOOP("FastestTimes", "Level 1"),
                                          QT_TRANSLATE_NOOP("FastestTimes", "Level 2"),
                                          QT_TRANSLATE_NOOP("FastestTimes", "Level 3")};
// The rows as designed, before the tables fill them.
inline constexpr char kDesignName[] = QT_TRANSLATE_NOOP("FastestTimes", "Solo Play");
inline constexpr char kDesignTime[] = "88888";
inline constexpr char kTypeYourName[] =
    QT_TRANSLATE_NOOP("FastestTimes", "Type your name in the box");
}  // namespace fastest_text

// The message a picture or cursor file that cannot be loaded leaves as the
// game ends: "%1" is the file, "%2" one of the reasons below or the
// system's own.
namespace error_text {
inline constexpr char kTitle[] = QT_TRANSLATE_NOOP("Error", "Pimbalo");
inline constexpr char kCannotGoOn[] =
    QT_TRANSLATE_NOOP("Error", "Pimbalo cannot go on: the file \"%1\" could not be loaded (%2).");
inline constexpr char kNotFound[] = QT_TRANSLATE_NOOP("Error", "file not found");
inline constexpr char kNotACursor[] = QT_TRANSLATE_NOOP("Error", "not a cursor file");
}  // namespace error_text

}  // namespace tables
