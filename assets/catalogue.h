#pragma once
// Every picture file the game loads, with its size and how to draw it.
#include <QImage>
#include <QString>
#include <functional>
#include <vector>

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

}  // namespace assets
