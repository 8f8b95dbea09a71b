// Sound against a real PulseAudio server, started by with_pulseaudio.sh: a
// server that stops answering holds up neither the game nor its clock, and the
// sounds asked for meanwhile are not played late; a new sound replaces one
// playing; the program ends cleanly right after a sound.
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <thread>

#include "platform/sound.h"
#include "tone_wav.h"

namespace {

pid_t server() {
    return static_cast<pid_t>(qEnvironmentVariableIntValue("PIMBALO_TEST_PULSE_PID"));
}

// The streams playing on the server now, by their numbers.
QStringList streams() {
    QProcess pactl;
    pactl.start(QStringLiteral("pactl"), {"list", "short", "sink-inputs"});
    pactl.waitForFinished(10000);
    QStringList numbers;
    for (const QByteArray& line : pactl.readAllStandardOutput().split('\n'))
        if (!line.isEmpty()) numbers << QString::fromLatin1(line.split('\t').value(0));
    return numbers;
}

// Waits (with the event loop running) until `streams()` satisfies `done`.
template <typename Done>
bool waitForStreams(Done done, int ms = 3000) {
    QElapsedTimer clock;
    clock.start();
    while (!done(streams())) {
        if (clock.elapsed() > ms) return false;
        QTest::qWait(50);
    }
    return true;
}

// Asks for `sounds` sounds, one every `every` milliseconds, then lets
// `after` more milliseconds go by; returns the longest the event loop took to
// answer a timer set for every 10 milliseconds (beyond those 10), which is
// the longest a click or a tick of the game's clock would have waited.
qint64 longestAnswer(int sounds, int every, int after) {
    QElapsedTimer clock;
    clock.start();
    qint64 last = 0, longest = 0;
    QTimer beat;
    beat.setTimerType(Qt::PreciseTimer);
    QObject::connect(&beat, &QTimer::timeout, [&] {
        longest = qMax(longest, clock.elapsed() - last - 10);
        last = clock.elapsed();
    });
    beat.start(10);
    for (int i = 0; i < sounds; ++i) {
        platform::playSound(i % 2 ? "wav\\long.wav" : "wav\\click.wav");
        QTest::qWait(every);
    }
    QTest::qWait(after);
    return longest;
}

// Stops the server for as long as it lives, `ms` milliseconds at most: a
// game held up by the server is let go by then, and the test can tell how
// long it was held.
class Stopped {
  public:
    explicit Stopped(int ms) {
        ::kill(server(), SIGSTOP);
        watchdog_ = std::thread([this, ms] {
            std::unique_lock<std::mutex> lock(mutex_);
            over_.wait_for(lock, std::chrono::milliseconds(ms), [this] { return done_; });
            ::kill(server(), SIGCONT);
        });
    }
    ~Stopped() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            done_ = true;
        }
        over_.notify_one();
        watchdog_.join();
    }

  private:
    std::mutex mutex_;
    std::condition_variable over_;
    bool done_ = false;
    std::thread watchdog_;
};

}  // namespace

class SoundServerTests : public QObject {
    Q_OBJECT
    QTemporaryDir game_;

  private slots:
    void initTestCase() {
        QVERIFY(server() > 0);
        QVERIFY(QDir::setCurrent(game_.path()));
        QVERIFY(QDir().mkpath("wav"));
        QVERIFY(writeToneWav("wav/click.wav", 0.05));
        QVERIFY(writeToneWav("wav/long.wav", 4));
        platform::setSoundModule(QStringLiteral(PIMBALO_SOUND_MODULE_FILE));
    }

    // The first sound connects to the server: stopped, it must not hold up
    // the game (the options screen plays its first sound as it comes up).
    // Then the sounds asked for while it was stopped stay unheard, and the
    // next one plays.
    void serverStoppedAtTheFirstSound() { soundsWhileStopped(); }

    void newSoundReplacesOnePlaying() {
        platform::playSound("wav\\long.wav");
        QVERIFY(waitForStreams([](const QStringList& s) { return s.size() == 1; }));
        const QString first = streams().value(0);
        platform::playSound("wav\\long.wav");
        QVERIFY(
            waitForStreams([&](const QStringList& s) { return s.size() == 1 && s[0] != first; }));
        QTest::qWait(300);
        QCOMPARE(streams().size(), 1);
        platform::playSound("wav\\missing.wav");  // silences the one playing
        QVERIFY(waitForStreams([](const QStringList& s) { return s.isEmpty(); }));
    }

    // Stopped with a sound playing: the same again.
    void serverStoppedDuringASound() {
        platform::playSound("wav\\long.wav");
        QVERIFY(waitForStreams([](const QStringList& s) { return s.size() == 1; }));
        soundsWhileStopped();
    }

    // Ending right after a sound, as the game ends or as a fatal error ends
    // it, never aborts in the audio libraries' teardown; with the server
    // stopped it still ends, and soon.
    void endsCleanlyRightAfterASound() {
        auto end = [](int ms, const char* how) {
            QProcess probe;
            probe.setProcessChannelMode(QProcess::MergedChannels);
            probe.start(QStringLiteral(PIMBALO_SOUND_EXIT_PROBE),
                        {PIMBALO_SOUND_MODULE_FILE, QDir::currentPath(), QString::number(ms), how});
            const bool ended = probe.waitForFinished(30000);
            const QByteArray said = probe.readAll();
            const bool clean = ended && probe.exitStatus() == QProcess::NormalExit &&
                               !said.contains("Assertion") && !said.contains("Sanitizer") &&
                               !said.contains("runtime error");
            if (!clean) qWarning().noquote() << "ending" << how << "after" << ms << "ms:" << said;
            return clean ? probe.exitCode() : -1;
        };
        for (int ms : {0, 30, 60, 120, 250, 400}) {
            QCOMPARE(end(ms, "quit"), 0);
            QCOMPARE(end(ms, "fatal"), 1);
        }
        Stopped stopped(20000);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(end(100, "quit"), 0);
        QCOMPARE(end(100, "fatal"), 1);
        QVERIFY2(clock.elapsed() < 10000, qPrintable(QString::number(clock.elapsed())));
    }

  private:
    void soundsWhileStopped() {
        qint64 longest = 0;
        {
            Stopped stopped(4000);
            longest = longestAnswer(6, 200, 1200);
        }
        qInfo("longest answer with the server stopped: %lld ms", longest);
        QVERIFY2(longest < 100, qPrintable(QString::number(longest)));
        QTest::qWait(800);  // the server catches up with what it missed
        QVERIFY(waitForStreams([](const QStringList& s) { return s.isEmpty(); }, 0));
        platform::playSound("wav\\long.wav");
        QVERIFY(waitForStreams([](const QStringList& s) { return s.size() == 1; }));
        platform::playSound("wav\\missing.wav");
        QVERIFY(waitForStreams([](const QStringList& s) { return s.isEmpty(); }));
    }
};

QTEST_MAIN(SoundServerTests)
#include "sound_server_test.moc"
