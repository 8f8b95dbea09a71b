#include "platform/sound.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include "platform/files.h"

namespace platform {
namespace {
std::function<void(const std::string&)>& observer() {
    static std::function<void(const std::string&)> o;
    return o;
}

QSoundEffect* effect() {
    static QSoundEffect* e = new QSoundEffect();  // lives for the whole run
    return e;
}
}  // namespace

void setSoundObserver(std::function<void(const std::string&)> o) {
    observer() = std::move(o);
}

void playSound(const std::string& relativePath) {
    if (observer()) observer()(relativePath);
    const auto file = findGameFile(relativePath);
    if (!file) return;
    QSoundEffect* e = effect();
    e->stop();
    e->setSource(QUrl::fromLocalFile(QFileInfo(*file).absoluteFilePath()));
    e->play();  // starts once loaded; never waited on
}

}  // namespace platform
