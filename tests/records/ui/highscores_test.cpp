// The fastest-times screen: filling the tables of the current size, the name
// entry after a qualifying time, viewing in a board's colour, and closing.
#include "records/highscores.h"

#include <QApplication>
#include <QtTest>
#include <string>

#include "records/fastest_times.h"
#include "records/inf_files.h"
#include "shell/module1.h"

using records::Highscores;
using std::string;

namespace {

const QColor kYellow(255, 255, 0), kRed(255, 0, 0), kBlue(0, 0, 255);

shell::Module1& m() {
    return shell::module1();
}
int row(int level, int rank) {
    return level * records::kRanks + rank;
}
Highscores& screen() {
    return records::highscores();
}
QColor textColour(const QWidget& w) {
    return w.palette().color(QPalette::WindowText);
}

void setEntry(int size, int level, int rank, int time, const string& name) {
    m().besttime[size][level][rank] = static_cast<std::int16_t>(time);
    m().bestname[size][level][rank] = name;
}

// What a board's checkhighscore does: rank the clock's time, then open.
void qualify(int boardsize, int level, const char* clock) {
    m().boardsize = static_cast<std::int16_t>(boardsize);
    m().level = static_cast<std::int16_t>(level);
    QVERIFY(records::rankTime(m(), boardsize, level, clock, m().loadfailed, m().newrank));
    records::openForNameEntry();
}

// A real left click on "Continue", routed through the window.
void clickContinue() {
    Highscores& form = screen();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    QWidget& button = form.Label3(0);
    const QPoint at = button.mapTo(&form, button.rect().center());
    QTest::mousePress(form.windowHandle(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(form.windowHandle(), Qt::LeftButton, {}, at);
    QVERIFY(!platform::screens::isLoaded(Highscores::kName));
}

}  // namespace

class HighscoresTests : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { records::registerScreens(); }
    void init() {
        platform::screens::unload(Highscores::kName);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m() = shell::Module1{};
    }

    void viewingEmptyTablesInTheBoardsColour() {
        const QColor green(0, 128, 64);
        records::openForViewing(green);
        Highscores& s = screen();
        // A 1280 x 1024 screen holds the board at top 1920; this lies 15 below.
        QCOMPARE(s.Left(), (19200.0f - 15210.0f) / 2);
        QCOMPARE(s.Top(), 1935.0f);
        QVERIFY(s.isVisible());
        QCOMPARE(s.BackColor(), green);
        for (int j = 0; j < records::kLevels; ++j) {
            QCOMPARE(s.Frame1(j).BackColor(), green);
            QCOMPARE(s.Label6(j).Caption(), "Level " + std::to_string(j + 1));
            QVERIFY(!s.Text1(j).Visible());
        }
        for (int k = 0; k < 15; ++k) {
            QCOMPARE(s.Label8(k).Caption(), string());
            QVERIFY(!s.Label9(k).Visible());
        }
        QVERIFY(!s.Label1->Visible() && !s.Timer1.Enabled());
    }

    void fillsTheCurrentSize_data() {
        QTest::addColumn<int>("size");
        for (int size : {0, 1, 2}) QTest::newRow(std::to_string(size).c_str()) << size;
    }
    void fillsTheCurrentSize() {
        QFETCH(int, size);
        // Every size holds its own entries, so a wrong index shows.
        for (int s = 0; s < records::kSizes; ++s)
            for (int j = 0; j < records::kLevels; ++j) {
                setEntry(s, j, 0, 100 * s + j + 1, "P" + std::to_string(10 * s + j));
                setEntry(s, j, 1, 0, "ghost");  // a name beside an empty entry
                setEntry(s, j, 2, -7, "minus");
            }
        m().boardsize = static_cast<std::int16_t>(size);
        Highscores& s = screen();
        const string n = std::to_string(size + 4);
        QCOMPARE(s.Label2->Caption(), "Pimbalo " + n + "x" + n + " Fastest Times");
        for (int j = 0; j < records::kLevels; ++j) {
            QCOMPARE(s.Label8(row(j, 0)).Caption(), "P" + std::to_string(10 * size + j));
            QCOMPARE(s.Label9(row(j, 0)).Caption(), std::to_string(100 * size + j + 1));
            QVERIFY(s.Label9(row(j, 0)).Visible());
            QCOMPARE(s.Label8(row(j, 1)).Caption(), string("ghost"));
            QVERIFY(!s.Label9(row(j, 1)).Visible());
            QVERIFY(!s.Label9(row(j, 2)).Visible());
        }
        for (int k = 0; k < 15; ++k) {
            QVERIFY(s.Label8(k).Visible());
            QCOMPARE(textColour(s.Label8(k)), kYellow);
            QCOMPARE(textColour(s.Label9(k)), kYellow);
        }
    }

    void unknownSizeKeepsTheDesignTexts() {
        for (int size : {7, -1, 3}) {
            init();
            setEntry(0, 0, 0, 12, "Ann");
            m().boardsize = static_cast<std::int16_t>(size);
            Highscores& s = screen();
            QCOMPARE(s.Label2->Caption(), string("Pimbalo 4x4 Fastest Times"));
            for (int k = 0; k < 15; ++k) {
                QCOMPARE(s.Label8(k).Caption(), string("Solo Play"));
                QCOMPARE(s.Label9(k).Caption(), string("88888"));
                QVERIFY(s.Label8(k).Visible() && s.Label9(k).Visible());
                QCOMPARE(textColour(s.Label9(k)), kYellow);
            }
        }
    }

    void nameEntryOverTheNewRow() {
        for (int r = 0; r < 4; ++r) setEntry(0, 1, r, 10 * (r + 1), string(1, char('A' + r)));
        qualify(0, 1, "25");
        QCOMPARE(m().newrank, std::int16_t(2));
        Highscores& s = screen();
        platform::TextBox& box = s.Text1(1);
        QCOMPARE(box.parentWidget(), &s.Frame1(1));
        QCOMPARE(box.Top(), 1260.0f);
        QVERIFY(box.Visible() && !s.Text1(0).Visible() && !s.Text1(2).Visible());
        QVERIFY(s.Label1->Visible() && s.Timer1.Enabled() && s.isVisible());
        QCOMPARE(s.BackColor(), kRed);
        // The new time shows in its row, the slower entries below it.
        QCOMPARE(s.Label9(row(1, 2)).Caption(), string("25"));
        QCOMPARE(s.Label8(row(1, 2)).Caption(), string());
        QCOMPARE(s.Label8(row(1, 3)).Caption(), string("C"));

        // Typing goes into the box at once, and into the table on a tick.
        QVERIFY(QTest::qWaitForWindowActive(&s));
        QTest::keyClicks(nullptr, "Ann");
        string& entry = m().bestname[0][1][2];
        QCOMPARE(entry, string());
        s.Timer1.tick();
        QCOMPARE(entry, string("Ann"));
        QTest::keyClicks(&box, "e");
        QTRY_COMPARE_WITH_TIMEOUT(entry, string("Anne"), 2000);  // the running timer

        box.clear();
        QTest::keyClicks(&box, "abcdefghijklmnopqrstuvwxyz0123");
        s.Timer1.tick();
        QCOMPARE(entry, string("abcdefghijklmnopqrstuvwxy"));  // 25 characters at most
        QCOMPARE(m().bestname[0][1][3], string("C"));
    }

    void boardCommandKeepsTheNameUpToTheLastTick() {
        qualify(0, 0, "12");
        QTest::keyClicks(&screen().Text1(0), "Bo");
        screen().Timer1.tick();
        QTest::keyClicks(&screen().Text1(0), "b");
        platform::screens::unload(Highscores::kName);
        QTest::qWait(250);  // nothing is copied once the screen is gone
        QCOMPARE(m().bestname[0][0][0], string("Bo"));

        // The next load starts from the design.
        QVERIFY(!screen().nameEntryOpen() && !screen().Label1->Visible() &&
                !screen().Timer1.Enabled());
        QCOMPARE(screen().Label8(0).Caption(), string("Bo"));
    }

    void continueCopiesOnlyInNameEntry() {
        qualify(2, 1, "300");
        QTest::keyClicks(&screen().Text1(1), "Cy");
        clickContinue();
        QCOMPARE(m().bestname[2][1][0], string("Cy"));

        setEntry(0, 0, 1, 15, "Bea");
        m().boardsize = m().level = 0;
        m().newrank = 1;  // left from an earlier record
        const string before = records::highscoreText(m());
        records::openForViewing(kBlue);
        clickContinue();
        QCOMPARE(records::highscoreText(m()), before);
    }

    void recordWhileViewingOpensAfresh() {
        setEntry(0, 2, 0, 50, "Dee");
        records::openForViewing(kBlue);
        qualify(0, 2, "45");
        Highscores& s = screen();
        QCOMPARE(s.BackColor(), kRed);
        QCOMPARE(s.Frame1(2).BackColor(), kRed);
        QCOMPARE(s.Label9(row(2, 0)).Caption(), string("45"));
        QCOMPARE(s.Label8(row(2, 1)).Caption(), string("Dee"));
        QCOMPARE(s.Text1(2).Top(), 540.0f);
    }
};

QTEST_MAIN(HighscoresTests)
#include "highscores_test.moc"
