#include "platform/sound.h"

#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <map>

#include "platform/files.h"
#include "platform/sound_output.h"
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

// The sound module, loaded at the first sound: until then the game carries
// none of the audio system. A module that is missing or will not load leaves
// the game silent, like a machine without audio.
struct Output {
    QString file;
    bool tried = false;
    decltype(&pimbaloPlaySound) play = nullptr;
    decltype(&pimbaloStopSound) stop = nullptr;
};

Output& output() {
    static Output o;
    return o;
}

const Output& loadedOutput() {
    Output& o = output();
    if (o.tried) return o;
    o.tried = true;
    if (o.file.isEmpty()) return o;
    QLibrary module(o.file);
    auto play = reinterpret_cast<decltype(&pimbaloPlaySound)>(module.resolve(PIMBALO_SOUND_PLAY));
    auto stop = reinterpret_cast<decltype(&pimbaloStopSound)>(module.resolve(PIMBALO_SOUND_STOP));
    if (play && stop) {
        o.play = play;
        o.stop = stop;
    }
    return o;
}

void stopPlaying() {
    if (output().stop) output().stop();  // nothing plays before the module is there
}

}  // namespace

void setSoundModule(const QString& file) {
    Output& o = output();
    o.file = file;
    if (!o.play) o.tried = false;  // a module named late is still tried
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
    stopPlaying();
    latestFile().clear();
    const auto file = findGameFile(relativePath);
    if (!file) return;
    const PcmSound& sound = soundOf(*file);
    if (!sound.playable()) return;
    latestFile() = QFileInfo(*file).absoluteFilePath();
    if (const Output& out = loadedOutput(); out.play) out.play(&sound);
}

}  // namespace platform
