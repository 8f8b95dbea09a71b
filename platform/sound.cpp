#include "platform/sound.h"

#include <QAudioSink>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QMediaDevices>
#include <map>

#include "platform/files.h"
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
        const char silence = sound.format.sampleFormat() == QAudioFormat::UInt8 ? '\x80' : '\0';
        sound.samples.append(
            QByteArray(sound.format.bytesForDuration(kSilenceAfterMicroseconds), silence));
    }
    return sounds.emplace(file, std::move(sound)).first->second;
}

// The sound playing now, if any: a new one replaces it.
QAudioSink*& playing() {
    static QAudioSink* sink = nullptr;
    return sink;
}

// The file handed to the player by the latest sound, empty after one that
// found nothing to play.
QString& latestFile() {
    static QString file;
    return file;
}

void stopPlaying() {
    if (QAudioSink* sink = playing()) {
        playing() = nullptr;
        sink->stop();
        sink->deleteLater();
    }
}

}  // namespace

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

    auto* sink = new QAudioSink(QMediaDevices::defaultAudioOutput(), sound.format);
    auto* source = new QBuffer(sink);
    source->setData(sound.samples);
    source->open(QIODevice::ReadOnly);
    // Played out (or failed): the sink goes; nothing ever waits for it.
    QObject::connect(sink, &QAudioSink::stateChanged, sink, [sink](QAudio::State state) {
        if (state == QAudio::ActiveState || playing() != sink) return;
        playing() = nullptr;
        sink->deleteLater();
    });
    playing() = sink;
    sink->start(source);
}

}  // namespace platform
