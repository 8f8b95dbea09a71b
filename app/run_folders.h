#pragma once
// Where a run of the game reads its pictures and sounds (the data folder, with
// its Images and wav folders) and where it keeps lastgame.inf and
// highscore.inf (its working directory).
//
// - A game folder the player can write (the build tree, a copy on a USB
//   stick): everything stays in it, as it always did.
// - An installed game, or a game folder the player cannot write: pictures and
//   sounds come from that folder, and the two files live in the player's own
//   folder, $XDG_DATA_HOME/pimbalo, so nothing is written into the installed
//   copy and every player keeps their own fastest times.
#include <QString>

namespace app {

struct Surroundings {
    QString startFolder;       // the working directory the game was started in
    QString programFolder;     // the folder of the executable
    QString installedData;     // an installed copy's data folder, relative to programFolder
    QString playerFolder;      // the player's own folder for the two files
    QString installedModules;  // an installed copy's sound module folder, relative to programFolder
};

struct RunFolders {
    QString data;  // where "Images\..." and "wav\..." are found
    QString work;  // the working directory; the player's folder when installed
};

// True when `folder` is a copy of the game's data: it holds more than one of
// the files every copy has (pictures of the title and options screens, the
// hand cursor, the click sound), whatever the letter case. A bare folder
// named "Images", such as a home folder's pictures, is not enough; a copy
// that lacks one of them, its title picture say, still is one.
bool holdsGameData(const QString& folder);

// True when `folder` has the layout of an installed copy's data folder: an
// Images and a wav folder. Only asked of the place the installed layout puts
// it, beside the program, where nothing else would be.
bool hasDataLayout(const QString& folder);

// This run's surroundings; the player's own folder is "pimbalo" in
// $XDG_DATA_HOME (~/.local/share). Needs the application object.
Surroundings surroundings();

RunFolders chooseRunFolders(const Surroundings& around);

// Chooses the folders, makes the player's folder when it is needed, changes
// into the working directory and points the picture and sound lookups at the
// data folder. When the player's folder cannot be made or entered, the game
// still plays but keeps nothing: see the definition. Returns what is in use;
// `work` is empty when no working folder could be had.
RunFolders settle(const Surroundings& around);

// The sound module this run loads at its first sound: an installed copy's,
// else the one beside the program (the build tree). Empty when there is none,
// and the game is silent.
QString soundModule(const Surroundings& around);

}  // namespace app
