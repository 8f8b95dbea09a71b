#pragma once
// The game names its data files by relative paths written with backslashes,
// and writes the same folder as "Images\" in some places and "images\" in
// others. These helpers find such files below the working directory without
// regard to letter case, and load pictures and the hand cursor from them.
//
// The folder they are found in is the game's data folder: the working
// directory, unless the program named another (an installed game reads its
// pictures from the installed copy and keeps its files in the player's own
// folder).
#include <QCursor>
#include <QPixmap>
#include <QString>
#include <optional>
#include <string>

namespace platform {

// Where game paths are looked up; empty (the default) means the working
// directory.
void setDataFolder(const QString& folder);

// The existing file for a relative game path ("Images\dice\1-4x4.jpg"),
// matched component by component ignoring case below the data folder;
// nullopt when there is none.
std::optional<QString> findGameFile(const std::string& relativePath);
// The same below any folder.
std::optional<QString> findFileBelow(const QString& folder, const std::string& relativePath);

// A picture from a game path, for a box of the given size in pixels (none:
// the file's own size). The picture files are drawn at twice their box's
// size so that they stay sharp on high-density screens; on a screen of
// lower density the picture is decoded straight at the size it is shown,
// which spares the decoding and the memory of pixels nobody sees. A missing
// or unreadable file ends the program after reporting it (fatalFileError).
// Pictures are cached by file and size.
QPixmap loadPicture(const std::string& relativePath, QSize boxPixels = {});

// The same for a picture the caller can do without: nullopt when the file is
// missing or cannot be decoded, and nothing is reported.
std::optional<QPixmap> tryLoadPicture(const std::string& relativePath, QSize boxPixels = {});

// A pointer from a Windows cursor file (hot spot read from the file).
// Missing or unreadable files end the program like pictures.
QCursor loadCursor(const std::string& relativePath);

}  // namespace platform
