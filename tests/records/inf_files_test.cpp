// Reading and writing lastgame.inf and highscore.inf.
#include "records/inf_files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
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

TEST_F(InfFiles, HighscoreLinesGoByRankThenTableWithNamesInUtf8) {
    FastestTimes t;
    t.bestname[0][1][2] = " Zoë \"Ace\" ";  // blanks and quotes are kept
    t.besttime[1][2][3] = -7;               // table k = size * 3 + level = 5, rank index 3
    t.bestname[1][2][3] = "Наташа 5€ 日本 🦊";
    t.bestname[2][2][4] = "two\r\nlines\xff";  // not UTF-8: written as the reading takes it
    const std::string text = fileOf(
        90,
        {{47, t.bestname[0][1][2]}, {60, "-7"}, {69, t.bestname[1][2][3]}, {90, "two??linesÿ"}});
    ASSERT_TRUE(records::saveHighscores(highscore_, t));
    EXPECT_EQ(read(highscore_), text);
    FastestTimes loaded;
    ASSERT_TRUE(records::loadHighscores(highscore_, loaded));
    EXPECT_EQ(records::highscoreText(loaded), text);
    EXPECT_EQ(loaded.bestname[1][2][3], t.bestname[1][2][3]);
}

TEST_F(InfFiles, BadHighscoreLinesCostOnlyThemselves) {
    // A time line that is not a 16-bit decimal reads as 0. A name line that is
    // not UTF-8 (an older game's Latin-1, or damage) reads as Latin-1, that
    // line alone, and is saved as UTF-8.
    std::map<int, std::string> lines = {
        {1, "abc"}, {2, ""}, {3, "32768"}, {4, " 12 "}, {5, "-32768"}};
    std::map<int, std::string> saved = {{4, "12"}, {5, "-32768"}};
    const std::pair<const char*, const char*> names[] = {
        {"Zo\xeb", "Zoë"},
        {"Łucja", "Łucja"},
        {"Zo\xc3", "ZoÃ"},                            // cut short by the line end
        {"\xc0\xafx", "À¯x"},                         // overlong
        {"\xed\xa0\x80", "í\u00a0\u0080"},            // a surrogate
        {"\xf4\x90\x80\x80", "ô\u0090\u0080\u0080"},  // beyond U+10FFFF
        {"Řehoř \xa9", "Å\u0098ehoÅ\u0099 ©"},        // one stray byte: the whole line
        {"\x80", "\u0080"},
        {"Ann", "Ann"}};
    for (int k = 0; k < 9; ++k) {
        lines[10 + k] = names[k].first;
        saved[10 + k] = names[k].second;
    }
    write(highscore_, fileOf(90, lines));
    FastestTimes t;
    t.besttime[0][0][0] = 99;
    ASSERT_TRUE(records::loadHighscores(highscore_, t));
    EXPECT_EQ(t.bestname[0][0][0], "Zoë");
    EXPECT_EQ(records::highscoreText(t), fileOf(90, saved));
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
}

// Runs `step` in a child process that may take at most a few seconds and, in
// the plain build, half a gigabyte: a read that waits on a pipe or swallows an
// endless device fails the test instead of hanging or filling the machine.
template <class Step>
bool passesInChild(Step step) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(5);
#ifndef __SANITIZE_ADDRESS__  // the sanitizer reserves far more than it uses
        const rlimit memory{512u << 20, 512u << 20};
        ::setrlimit(RLIMIT_AS, &memory);
#endif
        bool passed = false;
        try {
            passed = step();
        } catch (...) {
        }
        ::_exit(passed ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

// Whatever stands in a file's place that is not a plain file reads as a
// missing file: no field is taken, and the start-up read fails.
TEST_F(InfFiles, OnlyPlainFilesOfSensibleSizeAreRead) {
    const std::string records = fileOf(90, {{1, "35"}, {10, "Ann"}});
    write(path("real.inf"), records);
    write(lastgame_, "1\r\n1\r\n1\r\n2\r\n");
    ASSERT_EQ(::symlink(path("real.inf").c_str(), highscore_.c_str()), 0);
    FastestTimes t;
    Options options;
    EXPECT_TRUE(records::loadBoth(lastgame_, highscore_, options, t));  // a link to a file is fine
    EXPECT_EQ(t.bestname[0][0][0], "Ann");

    // A pipe with no writer, a device without end, and a file far larger than
    // the game ever writes, each in place of either file.
    const std::string huge = records + std::string(std::size_t{1} << 20, 'x');
    for (const std::string standIn : {"pipe", "/dev/zero", "huge"}) {
        for (const std::string* file : {&lastgame_, &highscore_}) {
            write(lastgame_, "1\r\n1\r\n1\r\n2\r\n");
            fs::remove(*file);
            if (standIn == "pipe") {
                ASSERT_EQ(::mkfifo(file->c_str(), 0600), 0);
            }
            if (standIn == "/dev/zero") fs::create_symlink(standIn, *file);
            if (standIn == "huge") write(*file, huge);
            EXPECT_TRUE(passesInChild([&] {
                FastestTimes tables;
                Options got{7, 7, 7, 7, 7};
                return !records::loadBoth(lastgame_, highscore_, got, tables) &&
                       tables.fieldsread == 0 && tables.besttime[0][0][0] == 0 &&
                       got.playsound == (file == &lastgame_ ? 7 : 1);
            })) << standIn
                << " as " << *file;
            // Nor does the exit save wait or swallow, whether it can replace it or not.
            EXPECT_TRUE(passesInChild([&] {
                records::saveBoth(lastgame_, highscore_, {}, FastestTimes{});
                return true;
            })) << standIn
                << " as " << *file;
            fs::remove(*file);
        }
    }
}

// A name of absurd length in an edited file is cut to its first thousand
// characters: not bytes, and never half a character. That is what the next
// save writes.
TEST_F(InfFiles, AbsurdlyLongNamesAreCut) {
    auto times = [](const std::string& text, int n) {
        std::string out;
        for (int i = 0; i < n; ++i) out += text;
        return out;
    };
    const std::string latin1(1500, '\xe9');  // é in Latin-1
    write(highscore_, fileOf(90, {{10, latin1},
                                  {11, std::string(100'000, 'n')},
                                  {12, times("Ł", 1500)},
                                  {13, times("日", 1500)},
                                  {14, "x" + times("🦊", 1500)}}));
    FastestTimes t;
    ASSERT_TRUE(records::loadHighscores(highscore_, t));
    const std::string kept[] = {times("é", 1000), std::string(1000, 'n'), times("Ł", 1000),
                                times("日", 1000), "x" + times("🦊", 999)};
    for (int k = 0; k < 5; ++k) {
        const std::string& name = t.bestname[k / 3][k % 3][0];
        // Compared whole but reported short: a failure would print megabytes.
        EXPECT_TRUE(name == kept[k]) << "table " << k << ": " << name.size() << " bytes";
    }
    ASSERT_TRUE(records::saveHighscores(highscore_, t));
    EXPECT_TRUE(
        read(highscore_) ==
        fileOf(90, {{10, kept[0]}, {11, kept[1]}, {12, kept[2]}, {13, kept[3]}, {14, kept[4]}}))
        << read(highscore_).size() << " bytes written";
}

// A save killed between writing and renaming leaves its temporary file. The
// next save clears it whatever it has become, and never writes through it.
TEST_F(InfFiles, StaleTemporaryFilesAreClearedNotFollowed) {
    const std::string temporary = highscore_ + ".tmp";
    const FastestTimes empty;
    write(path("other"), "someone else's");
    fs::create_symlink(path("other"), temporary);
    ASSERT_TRUE(records::saveHighscores(highscore_, empty));
    EXPECT_EQ(read(path("other")), "someone else's");
    EXPECT_FALSE(fs::is_symlink(highscore_));
    EXPECT_EQ(read(highscore_), fileOf(90, {}));
    EXPECT_FALSE(fs::exists(temporary));

    ASSERT_EQ(::mkfifo(temporary.c_str(), 0600), 0);  // would wait for a reader
    EXPECT_TRUE(passesInChild([&] { return records::saveHighscores(highscore_, empty); }));
    EXPECT_FALSE(fs::exists(temporary));

    // Cleared even by a save that fails: here the file is a folder.
    fs::create_directory(path("folder.inf"));
    write(path("folder.inf.tmp"), records::highscoreText(empty));
    EXPECT_FALSE(records::saveHighscores(path("folder.inf"), empty));
    EXPECT_FALSE(fs::exists(path("folder.inf.tmp")));
}

// Two games saving into one folder at once (one player, two windows): each
// save succeeds, and every read finds one save or the other, whole.
TEST_F(InfFiles, SavesAtOnceNeverTearEachOther) {
    FastestTimes a, b;
    for (int s = 0; s < records::kSizes; ++s)
        for (int j = 0; j < records::kLevels; ++j)
            for (int r = 0; r < records::kRanks; ++r) {
                a.bestname[s][j][r] = std::string(300, 'a');
                b.bestname[s][j][r] = "b";
            }
    const std::string textA = records::highscoreText(a), textB = records::highscoreText(b);
    ASSERT_TRUE(records::saveHighscores(highscore_, a));
    pid_t savers[2];
    for (int i = 0; i < 2; ++i) {
        savers[i] = ::fork();
        if (savers[i] == 0) {
            int failed = 0;
            for (int n = 0; n < 60; ++n) failed += !records::saveHighscores(highscore_, i ? b : a);
            ::_exit(failed);
        }
    }
    int torn = 0, reads = 0, failed = 0;
    for (pid_t& saver : savers) {
        while (saver != 0) {
            const std::string now = read(highscore_);
            torn += now != textA && now != textB;
            ++reads;
            int status = 0;
            if (::waitpid(saver, &status, WNOHANG) != saver) continue;
            failed += WIFEXITED(status) ? WEXITSTATUS(status) : 60;
            saver = 0;
        }
    }
    EXPECT_EQ(torn, 0) << "of " << reads << " reads";
    EXPECT_EQ(failed, 0) << "saves failed";  // each waits for the other's turn
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

    // A temporary file the player may not write (left by a killed save of
    // another user's, say) is cleared, not a reason to fail.
    write(highscore_ + ".tmp", oldRecords);
    fs::permissions(highscore_ + ".tmp", fs::perms::owner_read);
    write(highscore_, oldRecords);
    fs::permissions(highscore_, fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(records::saveHighscores(highscore_, tables));
    EXPECT_EQ(identity(highscore_).second, 0600u);
    EXPECT_EQ(read(highscore_), records::highscoreText(tables));
}

}  // namespace
