#pragma once
// Every text the player reads or hears, grouped by the screen that shows
// it: captions, commands, headings, the rules, the verdicts, and the names
// and descriptions given to screen readers. Plain constant strings, in one
// place so that they can be translated together.
namespace tables {

// One sentence per board size, shown on its board and on the rules screen.
inline constexpr const char* kRules[] = {
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different, all the pictures in each "
    "diagonal are different and all the pictures in each quarter are different.",
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different and all the pictures along each "
    "diagonal are different.",
    "Drag and drop the pictures into the grid so that all the pictures in each row are "
    "different, all the pictures in each column are different and all the pictures in each of "
    "the six coloured rectangles are different.",
};

// The one-line notice at the foot of the title and options screens.
inline constexpr char kLegalNotice[] =
    "Pimbalo (c) 2026 The Pimbalo developers. All rights reserved.";
// The publisher's web address as the options screen shows it.
inline constexpr char kPublisherCaption[] = "www.pimbalo.example.org";

namespace title_text {
inline constexpr char kOk[] = "OK";
// The first button after a return from the options screen.
inline constexpr char kCancel[] = "Cancel";
inline constexpr char kExit[] = "Exit";
}  // namespace title_text

namespace options_text {
inline constexpr char kBoardSize[] = "Board Size";
inline constexpr const char* kSizes[] = {"4x4", "5x5", "6x6"};
inline constexpr char kTheRules[] = "The Rules";
inline constexpr char kTimersOn[] = "Timers On";
inline constexpr char kPlaySound[] = "Play Sound";
inline constexpr char kHideDesktop[] = "Hide Desktop";
inline constexpr char kLevel[] = "Level";
inline constexpr const char* kLevels[] = {"1", "2", "3"};
inline constexpr char kExit[] = "Exit";
}  // namespace options_text

namespace rules_text {
// The page buttons' captions, and the heading of each page.
inline constexpr const char* kPages[] = {"4x4 Board", "5x5 Board", "6x6 Board"};
inline constexpr char kTitle[] = "The Rules of Pimbalo";
inline constexpr char kPuzzle[] = "Puzzle";
inline constexpr char kSolution[] = "Solution";
inline constexpr char kInstallNotice[] =
    "High scores will only be saved if Pimbalo is installed on your hard disk. To install "
    "Pimbalo run the setup program on the CD-ROM.";
inline constexpr char kExit[] = "Exit";
}  // namespace rules_text

namespace board_text {
// The commands, by Label3 element.
inline constexpr const char* kCommands[] = {"Exit",          "Start again",   "New Puzzle",
                                            "Fastest Times", "Show solution", "Change Pictures"};
// Label3(5) while the thumbnails are shown, and the prompt over them.
inline constexpr char kShowRules[] = "Show Rules";
inline constexpr char kSelectPicture[] = "Select a picture";
inline constexpr char kTimeTaken[] = " Time Taken";
inline constexpr char kSeconds[] = "seconds";
inline constexpr char kLevel[] = "Level";
// The banner as designed, before any check writes a verdict into it.
inline constexpr char kBannerDesign[] = "Correct Well Done!!!";

// Verdicts of the answer check. Only the congratulations begin with "C",
// which is how the check tells them apart.
inline constexpr char kCorrect[] = "Correct, Well Done!!!";
inline constexpr char kCorrectInBefore[] = "Correct in ";  // then the seconds shown
inline constexpr char kCorrectInAfter[] = " seconds!!!";
inline constexpr char kQuartersWrong[] = "The Quarters are Wrong!";
inline constexpr char kDiagonalsWrong[] = "The Diagonals are Wrong!";
inline constexpr char kWrong[] = "Wrong, Try Again";

// For screen readers. "%1" and "%2" stand for numbers filled in.
inline constexpr char kBoardName[] = "Pimbalo %1x%1 board";
inline constexpr char kCommandDescription[] = "Board command";
inline constexpr char kLevelDescription[] = "Level";
inline constexpr char kSecondsDescription[] = "Seconds taken";
inline constexpr char kResultDescription[] = "Result";
inline constexpr char kCellName[] = "Row %1, column %2: ";  // then the picture
inline constexpr char kEmptyCell[] = "empty";
inline constexpr char kGivenCell[] = "Given, cannot be moved";
inline constexpr char kCell[] = "Grid cell";
}  // namespace board_text

namespace fastest_text {
inline constexpr const char* kTitles[] = {"Pimbalo 4x4 Fastest Times", "Pimbalo 5x5 Fastest Times",
                                          "Pimbalo 6x6 Fastest Times"};
inline constexpr char kContinue[] = "Continue";
inline constexpr const char* kLevels[] = {"Level 1", "Level 2", "Level 3"};
// The rows as designed, before the tables fill them.
inline constexpr char kDesignName[] = "Solo Play";
inline constexpr char kDesignTime[] = "88888";
inline constexpr char kTypeYourName[] = "Type your name in the box";
}  // namespace fastest_text

// The message a picture or cursor file that cannot be loaded leaves as the
// game ends: "%1" is the file, "%2" one of the reasons below or the
// system's own.
namespace error_text {
inline constexpr char kTitle[] = "Pimbalo";
inline constexpr char kCannotGoOn[] =
    "Pimbalo cannot go on: the file \"%1\" could not be loaded (%2).";
inline constexpr char kNotFound[] = "file not found";
inline constexpr char kNotACursor[] = "not a cursor file";
}  // namespace error_text

}  // namespace tables
