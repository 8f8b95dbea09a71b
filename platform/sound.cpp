#include "platform/sound.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

#include "platform/files.h"

namespace platform {
namespace {
std::function<void(const std::string&)>& observer() {
    static std::function<void(const std::string&)> o;
    return o;
}

// One player for the whole run, so a new sound cuts off the one still playing.
// It belongs to the application, which ends it.
QSoundEffect* effect() {
    static QPointer<QSoundEffect> e;
    if (!e) {
        e = new QSoundEffect(QCoreApplication::instance());
        e->setObjectName(QStringLiteral("pimbalo-sound"));
    }
    return e;
}
}  // namespace

void setSoundObserver(std::function<void(const std::string&)> o) {
    observer() = std::move(o);
}

void playSound(const std::string& relativePath) {
    if (observer()) observer()(relativePath);
    QSoundEffect* e = effect();
    e->stop();
    // A missing file is silence, which replaces a sound still playing too.
    const auto file = findGameFile(relativePath);
    e->setSource(file ? QUrl::fromLocalFile(QFileInfo(*file).absoluteFilePath()) : QUrl());
    if (file) e->play();  // starts once loaded; never waited on
}

}  // namespace platform
