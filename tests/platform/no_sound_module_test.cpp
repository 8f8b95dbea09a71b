// Without its sound module (pimbalo-sound.so, loaded at the first sound) the
// game plays on in silence: no crash, no message, and none of the audio
// system loaded. Its own program, since a module once loaded stays loaded.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/sound.h"

namespace {

// A short, well-formed sound: 8-bit mono PCM.
QByteArray wavFile() {
    const QByteArray samples(1000, '\x80');
    QByteArray file;
    auto put = [&](quint32 v, int bytes) {
        for (int i = 0; i < bytes; ++i) file.append(char((v >> (8 * i)) & 0xFF));
    };
    file.append("RIFF");
    put(36 + samples.size(), 4);
    file.append("WAVEfmt ");
    put(16, 4);     // format chunk size
    put(1, 2);      // PCM
    put(1, 2);      // mono
    put(11025, 4);  // samples a second
    put(11025, 4);  // bytes a second
    put(1, 2);      // bytes a frame
    put(8, 2);      // bits a sample
    file.append("data");
    put(samples.size(), 4);
    return file + samples;
}

bool audioSystemLoaded() {
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("Multimedia");
}

}  // namespace

class NoSoundModuleTests : public QObject {
    Q_OBJECT
    QTemporaryDir dir;

  private slots:
    void initTestCase() {
        QVERIFY(QDir::setCurrent(dir.path()) && QDir().mkdir("wav"));
        QFile sound("wav/click.wav");
        QVERIFY(sound.open(QIODevice::WriteOnly) && sound.write(wavFile()) > 0);
    }
    void init() { QTest::failOnWarning(QRegularExpression(".*")); }

    void soundsWithoutAModuleAreSilent_data() {
        QTest::addColumn<QString>("module");
        QTest::newRow("none found") << QString();
        QTest::newRow("missing") << dir.filePath("pimbalo-sound.so");
        QTest::newRow("not a library") << dir.filePath("wav/click.wav");
        QTest::newRow("a library without the sound calls") << QStringLiteral("libm.so.6");
    }
    void soundsWithoutAModuleAreSilent() {
        QFETCH(QString, module);
        platform::setSoundModule(module);
        platform::playSound("wav\\click.wav");
        platform::playSound("wav\\click.wav");  // one more try at loading
        // The sound was good: it got as far as the player.
        QCOMPARE(platform::latestSoundFile(), QDir::current().absoluteFilePath("wav/click.wav"));
        platform::playSound("wav\\missing.wav");
        QVERIFY(!audioSystemLoaded());
    }
};

QTEST_GUILESS_MAIN(NoSoundModuleTests)
#include "no_sound_module_test.moc"
