#include "app/run_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "platform/files.h"
#include "tables/pictures.h"
#include "tables/sounds.h"

namespace app {

namespace {

QString clean(const QString& folder) {
    return QDir::cleanPath(QDir(folder).absolutePath());
}

bool writable(const QString& folder) {
    return QFileInfo(folder).isWritable();
}

// A working directory that is gone: every file the game opens there is
// missing and every save fails, just as in a folder the player may not write,
// and nothing lands anywhere else (not even for root, who may write
// everywhere). Used only when the player's folder cannot be had.
QString enterVanishedFolder() {
    QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/pimbalo-XXXXXX"));
    if (!folder.isValid() || !QDir::setCurrent(folder.path())) return {};
    folder.remove();
    return {};
}

}  // namespace

bool holdsGameData(const QString& folder) {
    const char* const kEveryCopyHas[] = {tables::kTitlePicture.path, tables::kOpeningPicture.path,
                                         tables::kTitleMascot.path, tables::kHandCursor,
                                         tables::kClickWav};
    int found = 0;
    for (const char* file : kEveryCopyHas) {
        if (platform::findFileBelow(folder, file) && ++found > 1) return true;
    }
    return false;
}

bool hasDataLayout(const QString& folder) {
    const auto images = platform::findFileBelow(folder, "Images");
    const auto sounds = platform::findFileBelow(folder, "wav");
    return images && sounds && QFileInfo(*images).isDir() && QFileInfo(*sounds).isDir();
}

Surroundings surroundings() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // The installed layout, fixed when the game is configured: relative, so
    // the installed tree may be moved or unpacked under any prefix.
    return {QDir::currentPath(), QCoreApplication::applicationDirPath(),
            QStringLiteral(PIMBALO_DATA_FROM_PROGRAM),
            data.isEmpty() ? QString() : clean(data + QStringLiteral("/pimbalo")),
            QStringLiteral(PIMBALO_MODULES_FROM_PROGRAM)};
}

RunFolders chooseRunFolders(const Surroundings& around) {
    const QString installed = clean(around.programFolder + QLatin1Char('/') + around.installedData);
    if (!around.installedData.isEmpty() && hasDataLayout(installed))
        return {installed, around.playerFolder};
    for (const QString& folder : {around.startFolder, around.programFolder}) {
        if (folder.isEmpty() || !holdsGameData(folder)) continue;
        const QString game = clean(folder);
        return {game, writable(game) ? game : around.playerFolder};
    }
    // No pictures anywhere: the game reports the first missing picture.
    return {clean(around.startFolder), clean(around.startFolder)};
}

RunFolders settle(const Surroundings& around) {
    RunFolders folders = chooseRunFolders(around);
    platform::setDataFolder(folders.data);
    const bool entered =
        !folders.work.isEmpty() && QDir().mkpath(folders.work) && QDir::setCurrent(folders.work);
    if (!entered) folders.work = enterVanishedFolder();
    return folders;
}

QString soundModule(const Surroundings& around) {
    const QString name = QStringLiteral(PIMBALO_SOUND_MODULE_NAME);
    for (const QString& folder : {around.programFolder + QLatin1Char('/') + around.installedModules,
                                  around.programFolder}) {
        const QString file = clean(folder + QLatin1Char('/') + name);
        if (QFileInfo(file).isFile()) return file;
    }
    return {};
}

}  // namespace app
