#include "records/inf_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <istream>
#include <iterator>
#include <optional>
#include <string_view>

#include "records/utf8.h"

namespace records {

namespace {

// The lines of a file's text, one by one, without their line ends.
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}
    // False at the end of the text.
    bool next(std::string& line) {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find('\n');
        line.assign(rest_.substr(0, end));
        rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        return true;
    }

  private:
    std::string_view rest_;
};

// More than any file the game writes (highscore.inf with every name at its
// longest, four bytes a character, is under 200 KB), little enough that
// whatever stands in a file's place cannot fill the memory.
constexpr off_t kLargestFile = 1 << 20;

// Only a plain file (or a link to one) of a sensible size is read: a pipe
// would wait for a writer, and a device such as /dev/zero never ends.
bool isReadableFile(const struct stat& status) {
    return S_ISREG(status.st_mode) && status.st_size <= kLargestFile;
}

// The whole file, read with plain system calls: the files are a few hundred
// bytes, and the title screen reads them before it is first shown, where the
// C++ stream and locale machinery would cost more than the reading itself.
// False when the file cannot be opened, is no plain file of a sensible size,
// or a read fails; text then holds what was read before the failure.
bool readWholeFile(const std::string& path, std::string& text) {
    struct stat status {};
    // Looked at before it is opened, since opening some devices does things.
    if (::stat(path.c_str(), &status) != 0 || !isReadableFile(status)) return false;
    // Non-blocking, so that a pipe swapped in since cannot make the open wait.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) return false;
    if (::fstat(fd, &status) != 0 || !isReadableFile(status)) {
        ::close(fd);
        return false;
    }
    char buffer[4096];
    ssize_t n = 0;
    while ((n = ::read(fd, buffer, sizeof buffer)) != 0) {
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) break;
        text.append(buffer, static_cast<std::size_t>(n));
        if (text.size() > static_cast<std::size_t>(kLargestFile)) {
            text.clear();  // it grew past the limit since: read as too large
            break;
        }
    }
    ::close(fd);
    return n == 0;
}

std::string wholeStream(std::istream& in) {
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// Where field f (0..89, file order) of highscore.inf lives in the tables: five
// records of 18 lines, nine times then nine names, in table order k =
// size * 3 + level.
struct Field {
    int size;
    int level;
    int rank;
    bool isName;
};

Field highscoreField(int f) {
    constexpr int kTables = kSizes * kLevels;
    const int rank = f / (2 * kTables);
    const int inRecord = f % (2 * kTables);
    const int k = inRecord % kTables;
    return Field{k / kLevels, k % kLevels, rank, inRecord >= kTables};
}

void copyField(const FastestTimes& from, FastestTimes& to, int f) {
    const Field at = highscoreField(f);
    if (at.isName) {
        to.bestname[at.size][at.level][at.rank] = from.bestname[at.size][at.level][at.rank];
    } else {
        to.besttime[at.size][at.level][at.rank] = from.besttime[at.size][at.level][at.rank];
    }
}

bool writeAll(int fd, const std::string& bytes) {
    const char* data = bytes.data();
    std::size_t left = bytes.size();
    while (left > 0) {
        const ssize_t n = ::write(fd, data, left);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        data += n;
        left -= static_cast<std::size_t>(n);
    }
    return true;
}

// Best effort: makes the rename itself survive a power cut. A folder that
// cannot be synced does not make the save a failure, the file is in place.
void syncFolderOf(const std::string& path) {
    std::filesystem::path folder = std::filesystem::path(path).parent_path();
    if (folder.empty()) folder = ".";
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

// The rename below would replace even a file the player may not write, as
// long as the folder is writable. So an existing file is replaced only when it
// could have been opened for output in place; `mode` then holds its
// permissions, for the new file to keep. No file yet is fine too.
bool mayReplace(const std::string& path, std::optional<mode_t>& mode) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return errno == ENOENT;
    // Non-blocking, so that a pipe in its place fails instead of waiting.
    const int fd = ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0) return false;
    ::close(fd);
    mode = status.st_mode & 07777;
    return true;
}

// Saves into one folder take turns: a game started twice by the same player
// must not rename the other's half-written temporary file into place. The
// lock goes with the folder's descriptor, so a game killed mid-save leaves
// none behind. A folder that cannot be locked (some network file systems) is
// saved into unlocked; one that another save holds for long fails the save.
class FolderLock {
  public:
    explicit FolderLock(const std::string& path) {
        std::filesystem::path folder = std::filesystem::path(path).parent_path();
        if (folder.empty()) folder = ".";
        fd_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (fd_ < 0) return;
        for (int attempt = 0; attempt < 100; ++attempt) {
            if (::flock(fd_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
            ::usleep(20'000);
        }
        held_ = true;
    }
    ~FolderLock() {
        if (fd_ >= 0) ::close(fd_);
    }
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    bool heldElsewhere() const { return held_; }

  private:
    int fd_ = -1;
    bool held_ = false;
};

// Writes the whole file next to path and renames it over path, so readers see
// either the old file or the new one, never a part.
bool replaceFile(const std::string& path, const std::string& bytes) {
    const FolderLock turn(path);
    if (turn.heldElsewhere()) return false;
    // With the folder ours, a temporary file already there is left by a save
    // that was cut short. It goes whatever it is (another user's, read-only,
    // a link or a pipe), and the new one is made afresh, never followed.
    const std::string temporary = path + ".tmp";
    ::unlink(temporary.c_str());
    std::optional<mode_t> mode;
    if (!mayReplace(path, mode)) return false;
    const int fd =
        ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (fd < 0) return false;
    if (mode) ::fchmod(fd, *mode);  // best effort: the contents matter more
    const bool written = writeAll(fd, bytes) && ::fsync(fd) == 0;
    const bool closed = ::close(fd) == 0;
    if (!written || !closed || std::rename(temporary.c_str(), path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    syncFolderOf(path);
    return true;
}

// A name line as the tables keep it: UTF-8, or Latin-1 from an older copy of
// the game, line by line; at most kLongestKeptName characters. A Latin-1 byte
// is one character, so that line is cut before it is converted.
std::string nameFromLine(std::string_view line) {
    if (isUtf8(line)) return std::string(firstCharacters(line, kLongestKeptName));
    return latin1ToUtf8(line.substr(0, kLongestKeptName));
}

void appendLine(std::string& out, std::string_view line) {
    out.append(line);
    out.append("\r\n");
}

}  // namespace

bool loadLastGameText(std::string_view text, tables::Options& options) {
    std::int16_t* const fields[kLastGameFields] = {&options.playsound, &options.timerson,
                                                   &options.hidedesktop, &options.boardsize};
    Lines lines(text);
    std::string line;
    for (std::int16_t* field : fields) {
        if (!lines.next(line)) return false;
        *field = timeFromText(line);
    }
    return true;
}

bool loadLastGame(std::istream& in, tables::Options& options) {
    return loadLastGameText(wholeStream(in), options);
}

bool loadLastGame(const std::string& path, tables::Options& options) {
    std::string text;
    const bool whole = readWholeFile(path, text);
    return loadLastGameText(text, options) && whole;
}

bool loadHighscoresText(std::string_view text, FastestTimes& tables) {
    tables.fieldsread = 0;
    Lines lines(text);
    std::string line;
    for (int f = 0; f < kHighscoreFields; ++f) {
        if (!lines.next(line)) return false;
        const Field at = highscoreField(f);
        if (at.isName) {
            tables.bestname[at.size][at.level][at.rank] = nameFromLine(line);
        } else {
            tables.besttime[at.size][at.level][at.rank] = timeFromText(line);
        }
        tables.fieldsread = f + 1;
    }
    return true;
}

bool loadHighscores(std::istream& in, FastestTimes& tables) {
    return loadHighscoresText(wholeStream(in), tables);
}

bool loadHighscores(const std::string& path, FastestTimes& tables) {
    std::string text;
    const bool whole = readWholeFile(path, text);
    return loadHighscoresText(text, tables) && whole;
}

bool loadBoth(const std::string& lastgamePath, const std::string& highscorePath,
              tables::Options& options, FastestTimes& tables) {
    return loadLastGame(lastgamePath, options) && loadHighscores(highscorePath, tables);
}

std::string lastGameText(const tables::Options& options) {
    std::string out;
    for (std::int16_t value :
         {options.playsound, options.timerson, options.hidedesktop, options.boardsize}) {
        appendLine(out, std::to_string(value));
    }
    return out;
}

std::string highscoreText(const FastestTimes& tables) {
    std::string out;
    for (int f = 0; f < kHighscoreFields; ++f) {
        const Field at = highscoreField(f);
        if (at.isName) {
            // Bytes that are not UTF-8 are written as the reading would take them.
            std::string name = utf8OrLatin1(tables.bestname[at.size][at.level][at.rank]);
            std::replace_if(
                name.begin(), name.end(), [](char c) { return c == '\r' || c == '\n'; }, '?');
            appendLine(out, name);
        } else {
            appendLine(out, std::to_string(tables.besttime[at.size][at.level][at.rank]));
        }
    }
    return out;
}

FastestTimes tablesToSave(const std::string& highscorePath, const FastestTimes& tables) {
    FastestTimes toSave = tables;
    const int received = std::max(tables.fieldsread, 0);
    if (received >= kHighscoreFields) return toSave;

    FastestTimes onDisk;
    loadHighscores(highscorePath, onDisk);  // as far as the file goes
    for (int f = received; f < onDisk.fieldsread; ++f) copyField(onDisk, toSave, f);
    return toSave;
}

bool saveLastGame(const std::string& path, const tables::Options& options) {
    return replaceFile(path, lastGameText(options));
}

bool saveHighscores(const std::string& path, const FastestTimes& tables) {
    return replaceFile(path, highscoreText(tables));
}

bool saveBoth(const std::string& lastgamePath, const std::string& highscorePath,
              const tables::Options& options, const FastestTimes& tables) {
    return saveLastGame(lastgamePath, options) &&
           saveHighscores(highscorePath, tablesToSave(highscorePath, tables));
}

}  // namespace records
