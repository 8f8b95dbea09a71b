// The options screen: its start-up runs the boxes' own reactions, the sound
// rule of the boxes, the backdrop box, starting a game and going back.
#include <QtTest>

#include "platform/form.h"
#include "screen_fixture.h"
#include "shell/module1.h"
#include "shell/morvelrules.h"
#include "shell/startplay2.h"
#include "shell/titlefrm.h"

using namespace shell_test;
using platform::screens::get;
using platform::screens::isLoaded;
using Sounds = std::vector<std::string>;

namespace {

shell::Startplay2& options() {
    return get<shell::Startplay2>(shell::Startplay2::kName);
}

// The way a player arrives: the title screen's "OK".
void arriveFromTitle() {
    platform::screens::show(shell::Titlefrm::kName);
    click(*get<shell::Titlefrm>(shell::Titlefrm::kName).Label5);
}

}  // namespace

class OptionsTests : public QObject {
    Q_OBJECT
    ScreenFixture fixture;

  private slots:
    void init() { fixture.begin(); }
    void cleanup() { fixture.end(); }

    void startUpReactsLikeThePlayer() {
        fixture.writeFile("lastgame.inf", "1\r\n1\r\n1\r\n2\r\n");
        fixture.writeFile("highscore.inf", highscoreWithOneEntry(35, "Ann"));
        arriveFromTitle();

        // Only "Timers On" moves from its designed state, so one box click; then
        // the title screen's own click.
        QCOMPARE(fixture.sounds, (Sounds{"wav\\click1.wav", "wav\\click.wav"}));
        auto& shared = shell::module1();
        QCOMPARE(shared.timerson, 1);
        QCOMPARE(shared.boardsize, 2);
        QVERIFY(options().Option1(2).Value());
        QVERIFY(!options().Option1(0).Value());
        QCOMPARE(options().Check1->Value(), 1);
        QCOMPARE(options().Check2->Value(), 1);
        // Wider than 1024 pixels: the backdrop box shows, ticked.
        QVERIFY(options().Check3->isVisible());
        QCOMPARE(options().Check3->Value(), 1);
        QVERIFY(get("Grey").isVisible());
        QVERIFY(options().isVisible());
        QVERIFY(!isLoaded(shell::Titlefrm::kName));
    }

    void clearedBackdropStaysClearedAfterABoard() {
        fixture.writeFile("lastgame.inf", "1\r\n0\r\n1\r\n0\r\n");
        arriveFromTitle();
        fixture.sounds.clear();

        clickIndicator(*options().Check3);
        QCOMPARE(shell::module1().hidedesktop, 0);
        QVERIFY(!isLoaded("Grey"));
        QVERIFY(options().isVisible());
        QCOMPARE(fixture.sounds, Sounds{"wav\\click1.wav"});

        click(options().Label1(0));
        QCOMPARE(boardsShown(), Sounds{"jigsaw"});
        fixture.sounds.clear();

        // Back from the board: the start-up clears the designed tick, so the box
        // reacts again (a click), and the backdrop stays away.
        leaveBoard("jigsaw");
        QCOMPARE(fixture.sounds, Sounds{"wav\\click1.wav"});
        QCOMPARE(shell::module1().hidedesktop, 0);
        QCOMPARE(options().Check3->Value(), 0);
        QVERIFY(!isLoaded("Grey"));
        QVERIFY(options().isVisible());

        // Ticking it again brings the backdrop back.
        clickIndicator(*options().Check3);
        QCOMPARE(shell::module1().hidedesktop, 1);
        QVERIFY(get("Grey").isVisible());
    }

    void boxesClickOnlyWhenSoundWasOn() {
        arriveFromTitle();  // no files: everything off
        auto& shared = shell::module1();
        QCOMPARE(options().Check1->Value(), 0);  // the start-up cleared it, silently
        QVERIFY(fixture.sounds.empty());

        clickIndicator(*options().Check1);  // ticking sound on: silent
        QCOMPARE(shared.playsound, 1);
        QVERIFY(fixture.sounds.empty());

        clickIndicator(*options().Check2);
        QCOMPARE(shared.timerson, 1);
        clickIndicator(*options().Check2);
        QCOMPARE(shared.timerson, 0);
        clickIndicator(*options().Check1);  // clearing it: heard
        QCOMPARE(shared.playsound, 0);
        QCOMPARE(fixture.sounds, Sounds(3, "wav\\click1.wav"));
    }

    void levelButtonsStartTheChosenSize() {
        fixture.writeFile("lastgame.inf", "1\r\n0\r\n1\r\n0\r\n");
        const char* const boards[] = {"jigsaw", "jigsaw5x5", "jigsaw6x6"};
        for (int size = 0; size < 3; ++size) {
            for (int level = 0; level < 3; ++level) {
                arriveFromTitle();
                clickIndicator(options().Option1(size));
                QCOMPARE(shell::module1().boardsize, size);
                boardsShown().clear();
                fixture.sounds.clear();

                click(options().Label1(level));
                QCOMPARE(shell::module1().level, level);
                QCOMPARE(boardsShown(), Sounds{boards[size]});
                QVERIFY(!isLoaded(shell::Startplay2::kName));
                QCOMPARE(fixture.sounds, Sounds{"wav\\click.wav"});
                // Starting a game writes nothing.
                QVERIFY(fixture.readFile("lastgame.inf") == "1\r\n0\r\n1\r\n0\r\n");
                QVERIFY(!QFile::exists(fixture.path("highscore.inf")));
                platform::screens::unload(boards[size]);
            }
        }
    }

    void exitRestoresTheSavedOptions() {
        fixture.writeFile("lastgame.inf", "1\r\n0\r\n1\r\n1\r\n");
        arriveFromTitle();
        QVERIFY(options().Option1(1).Value());
        clickIndicator(*options().Check2);
        clickIndicator(options().Option1(2));
        click(*options().Label6);  // the rules screen on top
        QVERIFY(get(shell::Morvelrules::kName).isVisible());
        fixture.sounds.clear();

        click(options().Label3(0));
        QVERIFY(fixture.sounds.empty());
        QVERIFY(!isLoaded(shell::Startplay2::kName));
        auto& title = get<shell::Titlefrm>(shell::Titlefrm::kName);
        QVERIFY(title.isVisible());
        QCOMPARE(title.Label5->Caption(), std::string("Cancel"));
        // The title screen read the file again: the changes are gone.
        QCOMPARE(shell::module1().timerson, 0);
        QCOMPARE(shell::module1().boardsize, 1);
        QVERIFY(isLoaded("Grey"));  // the backdrop is left as it was

        // "Cancel" leads on just like "OK".
        click(*title.Label5);
        QVERIFY(options().isVisible());
        QVERIFY(options().Option1(1).Value());
    }
};

int runOptionsTests(int argc, char* argv[]) {
    OptionsTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "options_tests.moc"
