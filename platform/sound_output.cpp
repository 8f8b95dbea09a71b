// The sound module: plays PCM samples through the default audio output.
#include "platform/sound_output.h"

#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>
#include <utility>

namespace {

// Qt's sample formats in the order of PcmFormat::Sample.
constexpr QAudioFormat::SampleFormat kQtSample[] = {QAudioFormat::Unknown, QAudioFormat::UInt8,
                                                    QAudioFormat::Int16, QAudioFormat::Int32,
                                                    QAudioFormat::Float};

QAudioFormat audioFormatOf(const platform::PcmFormat& pcm) {
    QAudioFormat format;
    format.setSampleRate(pcm.sampleRate);
    format.setChannelCount(pcm.channels);
    format.setSampleFormat(kQtSample[static_cast<int>(pcm.sample)]);
    return format;
}

// The sound playing now, if any: a new one replaces it.
QAudioSink* playing = nullptr;

}  // namespace

extern "C" {

Q_DECL_EXPORT void pimbaloStopSound() {
    delete std::exchange(playing, nullptr);  // the sink stops its stream as it goes
}

Q_DECL_EXPORT void pimbaloPlaySound(const platform::PcmSound* sound, bool (*stillWanted)()) {
    pimbaloStopSound();
    // The first call connects to the sound server.
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (!stillWanted()) return;
    auto* sink = new QAudioSink(device, audioFormatOf(sound->format));
    auto* source = new QBuffer(sink);
    source->setData(sound->samples);
    source->open(QIODevice::ReadOnly);
    // Played out (or failed): the sink goes.
    QObject::connect(sink, &QAudioSink::stateChanged, sink, [sink](QAudio::State state) {
        if (state == QAudio::ActiveState || playing != sink) return;
        playing = nullptr;
        sink->deleteLater();
    });
    playing = sink;
    sink->start(source);                     // opens a stream on the server
    if (!stillWanted()) pimbaloStopSound();  // the server answered too late
}

}  // extern "C"
