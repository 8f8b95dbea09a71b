// The sound module: plays PCM samples through the default audio output.
#include "platform/sound_output.h"

#include <QAudioSink>
#include <QBuffer>
#include <QMediaDevices>

namespace {

QAudioFormat audioFormatOf(const platform::PcmFormat& pcm) {
    using Sample = platform::PcmFormat::Sample;
    QAudioFormat format;
    format.setSampleRate(pcm.sampleRate);
    format.setChannelCount(pcm.channels);
    switch (pcm.sample) {
        case Sample::UInt8:
            format.setSampleFormat(QAudioFormat::UInt8);
            break;
        case Sample::Int16:
            format.setSampleFormat(QAudioFormat::Int16);
            break;
        case Sample::Int32:
            format.setSampleFormat(QAudioFormat::Int32);
            break;
        case Sample::Float:
            format.setSampleFormat(QAudioFormat::Float);
            break;
        case Sample::Unknown:
            break;
    }
    return format;
}

// The sound playing now, if any: a new one replaces it.
QAudioSink*& playing() {
    static QAudioSink* sink = nullptr;
    return sink;
}

}  // namespace

extern "C" {

Q_DECL_EXPORT void pimbaloStopSound() {
    if (QAudioSink* sink = playing()) {
        playing() = nullptr;
        sink->stop();
        sink->deleteLater();
    }
}

Q_DECL_EXPORT void pimbaloPlaySound(const platform::PcmSound* sound) {
    pimbaloStopSound();
    auto* sink = new QAudioSink(QMediaDevices::defaultAudioOutput(), audioFormatOf(sound->format));
    auto* source = new QBuffer(sink);
    source->setData(sound->samples);
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

}  // extern "C"
