// Reading and writing lastgame.inf and highscore.inf.
#include "records/inf_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using records::FastestTimes;
using records::LastGame;

class InfFiles : public ::testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "pimbalo-records-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        dir_ = pattern;
        lastgame_ = (dir_ / "lastgame.inf").string();
        highscore_ = (dir_ / "highscore.inf").string();
    }
    void TearDown() override { fs::remove_all(dir_); }

    std::string path(const std::string& name) const { return (dir_ / name).string(); }
    static void write(const std::string& file, const std::string& bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    static std::string read(const std::string& file) {
        std::ifstream in(file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }

    fs::path dir_;
    std::string lastgame_, highscore_;
};

// A highscore.inf of n lines: every time "0" and every name empty except the
// given lines (numbered from 1).
std::string fileOf(int n, const std::vector<std::pair<int, std::string>>& lines) {
    std::vector<std::string> all(n);
    for (int i = 0; i < n; ++i) all[i] = (i % 18) < 9 ? "0" : "";
    for (const auto& [line, text] : lines) all[line - 1] = text;
    std::string out;
    for (const auto& line : all) out += line + "\r\n";
    return out;
}

TEST_F(InfFiles, LastGameKeepsWhatIsNotRead) {
    ASSERT_TRUE(records::saveLastGame(lastgame_, LastGame{1, 0, -5, 32767}));
    EXPECT_EQ(read(lastgame_), "1\r\n0\r\n-5\r\n32767\r\n");
    LastGame options;
    ASSERT_TRUE(records::loadLastGame(lastgame_, options));
    EXPECT_EQ(records::lastGameText(options), read(lastgame_));

    options = LastGame{0, 0, 0, 2};
    EXPECT_FALSE(records::loadLastGame(path("missing.inf"), options));
    write(lastgame_, "1\r\n1\r\n1\r\n");
    EXPECT_FALSE(records::loadLastGame(lastgame_, options));
    EXPECT_EQ(records::lastGameText(options), "1\r\n1\r\n1\r\n2\r\n");

    // LF-only line ends, a bad line, no final line end, lines after the fourth.
    std::istringstream edited("1\nyes\n\n1\njunk");
    EXPECT_TRUE(records::loadLastGame(edited, options));
    EXPECT_EQ(records::lastGameText(options), "1\r\n0\r\n0\r\n1\r\n");
}

TEST_F(InfFiles, HighscoreLinesGoByRankThenTable) {
    // Only 4x4 "Level 1" holds entries: 35 s at rank 1, 47 s at rank 2.
    const std::string file = fileOf(90, {{1, "35"}, {10, "Ann"}, {19, "47"}, {28, "Bo"}});
    std::istringstream in(file);
    FastestTimes t;
    ASSERT_TRUE(records::loadHighscores(in, t));
    EXPECT_EQ(t.fieldsread, 90);
    EXPECT_EQ(t.besttime[0][0][1], 47);
    EXPECT_EQ(t.bestname[0][0][1], "Bo");
    EXPECT_EQ(records::highscoreText(t), file);

    FastestTimes other;
    other.besttime[1][2][3] = -7;  // table k = 5 at rank index 3
    other.bestname[1][2][3] = "Cy";
    other.bestname[2][2][4] = "Zed";
    EXPECT_EQ(records::highscoreText(other), fileOf(90, {{60, "-7"}, {69, "Cy"}, {90, "Zed"}}));
}

TEST_F(InfFiles, HighscoreRoundTripAndNamesInLatin1) {
    FastestTimes saved;
    for (int f = 0; f < 45; ++f) {
        saved.besttime[f / 15][f / 5 % 3][f % 5] = static_cast<std::int16_t>(-300 + 17 * f);
        saved.bestname[f / 15][f / 5 % 3][f % 5] = "P" + std::to_string(f);
    }
    saved.bestname[0][1][2] = "  Zoë, \"the\" Ace  ";
    ASSERT_TRUE(records::saveHighscores(highscore_, saved));
    FastestTimes loaded;
    ASSERT_TRUE(records::loadHighscores(highscore_, loaded));
    EXPECT_EQ(records::highscoreText(loaded), read(highscore_));
    EXPECT_EQ(loaded.bestname[0][1][2], saved.bestname[0][1][2]);

    // One byte per character; what Latin-1 lacks, and line breaks, become '?'.
    FastestTimes names;
    names.bestname[0][0][0] = "Zoë";
    names.bestname[0][0][1] = "5€ 日本";
    names.bestname[0][0][2] = "two\r\nlines\xff";
    EXPECT_EQ(records::highscoreText(names),
              fileOf(90, {{10, "Zo\xeb"}, {28, "5? ??"}, {46, "two??lines?"}}));
}

TEST_F(InfFiles, BadOrShortHighscoreKeepsEverythingElse) {
    // A time line that is not a 16-bit decimal reads as 0 and costs nothing else.
    std::istringstream bad(fileOf(
        90, {{1, "abc"}, {2, ""}, {3, "32768"}, {4, " 12 "}, {5, "-32768"}, {10, "\xc9ve"}}));
    FastestTimes t;
    t.besttime[0][0][0] = 99;
    ASSERT_TRUE(records::loadHighscores(bad, t));
    EXPECT_EQ(t.besttime[0][0][0], 0);
    EXPECT_EQ(t.besttime[0][2][0], 0);
    EXPECT_EQ(t.besttime[1][0][0], 12);
    EXPECT_EQ(t.besttime[1][1][0], -32768);
    EXPECT_EQ(t.bestname[0][0][0], "Éve");

    t.bestname[2][2][4] = "old";
    EXPECT_FALSE(records::loadHighscores(path("missing.inf"), t));
    EXPECT_EQ(t.fieldsread, 0);
    write(highscore_, fileOf(89, {{89, "new"}}));
    EXPECT_FALSE(records::loadHighscores(highscore_, t));
    EXPECT_EQ(t.fieldsread, 89);
    EXPECT_EQ(t.bestname[2][1][4], "new");
    EXPECT_EQ(t.bestname[2][2][4], "old");
}

TEST_F(InfFiles, SaveKeepsRecordsTheRunNeverRead) {
    FastestTimes t;
    LastGame options;
    // First run, no files: the exit save creates both.
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(lastgame_), "0\r\n0\r\n0\r\n0\r\n");
    EXPECT_EQ(read(highscore_), fileOf(90, {}));

    // lastgame.inf is missing, so highscore.inf is never read.
    const std::string records = fileOf(90, {{1, "35"}, {10, "Ann"}, {90, "Zed"}});
    write(highscore_, records);
    fs::remove(lastgame_);
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), records);

    // A short file is read as far as it goes; the save makes it whole.
    write(highscore_, fileOf(89, {{1, "35"}}));
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), fileOf(90, {{1, "35"}}));

    // After a complete read the tables in memory are what is saved.
    ASSERT_TRUE(records::loadBoth(lastgame_, highscore_, options, t));
    std::int16_t newrank = 0;
    ASSERT_TRUE(records::rankTime(t, 0, 0, "20", 0, newrank));
    t.bestname[0][0][newrank] = "Bo";
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), fileOf(90, {{1, "20"}, {10, "Bo"}, {19, "35"}}));
}

TEST_F(InfFiles, FailedSaveLeavesTheOldFilesWhole) {
    write(lastgame_, "1\r\n1\r\n1\r\n1\r\n");
    const std::string records = fileOf(90, {{1, "35"}});
    write(highscore_, records);
    const FastestTimes empty;
    // The first failure abandons the rest.
    EXPECT_FALSE(records::saveBoth(path("none/lastgame.inf"), highscore_, {}, empty));
    EXPECT_EQ(read(highscore_), records);
    // A file stands where the folder should be: lastgame.inf was written.
    EXPECT_FALSE(records::saveBoth(lastgame_, path("highscore.inf/x.inf"), {}, empty));
    EXPECT_EQ(read(lastgame_), "0\r\n0\r\n0\r\n0\r\n");
    // The temporary file cannot be made, or cannot replace the old file.
    fs::create_directory(path("highscore.inf.tmp"));
    EXPECT_FALSE(records::saveHighscores(highscore_, empty));
    fs::remove(path("highscore.inf.tmp"));
    fs::create_directories(path("folder.inf/in-use"));
    EXPECT_FALSE(records::saveHighscores(path("folder.inf"), empty));
    EXPECT_FALSE(fs::exists(path("folder.inf.tmp")));
    EXPECT_EQ(read(highscore_), records);

    // A temporary file left by an interrupted save does not get in the way.
    write(path("highscore.inf.tmp"), "half");
    EXPECT_TRUE(records::saveHighscores(highscore_, empty));
    EXPECT_EQ(read(highscore_), fileOf(90, {}));
}

}  // namespace
