#pragma once
// The game's two small text files: lastgame.inf (the options and the last
// board size, 4 lines) and highscore.inf (the nine fastest-times tables, 90
// lines). Every line ends with CR LF; numbers are plain decimals; names are
// UTF-8, on disk as in memory. A name line that is not valid UTF-8 was written
// by an older copy of the game and reads as Latin-1 (that line alone).
//
// Only a plain file (or a link to one) of at most 1 MB is read: anything else
// in its place, a pipe or a device, reads as a missing file.
//
// Reading, line by line: a line ends at LF, and a CR just before it (or at the
// end of the file) is dropped, so files edited with LF-only line ends still
// read. A last line without a line end still counts. A number line that is not
// a 16-bit decimal reads as 0 (see timeFromText); a name is the whole line.
//
// Writing: a file is written to "<path>.tmp" in the same folder, flushed to
// disk and renamed over the old file, so a failed or interrupted save leaves
// the old file whole. An old file that the player could not open for output
// (read-only, say) fails the save and stays as it is; a replaced file keeps
// its permissions. A "<path>.tmp" left by a save that was killed is cleared
// by the next save, and saves into one folder take turns.
#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>

#include "records/fastest_times.h"
#include "tables/options.h"

namespace records {

// The file names the game uses in its working directory.
inline constexpr char kLastGameFile[] = "lastgame.inf";
inline constexpr char kHighscoreFile[] = "highscore.inf";

constexpr int kLastGameFields = 4;
// A typed name has at most 25 characters; longer ones come from edited files.
constexpr std::size_t kLongestKeptName = 1000;

// lastgame.inf holds four of the shared options, in this order: playsound,
// timerson, hidedesktop and boardsize. level is never saved, nor read.
//
// Loads read the fields in file order into the options given and stop at the
// end of the file: fields read before that keep their new values, the others
// keep the values they had. They return true only when every field was read
// (a missing or unreadable file reads no field). Anything after the last
// field is ignored.
bool loadLastGameText(std::string_view text, tables::Options& options);
bool loadLastGame(std::istream& in, tables::Options& options);
bool loadLastGame(const std::string& path, tables::Options& options);

// Also sets tables.fieldsread to the number of fields taken (0..90). Nothing
// else is checked: tables out of order, or names beside empty entries, are
// kept as read. Only a name of absurd length is cut: its first
// kLongestKeptName characters (code points, never half a one) are kept, and
// saved back.
bool loadHighscoresText(std::string_view text, FastestTimes& tables);
bool loadHighscores(std::istream& in, FastestTimes& tables);
bool loadHighscores(const std::string& path, FastestTimes& tables);

// The title screen's start-up read: lastgame.inf, then highscore.inf only if
// the first was complete. Returns true when both were complete; loadfailed is
// its negation (1 when false).
bool loadBoth(const std::string& lastgamePath, const std::string& highscorePath,
              tables::Options& options, FastestTimes& tables);

// The exact bytes of each file.
std::string lastGameText(const tables::Options& options);
// Names are written as UTF-8; CR or LF in a name (which would split the field
// in two) is written as '?'.
std::string highscoreText(const FastestTimes& tables);

// The tables a save writes to highscorePath. When the tables hold fewer than
// 90 fields read from that file (tables.fieldsread; the start-up read failed
// or never reached it), the fields they did not receive are taken from the
// file on disk as far as it goes, so records the run never read are kept and a
// short file is made whole. Fields the file does not have keep the tables'
// values (empty at program start), so a run that started without the file
// still writes its own tables.
FastestTimes tablesToSave(const std::string& highscorePath, const FastestTimes& tables);

// Single-file saves (each atomic as described above); true on success.
bool saveLastGame(const std::string& path, const tables::Options& options);
bool saveHighscores(const std::string& path, const FastestTimes& tables);

// The board's "Exit" save: lastgame.inf, then highscore.inf with
// tablesToSave(highscorePath, tables). The first failure abandons the rest and
// returns false; the caller carries on without a message either way.
bool saveBoth(const std::string& lastgamePath, const std::string& highscorePath,
              const tables::Options& options, const FastestTimes& tables);

}  // namespace records
