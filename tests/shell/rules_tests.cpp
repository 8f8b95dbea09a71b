// The rules screen's pages.
#include "platform/files.h"
#include "screen_fixture.h"
#include "shell/morvelrules.h"

using namespace shell_test;
using shell::Morvelrules;

namespace {

struct Page {
    const char *heading, *ruleEnding, *puzzle, *solution;
};
const Page kPages[] = {
    {"4x4 Board", "each quarter are different.", "images\\4x4puzzle.jpg",
     "images\\4x4solution.jpg"},
    {"5x5 Board", "along each diagonal are different.", "images\\5x5puzzle.jpg",
     "images\\5x5solution.jpg"},
    {"6x6 Board", "six coloured rectangles are different.", "images\\6x6puzzle2.jpg",
     "images\\6x6solution2.jpg"},
};

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

void checkPage(int page) {
    QVERIFY(rules().Option1(page).Value());
    QCOMPARE(rules().Label1(6).Caption(), std::string(kPages[page].heading));
    QVERIFY(rules().Label1(2).Caption().find(kPages[page].ruleEnding) != std::string::npos);
    QVERIFY(shows(*rules().Image3, kPages[page].puzzle));
    QVERIFY(shows(*rules().Image4, kPages[page].solution));
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
            QVERIFY(shows(rules().Image1(0), "Images\\pimbalo2.jpg"));
            QVERIFY(shows(*rules().Image2, "Images\\logo2.jpg"));
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
};

int runRulesTests(int argc, char* argv[]) {
    RulesTests tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "rules_tests.moc"
