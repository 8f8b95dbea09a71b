// Without its sound module (pimbalo-sound.so, loaded at the first sound) the
// game plays on in silence: no crash, no message, and none of the audio
// system loaded. Its own program, since a module once loaded stays loaded.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/sound.h"

namespace {

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
        QVERIFY(QDir::setCurrent(dir.path()));
        QVERIFY(QFile::link(QStringLiteral(PIMBALO_GAME_DIR "/wav"), "wav"));
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
