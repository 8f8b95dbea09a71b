#include "platform/sound_thread.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLibrary>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <utility>

#include "platform/sound_output.h"

namespace platform {
namespace {

using Clock = std::chrono::steady_clock;

// A sound that has not started this long after it was asked for (the server
// was not answering) no longer goes with what the player did: it is dropped,
// so a server that answers again plays no burst of stale clicks.
constexpr auto kLateAfter = std::chrono::milliseconds(500);
// How long the program's end waits for the audio thread to let go.
constexpr int kEndWaitMs = 1000;

struct Request {
    const PcmSound* sound;
    QString module;
    Clock::time_point asked;
};

// Where the game leaves its latest sound: one place, a newer sound taking the
// place of one the audio thread has not taken yet. Never destroyed, as the
// audio thread may still look at it while the program ends.
struct Mailbox {
    std::mutex mutex;
    std::optional<Request> latest;
};

Mailbox& mailbox() {
    static auto* m = new Mailbox;
    return *m;
}

// --- on the audio thread ----------------------------------------------------

struct Module {
    QString tried;
    decltype(&pimbaloPlaySound) play = nullptr;
    decltype(&pimbaloStopSound) stop = nullptr;
    Clock::time_point loadedAt;
};
Module output;
// When the sound being started was asked for, or when the module was loaded
// for it: loading is no fault of the server's.
Clock::time_point servedAsked;

bool stillWanted() {
    if (Clock::now() - servedAsked > kLateAfter) return false;
    std::lock_guard<std::mutex> lock(mailbox().mutex);
    return !mailbox().latest;  // else a newer sound waits
}

void endAtExit();

void load(const QString& file) {
    if (output.play || file.isEmpty() || file == output.tried) return;
    output.tried = file;
    QLibrary library(file);
    auto play = reinterpret_cast<decltype(&pimbaloPlaySound)>(library.resolve(PIMBALO_SOUND_PLAY));
    auto stop = reinterpret_cast<decltype(&pimbaloStopSound)>(library.resolve(PIMBALO_SOUND_STOP));
    if (!play || !stop) return;
    output.play = play;
    output.stop = stop;
    output.loadedAt = Clock::now();
    // The audio libraries tear themselves down at exit, in handlers they set
    // as they loaded; one set after them runs first and ends this thread
    // before they go.
    std::atexit(endAtExit);
}

void serve() {
    for (;;) {
        std::optional<Request> request;
        {
            std::lock_guard<std::mutex> lock(mailbox().mutex);
            request = std::exchange(mailbox().latest, std::nullopt);
        }
        if (!request) return;
        if (request->sound) load(request->module);
        if (!output.play) continue;
        servedAsked = std::max(request->asked, output.loadedAt);
        if (request->sound && stillWanted())
            output.play(request->sound, stillWanted);
        else
            output.stop();
    }
}

class AudioThread : public QThread {
  protected:
    void run() override {
        exec();
        // The sound still playing ends with the thread that owns it.
        if (output.stop) output.stop();
    }
};

// --- on the game's thread ---------------------------------------------------

// Never destroyed: a thread object must not go while its thread may still run.
struct Audio {
    AudioThread thread;
    QObject inbox;  // lives on the audio thread: wake-up calls arrive there
    bool ended = false;
};
Audio* audio = nullptr;

// Ends the audio thread, its sound and its hold on the sound server. When the
// server does not answer, the thread cannot be ended, nor can the audio
// libraries be torn down under it (their teardown would wait on it for ever):
// then the program ends at once, with `heldStatus`.
void endAudio(int heldStatus) {
    if (!audio || audio->ended) return;
    audio->ended = true;
    audio->thread.quit();
    if (audio->thread.wait(QDeadlineTimer(kEndWaitMs))) return;
    std::fflush(nullptr);
    std::_Exit(heldStatus);
}

// The usual end: the application object goes after its event loop ended.
void endWithApplication() {
    endAudio(EXIT_SUCCESS);
}

// An end by exit() while the application object still lives: the fatal
// errors.
void endAtExit() {
    endAudio(EXIT_FAILURE);
}

}  // namespace

void handToAudioThread(const PcmSound* sound, const QString& moduleFile) {
    if (!audio) {
        if (!sound || moduleFile.isEmpty()) return;  // nothing plays yet: nothing to silence
        audio = new Audio;
        audio->inbox.moveToThread(&audio->thread);
        audio->thread.setObjectName(QStringLiteral("pimbalo-audio"));
        audio->thread.start();
        qAddPostRoutine(endWithApplication);
    }
    if (audio->ended) return;
    bool wake = false;
    {
        std::lock_guard<std::mutex> lock(mailbox().mutex);
        wake = !mailbox().latest;  // else a wake-up call is on its way already
        mailbox().latest = Request{sound, moduleFile, Clock::now()};
    }
    if (wake) QMetaObject::invokeMethod(&audio->inbox, serve, Qt::QueuedConnection);
}

}  // namespace platform
