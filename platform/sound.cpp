#include "platform/sound.h"

#include <QFile>
#include <QFileInfo>
#include <map>

#include "platform/files.h"
#include "platform/sound_thread.h"
#include "platform/wav_file.h"

namespace platform {
namespace {

// Audio servers start a stream only once its buffer holds enough, so a click
// shorter than that would sit unheard. Every sound is followed by this much
// silence, which carries it through.
constexpr qint64 kSilenceAfterMicroseconds = 250000;

std::function<void(const std::string&)>& observer() {
    static std::function<void(const std::string&)> o;
    return o;
}

// Each file is read once, with its trailing silence.
const PcmSound& soundOf(const QString& file) {
    static std::map<QString, PcmSound> sounds;
    auto it = sounds.find(file);
    if (it != sounds.end()) return it->second;
    QFile f(file);
    PcmSound sound = f.open(QIODevice::ReadOnly) ? parseWav(f.readAll()) : PcmSound{};
    if (sound.playable()) {
        const bool unsigned8 = sound.format.sample == PcmFormat::Sample::UInt8;
        sound.samples.append(QByteArray(sound.format.bytesFor(kSilenceAfterMicroseconds),
                                        unsigned8 ? '\x80' : '\0'));
    }
    return sounds.emplace(file, std::move(sound)).first->second;
}

// The file handed to the player by the latest sound, empty after one that
// found nothing to play.
QString& latestFile() {
    static QString file;
    return file;
}

QString& moduleFile() {
    static QString file;
    return file;
}

}  // namespace

void setSoundModule(const QString& file) {
    moduleFile() = file;
}

QString latestSoundFile() {
    return latestFile();
}

void setSoundObserver(std::function<void(const std::string&)> o) {
    observer() = std::move(o);
}

void playSound(const std::string& relativePath) {
    if (observer()) observer()(relativePath);
    // A new sound replaces the one playing, even when it is missing or cannot
    // be played: the player then falls silent.
    latestFile().clear();
    const PcmSound* sound = nullptr;
    if (const auto file = findGameFile(relativePath)) {
        const PcmSound& found = soundOf(*file);
        if (found.playable()) {
            sound = &found;
            latestFile() = QFileInfo(*file).absoluteFilePath();
        }
    }
    handToAudioThread(sound, moduleFile());
}

}  // namespace platform
