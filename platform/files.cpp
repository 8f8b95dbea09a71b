#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImageReader>

#include "platform/fatal.h"

namespace platform {
namespace {

// Finds one path component in a folder, exact spelling first.
std::optional<QString> findEntry(const QString& folder, const QString& name) {
    const QString exact = folder.isEmpty() ? name : folder + QLatin1Char('/') + name;
    if (QFileInfo::exists(exact)) return exact;
    const QDir dir(folder.isEmpty() ? QStringLiteral(".") : folder);
    const QStringList entries =
        dir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return folder.isEmpty() ? entry : folder + QLatin1Char('/') + entry;
    }
    return std::nullopt;
}

QString& dataFolderSetting() {
    static QString folder;
    return folder;
}

QHash<QString, QPixmap>& pictureCache() {
    static QHash<QString, QPixmap> cache;
    return cache;
}

// The picture of a game path, or why there is none.
std::optional<QPixmap> readPicture(const std::string& relativePath, QString& whyNot) {
    const auto file = findGameFile(relativePath);
    if (!file) {
        whyNot = QStringLiteral("file not found");
        return std::nullopt;
    }
    const QString key = QFileInfo(*file).absoluteFilePath();
    auto cached = pictureCache().constFind(key);
    if (cached != pictureCache().constEnd()) return *cached;
    QImageReader reader(*file);
    const QImage image = reader.read();
    if (image.isNull()) {
        whyNot = reader.errorString();
        return std::nullopt;
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pictureCache().insert(key, pixmap);
    return pixmap;
}

}  // namespace

void setDataFolder(const QString& folder) {
    dataFolderSetting() = folder;
}

std::optional<QString> findGameFile(const std::string& relativePath) {
    return findFileBelow(dataFolderSetting(), relativePath);
}

std::optional<QString> findFileBelow(const QString& folder, const std::string& relativePath) {
    const QString path =
        QString::fromStdString(relativePath).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (parts.isEmpty()) return std::nullopt;
    QString found = folder;
    for (const QString& part : parts) {
        auto next = findEntry(found, part);
        if (!next) return std::nullopt;
        found = *next;
    }
    return found;
}

QPixmap loadPicture(const std::string& relativePath) {
    QString whyNot;
    auto picture = readPicture(relativePath, whyNot);
    if (!picture) fatalFileError(QString::fromStdString(relativePath), whyNot);
    return *picture;
}

std::optional<QPixmap> tryLoadPicture(const std::string& relativePath) {
    QString whyNot;
    return readPicture(relativePath, whyNot);
}

QCursor loadCursor(const std::string& relativePath) {
    static QHash<QString, QCursor> cursors;
    const auto file = findGameFile(relativePath);
    const QString shown = QString::fromStdString(relativePath);
    if (!file) fatalFileError(shown, QStringLiteral("file not found"));
    const QString key = QFileInfo(*file).absoluteFilePath();
    auto cached = cursors.constFind(key);
    if (cached != cursors.constEnd()) return *cached;

    QFile f(*file);
    if (!f.open(QIODevice::ReadOnly)) fatalFileError(shown, f.errorString());
    const QByteArray header = f.read(22);
    f.close();
    // A cursor file starts with reserved 0, type 2 and an image count; the
    // first directory entry holds the hot spot in place of planes/bit count.
    auto word = [&](int at) {
        return static_cast<int>(static_cast<unsigned char>(header[at])) |
               static_cast<int>(static_cast<unsigned char>(header[at + 1])) << 8;
    };
    if (header.size() < 22 || word(0) != 0 || word(2) != 2 || word(4) < 1)
        fatalFileError(shown, QStringLiteral("not a cursor file"));
    QImageReader reader(*file, "cur");
    const QImage image = reader.read();
    if (image.isNull()) fatalFileError(shown, reader.errorString());
    QCursor cursor(QPixmap::fromImage(image), word(10), word(12));
    cursors.insert(key, cursor);
    return cursor;
}

}  // namespace platform
