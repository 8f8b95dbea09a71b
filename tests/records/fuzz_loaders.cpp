// Feeds arbitrary bytes to both loaders. Besides memory errors it checks that
// whatever a file holds, the file the game would write from it reads back to
// exactly the same bytes, so a damaged file settles after one save.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "records/fastest_times.h"
#include "records/inf_files.h"

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);

    std::istringstream lastgameIn(bytes);
    tables::Options options;
    records::loadLastGame(lastgameIn, options);
    const std::string lastgame = records::lastGameText(options);
    tables::Options reread;
    std::istringstream lastgameAgain(lastgame);
    require(records::loadLastGame(lastgameAgain, reread));
    require(records::lastGameText(reread) == lastgame);

    std::istringstream highscoreIn(bytes);
    records::FastestTimes tables;
    const bool complete = records::loadHighscores(highscoreIn, tables);
    require(tables.fieldsread >= 0 && tables.fieldsread <= records::kHighscoreFields);
    require(complete == (tables.fieldsread == records::kHighscoreFields));
    const std::string highscore = records::highscoreText(tables);
    records::FastestTimes again;
    std::istringstream highscoreAgain(highscore);
    require(records::loadHighscores(highscoreAgain, again));
    require(records::highscoreText(again) == highscore);

    // Ranking into whatever the file held must stay inside the table.
    std::int16_t newrank = 0;
    if (records::rankTime(tables, size % 3, (size / 3) % 3, bytes.substr(0, 6), 0, newrank)) {
        require(newrank >= 0 && newrank < records::kRanks);
    }
    return 0;
}
