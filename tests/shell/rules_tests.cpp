// The rules screen's pages.
#include "platform/files.h"
#include "screen_fixture.h"
#include "shell/morvelrules.h"
#include "tables/pictures.h"
#include "tables/texts.h"

using namespace shell_test;
using shell::Morvelrules;

namespace {

Morvelrules& rules() {
    return screen<Morvelrules>();
}

void openRules() {
    platform::screens::show(shell::Startplay2::kScreen);
    click(*screen<shell::Startplay2>().Label6);
}

// The picture box shows exactly the picture of that file.
bool shows(const platform::PictureBox& box, const char* file) {
    return !box.picture().isNull() &&
           box.picture().cacheKey() == platform::loadPicture(file, box.size()).cacheKey();
}

// Page k is the board of size k: its button is the one selected, the heading
// repeats the button's caption, and the rule and the examples are that size's
// (the sentence the board itself shows).
void checkPage(int page) {
    for (int k = 0; k < 3; ++k) QCOMPARE(rules().Option1(k).Value(), k == page);
    QCOMPARE(rules().Label1(6).Caption(), rules().Option1(page).text().toStdString());
    QCOMPARE(rules().Label1(2).Caption(), std::string(tables::kRules[page]));
    QVERIFY(shows(*rules().Image3, tables::kRulesExamples[page].puzzle.path));
    QVERIFY(shows(*rules().Image4, tables::kRulesExamples[page].solution.path));
}

}  // namespace

class RulesTests : public ScreenTest {
    Q_OBJECT

  private slots:
    void pagesAndExit() {
        shell::module1().boardsize = 2;  // the 4x4 page opens whatever the size
        for (int sound : {0, 1}) {
            shell::module1().playsound = static_cast<std::int16_t>(sound);
            const Sounds clickIfOn = sound == 1 ? Sounds{"wav\\click.wav"} : Sounds{};
            sounds.clear();
            openRules();
            QCOMPARE(sounds, clickIfOn);
            checkPage(0);  // the second time too, though it was left on page 1
            QVERIFY(shows(rules().Image1(0), tables::kRulesPicture.path));
            QVERIFY(shows(*rules().Image2, tables::kMascot.path));
            // The standard full size, centred on 1280 x 1024 pixels.
            QCOMPARE(QPointF(rules().Left(), rules().Top()), QPointF(1920, 1920));

            sounds.clear();
            // Every step a change, ending away from the 4x4 page, so that the
            // second opening shows whether the screen starts afresh.
            for (int page : {2, 0, 1}) {
                click(rules().Option1(page), true);
                checkPage(page);
            }
            // The window manager keeps the rules above the options screen.
            QCOMPARE(rules().windowHandle()->transientParent(),
                     screen<shell::Startplay2>().windowHandle());
            // Closed through the desktop the second time: the same as "Exit".
            if (sound == 0)
                click(rules().Label3(0));
            else
                rules().close();
            QVERIFY(!platform::screens::isLoaded(Morvelrules::kScreen));
            QVERIFY(screen<shell::Startplay2>().isVisible());
            QCOMPARE(sounds, clickIfOn);  // pages turn silently
        }
    }

    // From the keyboard: the page buttons first, the arrows turn the pages,
    // Tab goes on to "Exit", which Space presses.
    void keysTurnThePagesAndExit() {
        openRules();
        QVERIFY(QTest::qWaitForWindowActive(&rules()));
        QCOMPARE(QApplication::focusWidget(), &rules().Option1(0));
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Down);
        checkPage(1);
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &rules().Label3(0));
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Space);
        QVERIFY(!platform::screens::isLoaded(Morvelrules::kScreen));
    }
};

int runRulesTests(int argc, char* argv[]) {
    RulesTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "rules_tests.moc"
