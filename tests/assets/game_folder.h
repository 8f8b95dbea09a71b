#pragma once
#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QString>

inline QDir gameFolder() {
    return QDir(PIMBALO_GAME_DIR);
}

inline QString gamePath(const QString& relative) {
    return gameFolder().filePath(relative);
}

inline QImage loadPicture(const QString& relative) {
    QImageReader reader(gamePath(relative));
    return reader.read();
}
