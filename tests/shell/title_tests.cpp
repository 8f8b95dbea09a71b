// The title screen: what its start-up reads, how it fails quietly, and its
// ways out.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/form.h"
#include "screen_fixture.h"
#include "shell/module1.h"
#include "shell/startplay2.h"
#include "shell/titlefrm.h"

using namespace shell_test;
using platform::screens::get;
using platform::screens::isLoaded;

namespace {

shell::Titlefrm& title() {
    return get<shell::Titlefrm>(shell::Titlefrm::kName);
}

void showTitle() {
    platform::screens::show(shell::Titlefrm::kName);
}

}  // namespace

class TitleTests : public QObject {
    Q_OBJECT
    ScreenFixture fixture;

  private slots:
    void init() { fixture.begin(); }
    void cleanup() { fixture.end(); }

    void startUpKeepsWhatItRead_data() {
        QTest::addColumn<QByteArray>("lastgame");
        QTest::addColumn<int>("highscoreChop");     // bytes cut off the end; -1: no file
        QTest::addColumn<QVector<int>>("options");  // playsound .. boardsize
        QTest::addColumn<int>("bestTime");
        QTest::addColumn<int>("loadfailed");
        // Before each start-up: boardsize 2 and a 99-second record in memory.
        QTest::newRow("both complete")
            << QByteArray("1\r\n0\r\n1\r\n1\r\n") << 0 << QVector<int>{1, 0, 1, 1} << 35 << 0;
        QTest::newRow("highscore.inf missing")
            << QByteArray("0\r\n1\r\n1\r\n1\r\n") << -1 << QVector<int>{0, 1, 1, 1} << 99 << 1;
        QTest::newRow("fourth line missing")
            << QByteArray("1\r\n1\r\n0\r\n") << 0 << QVector<int>{1, 1, 0, 2} << 99 << 1;
        // The 90th line is an empty name: only its CR LF goes.
        QTest::newRow("highscore.inf of 89 lines")
            << QByteArray("1\r\n0\r\n0\r\n0\r\n") << 2 << QVector<int>{1, 0, 0, 0} << 35 << 1;
    }

    void startUpKeepsWhatItRead() {
        QFETCH(QByteArray, lastgame);
        QFETCH(int, highscoreChop);
        auto& shared = shell::module1();
        shared.boardsize = 2;
        shared.besttime[0][0][0] = 99;
        shared.loadfailed = 1;  // an earlier failed start-up is forgotten
        fixture.writeFile("lastgame.inf", lastgame);
        if (highscoreChop >= 0)
            fixture.writeFile("highscore.inf",
                              highscoreWithOneEntry(35, "Ann").chopped(highscoreChop));
        showTitle();

        const QVector<int> options{shared.playsound, shared.timerson, shared.hidedesktop,
                                   shared.boardsize};
        QTEST(options, "options");
        QTEST(int(shared.besttime[0][0][0]), "bestTime");
        QTEST(int(shared.loadfailed), "loadfailed");
        QCOMPARE(title().Label5->Caption(), std::string("OK"));
    }

    void firstStartWithoutFiles() {
        auto& shared = shell::module1();
        showTitle();
        QCOMPARE(shared.loadfailed, 1);
        QCOMPARE(shared.playsound + shared.timerson + shared.hidedesktop + shared.boardsize, 0);
        // Centred on the 1280 x 1024 pixel screen.
        QCOMPARE(title().Left(), 19200.0f / 2 - title().Width() / 2);
        QCOMPARE(title().Top(), 15360.0f / 2 - title().Height() / 2);

        // "OK" still turns the backdrop on and shows it, silently.
        click(*title().Label5);
        QCOMPARE(shared.hidedesktop, 1);
        QVERIFY(get("Grey").isVisible());
        QVERIFY(get(shell::Startplay2::kName).isVisible());
        QVERIFY(!isLoaded(shell::Titlefrm::kName));
        QVERIFY(fixture.sounds.empty());
    }

    void missingPictureIsTrapped() {
        fixture.end();
        // An Images folder with everything but the logo.
        QTemporaryDir images;
        const QDir game(gameFolder() + "/Images");
        for (const QString& name : game.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
            if (name.compare("logo4.jpg", Qt::CaseInsensitive) != 0)
                QVERIFY(QFile::link(game.filePath(name), images.filePath(name)));
        fixture.begin(images.path());
        fixture.writeFile("lastgame.inf", "1\r\n1\r\n1\r\n1\r\n");
        fixture.writeFile("highscore.inf", highscoreWithOneEntry(35, "Ann"));

        showTitle();
        // The files come after the pictures, so nothing was read.
        QCOMPARE(shell::module1().loadfailed, 1);
        QCOMPARE(shell::module1().playsound, 0);
        QCOMPARE(shell::module1().besttime[0][0][0], 0);
        QVERIFY(title().isVisible());
    }

    void bothPicturesLeaveLikeOk() {
        fixture.writeFile("lastgame.inf", "1\r\n0\r\n0\r\n0\r\n");
        for (int element : {0, 1}) {
            showTitle();
            fixture.sounds.clear();
            click(title().Image1(element));
            QVERIFY(!isLoaded(shell::Titlefrm::kName));
            QVERIFY(get(shell::Startplay2::kName).isVisible());
            // Sound on: the click of leaving, none from the backdrop box,
            // which stays ticked since hidedesktop is 1 again.
            QCOMPARE(fixture.sounds, std::vector<std::string>{"wav\\click.wav"});
            platform::screens::unload(shell::Startplay2::kName);
        }
    }

    void exitEndsTheProgram() {
        showTitle();
        click(*title().Label7);
        QVERIFY(fixture.ended);
        QVERIFY(!isLoaded(shell::Titlefrm::kName));
    }
};

int runTitleTests(int argc, char* argv[]) {
    TitleTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "title_tests.moc"
