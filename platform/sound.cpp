#include "platform/sound.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include "platform/files.h"

namespace platform {
namespace {
std::function<void(const std::string&)>& observer() {
    static std::function<void(const std::string&)> o;
    return o;
}

QSoundEffect* effect();

// Qt's sample loader loses what it holds for a sound still being loaded when
// the program ends (the sanitizer build reports it as a leak), so the end of
// the program waits for that sound, a second at most.
void letTheLoadingSoundFinish() {
    QSoundEffect* e = effect();
    if (e->status() != QSoundEffect::Loading) return;
    QEventLoop loading;
    QObject::connect(e, &QSoundEffect::statusChanged, &loading, &QEventLoop::quit);
    QTimer::singleShot(1000, &loading, &QEventLoop::quit);
    loading.exec();
}

// One player for the whole run, so a new sound cuts off the one still playing.
QSoundEffect* effect() {
    static QSoundEffect* e = [] {
        qAddPostRoutine(letTheLoadingSoundFinish);
        return new QSoundEffect();
    }();
    return e;
}
}  // namespace

const QSoundEffect& soundPlayer() {
    return *effect();
}

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
