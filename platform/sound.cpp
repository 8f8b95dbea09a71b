#include "platform/sound.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>
#include <QStringList>

#include "platform/files.h"
#include "platform/sound_module.h"

namespace platform {
namespace {
std::function<void(const std::string&)>& observer() {
    static std::function<void(const std::string&)> o;
    return o;
}

// Beside the executable first (the game folder of a build), then where an
// installed game keeps it (found from the executable's folder, so a moved
// installation still finds it, then by its full path), then the game folder
// it was built with (tests and other tools of the build).
QStringList moduleFolders() {
    QStringList folders;
    if (QCoreApplication::instance()) {
        const QString executable = QCoreApplication::applicationDirPath();
        folders << executable << executable + QLatin1String("/../" PIMBALO_SOUND_MODULE_LIBDIR);
    }
    for (const char* folder : {PIMBALO_SOUND_MODULE_DIRS})
        if (*folder) folders << QString::fromUtf8(folder);
    return folders;
}

// The module's play function, loaded once; nullptr (silence) when it cannot
// be found or loaded, e.g. Qt Multimedia is missing.
PlaySoundEntry player() {
    static const PlaySoundEntry entry = [] {
        for (const QString& folder : moduleFolders()) {
            QLibrary module(folder + QLatin1Char('/') + QLatin1String(kSoundModuleName));
            if (auto play = reinterpret_cast<PlaySoundEntry>(module.resolve(kSoundModuleEntry)))
                return play;  // the module stays loaded for the rest of the run
        }
        return PlaySoundEntry(nullptr);
    }();
    return entry;
}
}  // namespace

void setSoundObserver(std::function<void(const std::string&)> o) {
    observer() = std::move(o);
}

void playSound(const std::string& relativePath) {
    if (observer()) observer()(relativePath);
    const auto file = findGameFile(relativePath);
    if (!file) return;
    if (PlaySoundEntry play = player())
        play(QFileInfo(*file).absoluteFilePath().toUtf8().constData());
}

}  // namespace platform
