// The fastest-times screen: filling the tables of the current size, the name
// entry after a qualifying time, viewing in a board's colour, and closing.
#include "records/highscores.h"

#include <QAccessible>
#include <QApplication>
#include <QGlyphRun>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QtTest>
#include <string>

#include "records/fastest_times.h"

using records::Highscores;
using std::string;

const QColor kYellow(255, 255, 0), kRed(255, 0, 0), kBlue(0, 0, 255);

class HighscoresTests : public QObject {
    Q_OBJECT

    static inline records::FastestTimes tables;
    static inline std::int16_t newrank = 0;
    static Highscores& screen() { return records::highscores(); }
    static int row(int level, int rank) { return level * records::kRanks + rank; }
    static QColor textColour(const QWidget& w) { return w.palette().color(QPalette::WindowText); }
    static string repeat(const string& text, int times) {
        string out;
        while (times-- > 0) out += text;
        return out;
    }
    static void setEntry(int size, int level, int rank, int time, const string& name) {
        tables.besttime[size][level][rank] = std::int16_t(time);
        tables.bestname[size][level][rank] = name;
    }
    // What a board's checkhighscore does: rank the clock's time, then open.
    static void qualify(int boardsize, int level, const char* clock) {
        QVERIFY(records::rankTime(tables, boardsize, level, clock, 0, newrank));
        records::openForNameEntry(tables, boardsize, {boardsize, level, newrank});
    }
    // A real left click on "Continue", routed through the window.
    static void clickContinue() {
        Highscores& form = screen();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        const QPoint at = form.Label3(0).mapTo(&form, form.Label3(0).rect().center());
        QTest::mouseClick(form.windowHandle(), Qt::LeftButton, {}, at);
        QVERIFY(!platform::screens::isLoaded(Highscores::kScreen));
    }

  private slots:
    void initTestCase() { records::registerScreens(); }
    void init() {
        platform::screens::unload(Highscores::kScreen);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        tables = records::FastestTimes{};
    }

    void viewingEmptyTablesInTheBoardsColour() {
        records::openForViewing(tables, 1, kBlue);
        Highscores& s = screen();
        // A 1280 x 1024 screen holds the board at 1920, 1920; this lies 15
        // below its top edge, its border flush with the board's sides.
        QCOMPARE(QPointF(s.Left(), s.Top()), QPointF(1920, 1935));
        QCOMPARE(QSizeF(s.Width(), s.Height()), QSizeF(15360, 4200));
        QCOMPARE(s.Label3(0).mapTo(&s, QPoint(0, 0)), QPoint(5 + 12960 / 15, 5 + 120 / 15));
        QVERIFY(s.isVisible() && !s.Label1->Visible() && !s.Timer1.Enabled());
        QCOMPARE(s.BackColor(), kBlue);
        for (int j = 0; j < records::kLevels; ++j) {
            QCOMPARE(s.Frame1(j).BackColor(), kBlue);
            QCOMPARE(s.Label6(j).Caption(), "Level " + std::to_string(j + 1));
        }
        for (int k = 0; k < 15; ++k)
            QVERIFY(s.Label8(k).Caption().empty() && !s.Label9(k).Visible());
    }

    // Sizes hold distinct entries; one out of range (a hand-edited file) keeps the design texts.
    void fillsOnlyAKnownSize() {
        for (int size : {0, 1, 2, 3, -1}) {
            init();
            for (int s = 0; s < records::kSizes; ++s)
                for (int j = 0; j < records::kLevels; ++j) {
                    setEntry(s, j, 0, 100 * s + j + 1, std::to_string(10 * s + j));
                    setEntry(s, j, 1, 0, "ghost");  // a name beside an empty entry
                    setEntry(s, j, 2, -7, "minus");
                }
            records::openForViewing(tables, size, kBlue);
            Highscores& s = screen();
            const bool known = size >= 0 && size < records::kSizes;
            const string n = std::to_string(known ? size + 4 : 4);
            QCOMPARE(s.Label2->Caption(), "Pimbalo " + n + "x" + n + " Fastest Times");
            for (int k = 0; k < 15; ++k) {
                const int j = k / records::kRanks, r = k % records::kRanks;
                const string names[] = {std::to_string(10 * size + j), "ghost", "minus", "", ""};
                const int times[] = {100 * size + j + 1, 0, -7, 0, 0};
                QCOMPARE(s.Label8(k).Caption(), known ? names[r] : "Solo Play");
                QCOMPARE(s.Label9(k).Caption(), known ? std::to_string(times[r]) : "88888");
                QCOMPARE(s.Label9(k).Visible(), !known || r == 0);
                QVERIFY(s.Label8(k).Visible() && textColour(s.Label8(k)) == kYellow);
                QCOMPARE(textColour(s.Label9(k)), kYellow);
            }
        }
    }

    // A name far longer than its row (from an edited file) shows only its
    // start, up to the character cut by the label's edge: laying out the rest
    // held the screen up. A character is never split, be it a letter with a
    // combining accent or an emoji of two UTF-16 units. The table keeps the
    // whole name.
    void aLongNameShowsOnlyWhatFitsItsRow() {
        const string longNames[] = {"Zo" + string(100'000, 'W'), repeat("e\u0308", 100),
                                    repeat("🦊", 100)};
        for (const string& longName : longNames) {
            setEntry(0, 2, 0, 35, longName);
            records::openForViewing(tables, 0, kBlue);
            Highscores& s = screen();
            QVERIFY(QTest::qWaitForWindowExposed(&s));
            const platform::Label& name = s.Label8(row(2, 0));
            const QString whole = QString::fromStdString(longName), shown = name.text();
            QVERIFY2(whole.startsWith(shown) && shown.size() < 100, qPrintable(shown));
            QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, whole);
            characters.setPosition(shown.size());
            QVERIFY2(characters.isAtBoundary(), qPrintable(shown));
            const QFontMetrics metrics = name.fontMetrics();
            QVERIFY(metrics.horizontalAdvance(shown) > name.width());
            QVERIFY(metrics.horizontalAdvance(whole.left(characters.toPreviousBoundary())) <=
                    name.width());
            QCOMPARE(tables.bestname[0][2][0], longName);
        }
    }

    // Polish, Czech, Greek and Cyrillic names are drawn with a real glyph for
    // every character, in the labels' own font or one Qt falls back to.
    void namesInOtherAlphabetsShowWhole() {
        const string names[] = {"Zoë Łucja Żółć", "Řehoř Čapková", "Νίκη Σοφία", "Наташа Ёжик"};
        for (int r = 0; r < 4; ++r) setEntry(1, 0, r, 40 + r, names[r]);
        records::openForViewing(tables, 1, kBlue);
        Highscores& s = screen();
        QVERIFY(QTest::qWaitForWindowExposed(&s));
        for (int r = 0; r < 4; ++r) {
            const platform::Label& label = s.Label8(row(0, r));
            QCOMPARE(label.text(), QString::fromStdString(names[r]));
            QTextLayout layout(label.text(), label.font());
            layout.beginLayout();
            layout.createLine();
            layout.endLayout();
            for (const QGlyphRun& run : layout.glyphRuns())
                QVERIFY2(!run.glyphIndexes().contains(0),
                         qPrintable(label.text() + " in " + run.rawFont().familyName()));
        }
    }

    void nameEntryOverTheNewRow() {
        for (int r = 0; r < 2; ++r) setEntry(0, 1, r, 10 * (r + 1), "faster");
        qualify(0, 1, "25");
        Highscores& s = screen();
        platform::TextBox& box = s.Text1(1);
        QCOMPARE(box.Top(), 1260.0f);  // over rank index 2
        QVERIFY(box.Visible() && !s.Text1(0).Visible() && !s.Text1(2).Visible());
        QVERIFY(s.Label1->Visible() && s.Timer1.Enabled() && s.isVisible());
        QCOMPARE(s.Timer1.Interval(), 100);

        // Typing goes into the box at once, and into the table on a tick.
        QVERIFY(QTest::qWaitForWindowActive(&s));
        QTest::keyClicks(nullptr, "Ann");
        string& entry = tables.bestname[0][1][2];
        QTRY_COMPARE_WITH_TIMEOUT(entry, string("Ann"), 2000);  // the running timer

        // 25 characters at most, as the player sees them: an emoji is one.
        box.clear();
        for (const char* key : {"🦊", "Н", "а", "т", "а", "ш", "а"})
            QTest::sendKeyEvent(QTest::Click, &box, Qt::Key_unknown, QString::fromUtf8(key), {});
        QTest::keyClicks(&box, "abcdefghijklmnopqrstuvwxyz0123");
        s.Timer1.tick();
        const string typed = "🦊Наташаabcdefghijklmnopqr";
        QCOMPARE(entry, typed);

        // A board command unloads the screen: the name stays as of the last tick.
        QTest::keyClick(&box, Qt::Key_Backspace);
        platform::screens::unload(Highscores::kScreen);
        QTest::qWait(250);  // nothing is copied once the screen is gone
        QCOMPARE(entry, typed);
    }

    void continueCopiesOnlyInNameEntry() {
        qualify(2, 1, "50");
        QTest::keyClicks(&screen().Text1(1), "Dee");
        clickContinue();  // keys after the latest tick still count
        QCOMPARE(tables.bestname[2][1][0], string("Dee"));
        records::openForViewing(tables, 2, kBlue);
        clickContinue();
        QCOMPARE(tables.bestname[2][1][0], string("Dee"));

        // Closed through the desktop, it is "Continue": the name is kept.
        qualify(2, 1, "48");
        QTest::keyClicks(&screen().Text1(1), "Eve");
        screen().close();
        QVERIFY(!platform::screens::isLoaded(Highscores::kScreen));
        QCOMPARE(tables.bestname[2][1][0], string("Eve"));

        // The keyboard: Tab stays in the box, the only control that takes the
        // keys, and Enter there is "Continue", the name kept. A screen reader
        // presses "Continue" as a button.
        qualify(2, 1, "60");
        QVERIFY(QTest::qWaitForWindowActive(&screen()));
        QTest::keyClicks(nullptr, "Fay");
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &screen().Text1(1));
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return);
        QVERIFY(!platform::screens::isLoaded(Highscores::kScreen));
        QCOMPARE(tables.bestname[2][1][2], string("Fay"));
        records::openForViewing(tables, 2, kBlue);
        auto* reader = QAccessible::queryAccessibleInterface(&screen().Label3(0));
        QCOMPARE(reader->role(), QAccessible::Button);
        QCOMPARE(reader->text(QAccessible::Name), QString("Continue"));
        reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!platform::screens::isLoaded(Highscores::kScreen));

        // A record while the tables are on view: red again, the new time shown.
        records::openForViewing(tables, 2, kBlue);
        qualify(2, 1, "45");
        QCOMPARE(screen().BackColor(), kRed);
        QCOMPARE(screen().Label9(records::kRanks).Caption(), string("45"));
    }
};

QTEST_MAIN(HighscoresTests)
#include "highscores_test.moc"
