#pragma once
// Every picture file the game loads, with its size and how to draw it. Which
// files there are, their names and sizes come from the game's tables; this
// side only knows how to draw them.
#include <QImage>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "canvas.h"
#include "tables/pictures.h"

namespace assets {

struct PictureFile {
    QString path;  // relative to the game folder, forward slashes
    int width = 0;
    int height = 0;
    std::function<QImage()> render;
};

// The symbol pictures and thumbnails of the three boards' picture sets.
std::vector<PictureFile> pictureSetFiles();
// Given-cell markers, logos, title/options artwork and the rules examples.
std::vector<PictureFile> markerFiles();
std::vector<PictureFile> artworkFiles();
std::vector<PictureFile> rulesExampleFiles();

std::vector<PictureFile> allPictureFiles();

// Picture k (from 0) of a kind of picture set, as every board's set of that
// kind shows it for its symbol k + 1.
SquareDrawer setPicture(tables::SetKind kind, int picture);

// Where a file the game names by a path like "Images\dice\1-4x4.jpg" lies in
// the game folder, with forward slashes. The game looks files up without
// regard to letter case, so "images\" names the one folder "Images".
QString gameFilePath(const std::string& path);

}  // namespace assets
