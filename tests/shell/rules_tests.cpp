// The rules screen's pages, and the program finding its game folder.
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/files.h"
#include "platform/form.h"
#include "screen_fixture.h"
#include "shell/game_folder.h"
#include "shell/module1.h"
#include "shell/morvelrules.h"
#include "shell/startplay2.h"

using namespace shell_test;
using platform::screens::get;
using platform::screens::isLoaded;
using Sounds = std::vector<std::string>;

namespace {

shell::Morvelrules& rules() {
    return get<shell::Morvelrules>(shell::Morvelrules::kName);
}

void openRules() {
    platform::screens::show(shell::Startplay2::kName);
    click(*get<shell::Startplay2>(shell::Startplay2::kName).Label6);
}

// The picture box shows exactly the picture of that file.
bool shows(const platform::PictureBox& box, const char* file) {
    return !box.picture().isNull() &&
           box.picture().cacheKey() == platform::loadPicture(file).cacheKey();
}

}  // namespace

class RulesTests : public QObject {
    Q_OBJECT
    ScreenFixture fixture;

  private slots:
    void init() { fixture.begin(); }
    void cleanup() { fixture.end(); }

    void opensOnTheFirstPageWhateverTheSize() {
        shell::module1().boardsize = 2;
        shell::module1().playsound = 1;
        openRules();
        QCOMPARE(fixture.sounds.back(), std::string("wav\\click.wav"));
        QVERIFY(rules().isVisible());
        QVERIFY(rules().Option1(0).Value());
        QCOMPARE(rules().Label1(6).Caption(), std::string("4x4 Board"));
        QVERIFY(rules().Label1(2).Caption().find("each quarter are different.") !=
                std::string::npos);
        QVERIFY(shows(*rules().Image3, "images\\4x4puzzle.jpg"));
        QVERIFY(shows(*rules().Image4, "images\\4x4solution.jpg"));
        QVERIFY(shows(rules().Image1(0), "Images\\pimbalo2.jpg"));
        QVERIFY(shows(*rules().Image2, "Images\\logo2.jpg"));
        // The standard full size, centred on 1280 x 1024 pixels.
        QCOMPARE(rules().Left(), 1920.0f);
        QCOMPARE(rules().Top(), 1920.0f);
        QCOMPARE(rules().Width(), 15360.0f);
    }

    void pagesShowTheirPicturesAndTexts() {
        openRules();
        fixture.sounds.clear();
        const char* const endings[] = {"each quarter are different.",
                                       "along each diagonal are different.",
                                       "six coloured rectangles are different."};
        // Backwards, so that every page is a change.
        for (int page : {2, 1, 0}) {
            const shell::RulesPage& expected = shell::rulesPage(page);
            clickIndicator(rules().Option1(page));
            QCOMPARE(rules().Label1(6).Caption(), std::string(expected.heading));
            QVERIFY(rules().Label1(2).Caption().find(endings[page]) != std::string::npos);
            QVERIFY(shows(*rules().Image3, expected.puzzlePicture));
            QVERIFY(shows(*rules().Image4, expected.solutionPicture));
        }
        QCOMPARE(std::string(shell::rulesPage(2).puzzlePicture),
                 std::string("images\\6x6puzzle2.jpg"));
        QCOMPARE(std::string(shell::rulesPage(2).solutionPicture),
                 std::string("images\\6x6solution2.jpg"));

        // Selecting the page already shown does not redo it.
        rules().Label1(6).setCaption("unchanged");
        clickIndicator(rules().Option1(0));
        QCOMPARE(rules().Label1(6).Caption(), std::string("unchanged"));
        QVERIFY(fixture.sounds.empty());
    }

    void exitReturnsToTheOptions() {
        for (int sound : {0, 1}) {
            shell::module1().playsound = static_cast<std::int16_t>(sound);
            openRules();
            clickIndicator(rules().Option1(1));
            fixture.sounds.clear();
            click(rules().Label3(0));
            QVERIFY(!isLoaded(shell::Morvelrules::kName));
            QVERIFY(get(shell::Startplay2::kName).isVisible());
            QCOMPARE(fixture.sounds, sound == 1 ? Sounds{"wav\\click.wav"} : Sounds{});
        }
        // Opened again, it starts afresh on the first page.
        openRules();
        QVERIFY(rules().Option1(0).Value());
        QCOMPARE(rules().Label1(6).Caption(), std::string("4x4 Board"));
    }
};

class GameFolderTests : public QObject {
    Q_OBJECT

  private slots:
    void findsImagesInAnyLetterCase() {
        QTemporaryDir upper, lower, none;
        QVERIFY(QDir(upper.path()).mkdir("Images"));
        QVERIFY(QDir(lower.path()).mkdir("iMAGES"));
        QVERIFY(QDir(none.path()).mkdir("wav"));
        QVERIFY(shell::hasImagesFolder(upper.path()));
        QVERIFY(shell::hasImagesFolder(lower.path()));
        QVERIFY(!shell::hasImagesFolder(none.path()));
    }

    void movesOnlyWhenThePicturesAreMissing() {
        const QString before = QDir::currentPath();
        QTemporaryDir game, elsewhere, alsoBare;
        QVERIFY(QDir(game.path()).mkdir("Images"));

        QVERIFY(QDir::setCurrent(elsewhere.path()));
        QCOMPARE(shell::settleInGameFolder({alsoBare.path(), game.path()}),
                 QDir(game.path()).canonicalPath());
        QCOMPARE(QDir::currentPath(), QDir(game.path()).canonicalPath());

        // Already in a folder with pictures: stays.
        QCOMPARE(shell::settleInGameFolder({elsewhere.path()}), QDir(game.path()).canonicalPath());
        QVERIFY(QDir::setCurrent(before));
    }
};

int runRulesTests(int argc, char* argv[]) {
    RulesTests rules;
    GameFolderTests folder;
    return QTest::qExec(&rules, argc, argv) | QTest::qExec(&folder, argc, argv);
}

#include "rules_tests.moc"
