#pragma once
// The game reads its pictures and sounds, and keeps its two files, below the
// working directory. A launcher that starts it elsewhere (a desktop icon, a
// shell in the home folder) would leave it without pictures, so the program
// moves into a folder that has them.
#include <QString>

namespace shell {

// True when `folder` holds an "Images" folder, whatever its letter case.
bool hasImagesFolder(const QString& folder);

// Keeps the working directory when it has the pictures; otherwise changes to
// the first of `candidates` that has them. Returns the folder the game runs in.
QString settleInGameFolder(const QStringList& candidates);

}  // namespace shell
