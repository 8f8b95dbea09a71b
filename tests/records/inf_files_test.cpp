// Reading and writing lastgame.inf and highscore.inf.
#include "records/inf_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace {

namespace fs = std::filesystem;
using records::FastestTimes;
using tables::Options;

void write(const std::string& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}

std::string read(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// A highscore.inf of n lines: every time "0" and every name empty except the
// given lines (numbered from 1).
std::string fileOf(int n, const std::map<int, std::string>& lines) {
    std::string out;
    for (int i = 1; i <= n; ++i) {
        const auto given = lines.find(i);
        out += (given != lines.end() ? given->second : (i - 1) % 18 < 9 ? "0" : "") + "\r\n";
    }
    return out;
}

class InfFiles : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_NE(mkdtemp(dir_.data()), nullptr);
        lastgame_ = path("lastgame.inf");
        highscore_ = path("highscore.inf");
    }
    void TearDown() override { fs::remove_all(dir_); }
    std::string path(const std::string& name) const { return dir_ + "/" + name; }

    std::string dir_ = (fs::temp_directory_path() / "pimbalo-records-XXXXXX").string();
    std::string lastgame_, highscore_;
};

TEST_F(InfFiles, LastGameKeepsWhatIsNotRead) {
    // The level (2) lies among the options in memory but is never written.
    ASSERT_TRUE(records::saveLastGame(lastgame_, Options{1, 0, -5, 2, 32767}));
    EXPECT_EQ(read(lastgame_), "1\r\n0\r\n-5\r\n32767\r\n");
    Options options;
    ASSERT_TRUE(records::loadLastGame(lastgame_, options));
    EXPECT_EQ(records::lastGameText(options), read(lastgame_));

    write(lastgame_, "0\nyes\n\n");  // LF-only line ends, a bad and an empty line
    EXPECT_FALSE(records::loadLastGame(lastgame_, options));
    EXPECT_EQ(records::lastGameText(options), "0\r\n0\r\n0\r\n32767\r\n");
    write(lastgame_, "1\r\n1\r\n1\r\n2");  // no line end after the last
    EXPECT_TRUE(records::loadLastGame(lastgame_, options));
    EXPECT_EQ(records::lastGameText(options), "1\r\n1\r\n1\r\n2\r\n");
}

TEST_F(InfFiles, HighscoreLinesGoByRankThenTableWithNamesInLatin1) {
    FastestTimes t;
    t.bestname[0][1][2] = " Zoë \"Ace\" ";  // blanks and quotes are kept
    t.besttime[1][2][3] = -7;               // table k = size * 3 + level = 5, rank index 3
    t.bestname[1][2][3] = "5€ 日本";
    t.bestname[2][2][4] = "two\r\nlines\xff";
    const std::string text =
        fileOf(90, {{47, " Zo\xeb \"Ace\" "}, {60, "-7"}, {69, "5? ??"}, {90, "two??lines?"}});
    ASSERT_TRUE(records::saveHighscores(highscore_, t));
    EXPECT_EQ(read(highscore_), text);
    FastestTimes loaded;
    ASSERT_TRUE(records::loadHighscores(highscore_, loaded));
    EXPECT_EQ(records::highscoreText(loaded), text);
    EXPECT_EQ(loaded.bestname[0][1][2], t.bestname[0][1][2]);
}

TEST_F(InfFiles, BadHighscoreLinesCostOnlyThemselves) {
    // A time line that is not a 16-bit decimal reads as 0.
    write(highscore_, fileOf(90, {{1, "abc"}, {2, ""}, {3, "32768"}, {4, " 12 "}, {5, "-32768"}}));
    FastestTimes t;
    t.besttime[0][0][0] = 99;
    ASSERT_TRUE(records::loadHighscores(highscore_, t));
    EXPECT_EQ(records::highscoreText(t), fileOf(90, {{4, "12"}, {5, "-32768"}}));
    EXPECT_FALSE(records::loadHighscores(path("missing.inf"), t));
    EXPECT_EQ(t.fieldsread, 0);
}

TEST_F(InfFiles, SaveKeepsRecordsTheRunNeverRead) {
    FastestTimes t;
    Options options;
    // First run, no files: the exit save creates both.
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), fileOf(90, {}));

    // lastgame.inf is missing, so highscore.inf is never read.
    const std::string records = fileOf(90, {{1, "35"}, {10, "Ann"}, {90, "Zed"}});
    write(highscore_, records);
    fs::remove(lastgame_);
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), records);

    // A short file is read as far as it goes; the save makes it whole with
    // what the tables hold.
    write(highscore_, fileOf(89, {{1, "35"}, {89, "new"}}));
    t.bestname[2][2][4] = "old";
    EXPECT_FALSE(records::loadBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(t.fieldsread, 89);
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_), fileOf(90, {{1, "35"}, {89, "new"}, {90, "old"}}));

    // After a complete read the tables in memory are what is saved.
    ASSERT_TRUE(records::loadBoth(lastgame_, highscore_, options, t));
    std::int16_t newrank = 0;
    ASSERT_TRUE(records::rankTime(t, 0, 0, "20", 0, newrank));
    t.bestname[0][0][newrank] = "Bo";
    ASSERT_TRUE(records::saveBoth(lastgame_, highscore_, options, t));
    EXPECT_EQ(read(highscore_),
              fileOf(90, {{1, "20"}, {10, "Bo"}, {19, "35"}, {89, "new"}, {90, "old"}}));
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
    // The temporary file cannot replace a folder, and is not left behind.
    fs::create_directories(path("folder.inf/in-use"));
    EXPECT_FALSE(records::saveHighscores(path("folder.inf"), empty));
    EXPECT_FALSE(fs::exists(path("folder.inf.tmp")));

    // A temporary file left by an interrupted save does not get in the way.
    write(path("highscore.inf.tmp"), "half");
    EXPECT_TRUE(records::saveHighscores(highscore_, empty));
    EXPECT_EQ(read(highscore_), fileOf(90, {}));
}

// A file the player may not write is never replaced by the rename-over save,
// even in a writable folder: the save fails and both files stay as they were.
// A file that is replaced keeps its permissions. Root may write any file, so
// this needs an ordinary user: CI runs it as one (records_tests_as_player).
TEST_F(InfFiles, FilesThePlayerMayNotWriteStayAsTheyAre) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may write any file; run as an ordinary user";
    const std::string oldOptions = "1\r\n1\r\n1\r\n1\r\n", oldRecords = fileOf(90, {{1, "35"}});
    const Options options{0, 1, 0, 0, 2};
    FastestTimes tables;
    tables.besttime[0][0][0] = 12;
    auto identity = [](const std::string& file) {
        struct stat status {};
        EXPECT_EQ(::stat(file.c_str(), &status), 0) << file;
        return std::pair(status.st_ino, status.st_mode & 07777);
    };

    for (const std::string* readOnly : {&lastgame_, &highscore_}) {
        write(lastgame_, oldOptions);
        write(highscore_, oldRecords);
        fs::permissions(*readOnly, fs::perms::owner_read | fs::perms::group_read);
        const auto before = identity(*readOnly);
        EXPECT_FALSE(records::saveBoth(lastgame_, highscore_, options, tables)) << *readOnly;
        EXPECT_EQ(identity(*readOnly), before) << *readOnly;
        EXPECT_EQ(read(highscore_), oldRecords);
        // lastgame.inf comes first: it is written only when it may be.
        EXPECT_EQ(read(lastgame_),
                  readOnly == &lastgame_ ? oldOptions : records::lastGameText(options));
        EXPECT_FALSE(fs::exists(*readOnly + ".tmp"));
        fs::remove(*readOnly);
    }

    write(highscore_, oldRecords);
    fs::permissions(highscore_, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(records::saveHighscores(highscore_, tables));
    EXPECT_EQ(identity(highscore_).second, 0600u);
    EXPECT_EQ(read(highscore_), records::highscoreText(tables));
}

}  // namespace
