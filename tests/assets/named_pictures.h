#pragma once
// Every picture the game's tables name, as the game names it, with the pixel
// size the generator must give it, and the file the game's case-blind lookup
// finds for it in the game folder.
#include <QDir>
#include <QString>
#include <set>
#include <vector>

#include "game_folder.h"
#include "tables/geometry.h"
#include "tables/pictures.h"

struct NamedPicture {
    std::string path;  // "Images\dice\1-4x4.jpg", "images\4x4puzzle.jpg"
    int width, height;
};

inline std::vector<NamedPicture> picturesTheTablesName() {
    std::vector<NamedPicture> all;
    auto add = [&all](const std::string& path, float twipsWide, float twipsHigh) {
        all.push_back({path, tables::picturePixels(twipsWide), tables::picturePixels(twipsHigh)});
    };
    for (int size = 0; size < tables::kBoardSizes; ++size) {
        const tables::BoardGeometry& board = tables::boardGeometry(size);
        for (const tables::PictureSet& set : tables::catalogue(size)) {
            for (int k = 1; k <= set.symbols.size(); ++k)
                add(set.symbolPath(k), board.side, board.side);
            add(set.thumbnailPath(), board.thumbnails[0].width, board.thumbnails[0].height);
        }
        for (const char* marker : board.markerPictures)
            add(marker, board.marker.width, board.marker.height);
        for (const auto& example :
             {tables::kRulesExamples[size].puzzle, tables::kRulesExamples[size].solution})
            add(example.path, example.width, example.height);
    }
    for (const tables::ScreenPicture* picture : tables::kScreenPictures)
        add(picture->path, picture->width, picture->height);
    return all;
}

// The file in the game folder that a path with backslashes names, each part
// matched without regard to letter case; empty when there is none.
inline QString findGamePicture(const std::string& path) {
    QDir folder = gameFolder();
    const QStringList parts = QString::fromStdString(path).split('\\');
    for (int i = 0; i < parts.size(); ++i) {
        QString match;
        for (const QString& entry : folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
            if (entry.compare(parts[i], Qt::CaseInsensitive) == 0) match = entry;
        if (match.isEmpty()) return {};
        if (i + 1 == parts.size()) return folder.filePath(match);
        if (!folder.cd(match)) return {};
    }
    return {};
}
