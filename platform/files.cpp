#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QImageReader>

#include "platform/fatal.h"
#include "platform/translation.h"
#include "tables/texts.h"

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

// Decodes a picture file for a box of boxPixels (empty: at the file's size).
// Records why it failed in *error.
QPixmap readPicture(const QString& file, QSize boxPixels, QString* error) {
    QImageReader reader(file);
    const qreal ratio = qApp ? qApp->devicePixelRatio() : 1.0;
    const QSize shown = boxPixels * ratio;
    const QSize stored = reader.size();
    const bool shrink =
        !boxPixels.isEmpty() && stored.width() > shown.width() && stored.height() > shown.height();
    // JPEG pictures shrink while they are decoded, at a fraction of the work.
    if (shrink) reader.setScaledSize(shown);
    QImage image = reader.read();
    if (image.isNull()) {
        *error = reader.errorString();
        return {};
    }
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    if (shrink) pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

// The cached picture, or a null one with the reason in *error.
QPixmap cachedPicture(const QString& file, QSize boxPixels, QString* error) {
    QString key = QFileInfo(file).absoluteFilePath();
    if (!boxPixels.isEmpty())
        key += QStringLiteral("@%1x%2").arg(boxPixels.width()).arg(boxPixels.height());
    auto cached = pictureCache().constFind(key);
    if (cached != pictureCache().constEnd()) return *cached;
    QPixmap pixmap = readPicture(file, boxPixels, error);
    if (!pixmap.isNull()) pictureCache().insert(key, pixmap);
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

QPixmap loadPicture(const std::string& relativePath, QSize boxPixels) {
    const auto file = findGameFile(relativePath);
    const QString shown = QString::fromStdString(relativePath);
    if (!file) fatalFileError(shown, translated("Error", tables::error_text::kNotFound));
    QString error;
    QPixmap pixmap = cachedPicture(*file, boxPixels, &error);
    if (pixmap.isNull()) fatalFileError(shown, error);
    return pixmap;
}

std::optional<QPixmap> tryLoadPicture(const std::string& relativePath, QSize boxPixels) {
    const auto file = findGameFile(relativePath);
    if (!file) return std::nullopt;
    QString error;
    QPixmap pixmap = cachedPicture(*file, boxPixels, &error);
    if (pixmap.isNull()) return std::nullopt;
    return pixmap;
}

QCursor loadCursor(const std::string& relativePath) {
    static QHash<QString, QCursor> cursors;
    const auto file = findGameFile(relativePath);
    const QString shown = QString::fromStdString(relativePath);
    if (!file) fatalFileError(shown, translated("Error", tables::error_text::kNotFound));
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
        fatalFileError(shown, translated("Error", tables::error_text::kNotACursor));
    QImageReader reader(*file, "cur");
    const QImage image = reader.read();
    if (image.isNull()) fatalFileError(shown, reader.errorString());
    QCursor cursor(QPixmap::fromImage(image), word(10), word(12));
    cursors.insert(key, cursor);
    return cursor;
}

}  // namespace platform
