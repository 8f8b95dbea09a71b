// The title and options screens: what the title's start-up reads and how it
// fails quietly, the ways between the two, and the options screen's boxes,
// whose start-up runs their own reactions.
#include "screen_fixture.h"
#include "shell/titlefrm.h"

using namespace shell_test;
using platform::screens::isLoaded;
using shell::Startplay2;
using shell::Titlefrm;

namespace {

Startplay2& options() {
    return screen<Startplay2>();
}

// The way a player arrives: the title screen's "OK".
void arriveFromTitle(const char* lastgame) {
    if (lastgame) writeFile("lastgame.inf", lastgame);
    platform::screens::show(Titlefrm::kScreen);
    click(*screen<Titlefrm>().Label5);
}

const QByteArray kLink("link");

}  // namespace

class TitleAndOptionsTests : public ScreenTest {
    Q_OBJECT

  private slots:
    void startUpKeepsWhatItRead_data() {
        QTest::addColumn<QByteArray>("lastgame");
        QTest::addColumn<int>("highscoreChop");  // bytes cut off the end; -1: no file
        QTest::addColumn<QByteArray>("logo");    // "link": the game's own picture
        // playsound, timerson, hidedesktop, boardsize, the 4x4 level 1 time, loadfailed
        QTest::addColumn<QVector<int>>("after");
        // Before each start-up: boardsize 2 and a 99-second record in memory.
        QTest::newRow("both complete")
            << QByteArray("1\r\n0\r\n1\r\n1\r\n") << 0 << kLink << QVector<int>{1, 0, 1, 1, 35, 0};
        QTest::newRow("highscore.inf missing")
            << QByteArray("0\r\n1\r\n1\r\n1\r\n") << -1 << kLink << QVector<int>{0, 1, 1, 1, 99, 1};
        QTest::newRow("fourth line missing")
            << QByteArray("1\r\n1\r\n0\r\n") << 0 << kLink << QVector<int>{1, 1, 0, 2, 99, 1};
        // The 90th line is an empty name: only its CR LF goes.
        QTest::newRow("highscore.inf of 89 lines")
            << QByteArray("1\r\n0\r\n0\r\n0\r\n") << 2 << kLink << QVector<int>{1, 0, 0, 0, 35, 1};
        // The pictures come before the files, so nothing is read.
        QTest::newRow("logo missing") << QByteArray("1\r\n1\r\n1\r\n1\r\n") << 0 << QByteArray()
                                      << QVector<int>{0, 0, 0, 2, 99, 1};
        // A JPEG's first bytes, then nothing a decoder can use.
        QTest::newRow("logo undecodable")
            << QByteArray("1\r\n1\r\n1\r\n1\r\n") << 0 << QByteArray("\xff\xd8\xff\xe0 broken")
            << QVector<int>{0, 0, 0, 2, 99, 1};
    }

    void startUpKeepsWhatItRead() {
        QFETCH(QByteArray, lastgame);
        QFETCH(int, highscoreChop);
        QFETCH(QByteArray, logo);
        if (logo != kLink) {
            QVERIFY(QFile::remove("Images") && QDir().mkdir("Images"));
            for (const QString name : {"pimbalo.jpg", "opening3.jpg"})
                QVERIFY(QFile::link(kGameFolder + "/Images/" + name, "Images/" + name));
            if (!logo.isEmpty()) writeFile("Images/logo4.jpg", logo);
        }
        auto& shared = shell::module1();
        shared.boardsize = 2;
        shared.besttime[0][0][0] = 99;
        shared.loadfailed = 1;  // an earlier failed start-up is forgotten
        writeFile("lastgame.inf", lastgame);
        if (highscoreChop >= 0)
            writeFile("highscore.inf", highscoreWithOneEntry().chopped(highscoreChop));

        platform::screens::show(Titlefrm::kScreen);
        QTEST((QVector<int>{shared.playsound, shared.timerson, shared.hidedesktop, shared.boardsize,
                            shared.besttime[0][0][0], shared.loadfailed}),
              "after");
        // Up and centred on the 1280 x 1024 pixel screen, whatever failed.
        const auto& title = screen<Titlefrm>();
        QVERIFY(title.isVisible());
        QCOMPARE(title.Left(), 19200.0f / 2 - title.Width() / 2);
        QCOMPARE(title.Top(), 15360.0f / 2 - title.Height() / 2);
    }

    void okAndBothPicturesLeadOnOverTheBackdrop() {
        for (int way : {0, 1, 2}) {
            const bool sound = way > 0;
            writeFile("lastgame.inf", sound ? "1\r\n0\r\n0\r\n0\r\n" : "0\r\n0\r\n0\r\n0\r\n");
            platform::screens::show(Titlefrm::kScreen);
            auto& title = screen<Titlefrm>();
            QCOMPARE(title.Label5->Caption(), std::string("OK"));
            sounds.clear();

            click(way == 0 ? static_cast<QWidget&>(*title.Label5) : title.Image1(way - 1));
            QCOMPARE(shell::module1().hidedesktop, 1);
            QVERIFY(platform::screens::get(tables::Screen::Grey).isVisible());
            QVERIFY(screen<Startplay2>().isVisible());
            QVERIFY(!isLoaded(Titlefrm::kScreen));
            // The click of leaving only: the backdrop box stays ticked.
            QCOMPARE(sounds, sound ? Sounds{"wav\\click.wav"} : Sounds{});
            platform::screens::unload(Startplay2::kScreen);
        }
    }

    // The desktop's close button: the title and options screens end the game
    // (the options screen's way out ends at the title screen's "Exit"); the
    // backdrop is not the player's to close, and nothing ends with it.
    void closingThroughTheDesktop() {
        platform::screens::show(tables::Screen::Grey);
        platform::screens::get(tables::Screen::Grey).close();
        QVERIFY(!ended && platform::screens::get(tables::Screen::Grey).isVisible());

        for (const tables::Screen screen : {Titlefrm::kScreen, Startplay2::kScreen}) {
            ended = false;
            platform::screens::show(screen);
            platform::screens::get(screen).close();
            QVERIFY2(ended, tables::screenName(screen));
            QVERIFY(!isLoaded(screen) && !isLoaded(tables::Screen::Grey));
            QVERIFY(!QFile::exists("lastgame.inf"));  // nothing is saved
            platform::screens::show(tables::Screen::Grey);
        }
    }

    void startUpReactsLikeThePlayerAndExitRereadsTheFile() {
        arriveFromTitle("1\r\n1\r\n1\r\n2\r\n");
        // Only "Timers On" leaves its designed state: one box click, then the
        // title screen's own.
        QCOMPARE(sounds, (Sounds{"wav\\click1.wav", "wav\\click.wav"}));
        QCOMPARE(shell::module1().timerson, 1);
        QVERIFY(options().Option1(2).Value() && !options().Option1(0).Value());
        QCOMPARE(options().Check2->Value(), 1);
        // Wider than 1024 pixels: the backdrop box shows, ticked.
        QVERIFY(options().Check3->isVisible());
        QCOMPARE(options().Check3->Value(), 1);

        click(*options().Check2, true);
        click(options().Option1(1), true);
        sounds.clear();
        click(options().Label3(0));
        QVERIFY(sounds.empty());
        QVERIFY(!isLoaded(Startplay2::kScreen));
        auto& title = screen<Titlefrm>();
        QVERIFY(title.isVisible());
        QCOMPARE(title.Label5->Caption(), std::string("Cancel"));
        // The title screen read the file again: the changes are gone, the
        // backdrop is left as it was.
        QCOMPARE(shell::module1().timerson, 1);
        QCOMPARE(shell::module1().boardsize, 2);
        QVERIFY(isLoaded(tables::Screen::Grey));

        click(*title.Label5);  // "Cancel" leads on just like "OK"
        QVERIFY(options().Option1(2).Value());
    }

    void clearedBackdropStaysClearedAfterABoard() {
        arriveFromTitle("1\r\n0\r\n1\r\n0\r\n");
        click(*options().Check3, true);
        QCOMPARE(shell::module1().hidedesktop, 0);
        QVERIFY(!isLoaded(tables::Screen::Grey));
        click(options().Label1(0));
        sounds.clear();

        // Back from the board, as its "Exit" does it: the start-up clears the
        // designed tick, so the box reacts again (a click); no backdrop.
        platform::screens::show(Startplay2::kScreen);
        platform::screens::unload(tables::Screen::jigsaw);
        QCOMPARE(sounds, Sounds{"wav\\click1.wav"});
        QCOMPARE(shell::module1().hidedesktop, 0);
        QCOMPARE(options().Check3->Value(), 0);
        QVERIFY(!isLoaded(tables::Screen::Grey));

        click(*options().Check3, true);
        QCOMPARE(shell::module1().hidedesktop, 1);
        QVERIFY(platform::screens::get(tables::Screen::Grey).isVisible());
    }

    void boxesClickOnlyWhenSoundWasOn() {
        arriveFromTitle(nullptr);  // no files: everything off
        auto& shared = shell::module1();
        // Ticking sound on is silent; a double-click, as children make, ticks
        // it once, never on and off again.
        doubleClick(*options().Check1, true);
        QCOMPARE(shared.playsound, 1);
        QVERIFY(sounds.empty());

        click(*options().Check2, true);
        QCOMPARE(shared.timerson, 1);
        click(*options().Check2, true);
        QCOMPARE(shared.timerson, 0);
        click(*options().Check1, true);  // clearing it: heard
        QCOMPARE(shared.playsound, 0);
        QCOMPARE(sounds, Sounds(3, "wav\\click1.wav"));
    }

    // The three boxes are ticked only by a 1. Values of 2 (a hand-edited
    // lastgame.inf) show clear, so the boxes ticked in the design react:
    // "Play Sound" and "Hide Desktop" go to 0, the backdrop goes away, and
    // nothing clicks, since sound was not 1.
    void twoCountsAsOff() {
        auto& shared = shell::module1();
        arriveFromTitle("2\r\n2\r\n2\r\n0\r\n");
        QVERIFY(sounds.empty());  // the title screen clicks after this start-up: sound is 0 by then
        QCOMPARE(shared.playsound, 0);
        QCOMPARE(shared.timerson, 2);  // clear as designed: no reaction
        QCOMPARE(options().Check1->Value(), 0);
        QCOMPARE(options().Check2->Value(), 0);
        QCOMPARE(options().Check3->Value(), 1);  // the title screen has set it to 1

        // Back from a board, as its "Exit" does it.
        platform::screens::unload(Startplay2::kScreen);
        shared.playsound = 2;
        shared.hidedesktop = 2;
        platform::screens::show(Startplay2::kScreen);
        QCOMPARE(shared.hidedesktop, 0);
        QCOMPARE(options().Check3->Value(), 0);
        QVERIFY(!isLoaded(tables::Screen::Grey));
        QVERIFY(sounds.empty());
    }

    void levelButtonsStartTheChosenSize() {
        const char* const saved = "1\r\n0\r\n1\r\n0\r\n";
        for (int size = 0; size < 3; ++size) {
            const int level = 2 - size;
            arriveFromTitle(saved);
            click(options().Option1(size), true);
            QCOMPARE(shell::module1().boardsize, size);
            sounds.clear();

            click(options().Label1(level));
            QCOMPARE(shell::module1().level, level);
            for (int k = 0; k < 3; ++k) QCOMPARE(isLoaded(tables::boardScreen(k)), k == size);
            QVERIFY(!isLoaded(Startplay2::kScreen));
            QCOMPARE(sounds, Sounds{"wav\\click.wav"});
            // Starting a game writes nothing.
            QFile file("lastgame.inf");
            QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll() == saved);
            QVERIFY(!QFile::exists("highscore.inf"));
            platform::screens::unload(tables::boardScreen(size));
        }
    }

    // Without a mouse: each screen opens on its first command, Tab and
    // Shift+Tab walk them in reading order (the sizes one stop, the arrows
    // within them), Space and Enter press, tick and clear.
    void keyboardOnlyFromTheTitleToABoard() {
        writeFile("lastgame.inf", "1\r\n0\r\n1\r\n1\r\n");  // sound on, 5x5
        platform::screens::show(Titlefrm::kScreen);
        Titlefrm& title = screen<Titlefrm>();
        QVERIFY(QTest::qWaitForWindowActive(&title));
        auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QGuiApplication::focusWindow(), key, modifiers);
        };
        auto focused = [] { return QApplication::focusWidget(); };
        QCOMPARE(focused(), title.Label5);
        press(Qt::Key_Tab);
        QCOMPARE(focused(), title.Label7);
        press(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(focused(), title.Label5);
        press(Qt::Key_Return);
        QVERIFY(!isLoaded(Titlefrm::kScreen) && !ended);

        Startplay2& o = options();
        QVERIFY(QTest::qWaitForWindowActive(&o));
        QCOMPARE(focused(), &o.Option1(1));
        press(Qt::Key_Down);
        QVERIFY(focused() == &o.Option1(2) && o.Option1(2).Value());
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        QVERIFY(focused() == &o.Option1(0) && o.Option1(0).Value());
        QCOMPARE(shell::module1().boardsize, 0);
        const std::vector<QWidget*> order{o.Label6,     o.Check2,      o.Check1,     o.Check3,
                                          &o.Label1(0), &o.Label1(1),  &o.Label1(2), &o.Label2(12),
                                          &o.Label3(0), &o.Option1(0), &o.Label3(0)};
        for (std::size_t i = 0; i < order.size(); ++i) {
            QWidget* next = order[i];
            press(i + 1 == order.size() ? Qt::Key_Backtab : Qt::Key_Tab);
            QCOMPARE(focused(), next);
            if (next == o.Check2) press(Qt::Key_Space);
            if (next == o.Check1) press(Qt::Key_Enter);
        }
        QCOMPARE(shell::module1().timerson, 1);
        QCOMPARE(shell::module1().playsound, 0);
        for (int k = 0; k < 3; ++k) press(Qt::Key_Backtab);
        QCOMPARE(focused(), &o.Label1(1));
        press(Qt::Key_Space);
        QVERIFY(isLoaded(tables::Screen::jigsaw) && !isLoaded(Startplay2::kScreen));
        QCOMPARE(shell::module1().level, 1);
    }
};

int runTitleAndOptionsTests(int argc, char* argv[]) {
    TitleAndOptionsTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "title_options_tests.moc"
