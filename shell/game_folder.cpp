#include "shell/game_folder.h"

#include <QDir>

namespace shell {

bool hasImagesFolder(const QString& folder) {
    const QDir dir(folder);
    const auto entries = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& name : entries)
        if (name.compare(QLatin1String("Images"), Qt::CaseInsensitive) == 0) return true;
    return false;
}

QString settleInGameFolder(const QStringList& candidates) {
    if (hasImagesFolder(QDir::currentPath())) return QDir::currentPath();
    for (const QString& folder : candidates)
        if (!folder.isEmpty() && hasImagesFolder(folder) && QDir::setCurrent(folder))
            return QDir::currentPath();
    return QDir::currentPath();
}

}  // namespace shell
