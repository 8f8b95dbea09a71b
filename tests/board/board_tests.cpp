// The three board screens under the offscreen platform, driven with real
// mouse events through the window: start-up, drag and drop, the check a full
// grid starts, and the commands. Positions are window pixels; the boards'
// twips are all multiples of 15, so every position below is exact.
#include <QAccessible>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>
#include <set>

#include "board/board_screen.h"
#include "board/register.h"
#include "platform/accessible.h"
#include "platform/fatal.h"
#include "platform/files.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "records/highscores.h"
#include "records/inf_files.h"
#include "shell/module1.h"
#include "tables/pictures.h"

using board::Board;
using platform::PictureBox;
using Sounds = std::vector<std::string>;

class BoardTests : public QObject {
    Q_OBJECT
    QTemporaryDir folder;  // the working directory: .inf files land here
    enum Command { Exit, StartAgain, NewPuzzle, FastestTimes, ShowSolution, SwitchPanel };
    static inline const Sounds kClick1{"wav\\click1.wav"}, kSpace{"wav\\space.wav"};
    static inline Sounds heard;  // every sound asked for

    static Sounds takeSounds() { return std::exchange(heard, {}); }
    static Board& open(std::int16_t size, std::int16_t level = 2, std::int16_t timerson = 0,
                       std::int16_t playsound = 1) {
        auto& m = shell::module1();
        m.boardsize = size;
        m.level = level;
        m.timerson = timerson;
        m.playsound = playsound;
        const tables::Screen screen = tables::boardScreen(size);
        platform::screens::show(screen);
        auto& b = platform::screens::get<Board>(screen);
        if (!QTest::qWaitForWindowExposed(&b)) throw std::runtime_error("board not exposed");
        takeSounds();
        return b;
    }
    static int cells(const Board& b) { return b.layout().n * b.layout().n; }
    // What the board tells assistive technology, event by event.
    static inline std::vector<std::pair<QAccessible::Event, QObject*>> told;
    static void listen() {
        told.clear();
        platform::setAnnouncementObserver(
            [](QAccessible::Event type, QObject* control) { told.emplace_back(type, control); });
    }
    static QObject* focused() {
        for (auto it = told.rbegin(); it != told.rend(); ++it)
            if (it->first == QAccessible::Focus) return it->second;
        return nullptr;
    }
    static bool focusable(QObject& control) {
        return QAccessible::queryAccessibleInterface(&control)->state().focusable;
    }
    static QString said(QObject& control, QAccessible::Text t = QAccessible::Name) {
        return QAccessible::queryAccessibleInterface(&control)->text(t);
    }
    static records::Highscores* scores() {
        return static_cast<records::Highscores*>(
            platform::screens::loaded(tables::Screen::highscores));
    }

    static QPoint pixel(float x, float y) { return {platform::toPixels(x), platform::toPixels(y)}; }
    static QPointF corner(const PictureBox& p) { return {p.Left(), p.Top()}; }
    static bool liesOn(const PictureBox& a, const PictureBox& c) { return corner(a) == corner(c); }
    template <class Control>
    static QPoint centre(const Control& c) {
        return pixel(c.Left() + c.Width() / 2, c.Top() + c.Height() / 2);
    }
    template <class Control>
    static void click(Board& b, const Control& c) {
        QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, centre(c));
    }
    static void doubleClick(Board& b, QPoint at) {
        QTest::mouseDClick(b.windowHandle(), Qt::LeftButton, {}, at);
    }
    static void clickAt(Board& b, float x, float y) {
        QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, pixel(x, y));
    }
    // Press over the piece's centre, one move to `to`, release there.
    static void drag(Board& b, int piece, QPoint to, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(b.windowHandle(), button, {}, centre(b.Image2(piece)));
        QTest::mouseMove(b.windowHandle(), to);
        QTest::mouseRelease(b.windowHandle(), button, {}, to);
    }
    // Drops the piece with its top-left corner at the target's plus an offset.
    static void dragTo(Board& b, int piece, const PictureBox& to, float dx = 0, float dy = 0) {
        const float half = b.layout().side / 2;
        drag(b, piece, pixel(to.Left() + dx + half, to.Top() + dy + half));
    }

    static int pieceOn(const Board& b, int cell) {
        for (int p = 0; p < cells(b); ++p)
            if (liesOn(b.Image2(p), b.Image1(cell))) return p;
        return -1;
    }
    static bool isGiven(const Board& b, int cell) {
        return b.game().given[cell % b.layout().n][cell / b.layout().n] == 1;
    }
    static int solutionPiece(const Board& b, int cell) {
        const int n = b.layout().n, x = cell % n, y = cell / n;
        return engine::pieceNumber(n, b.game().solution[x][y], y);
    }
    static int firstCell(const Board& b, bool given) {
        for (int c = 0; c < cells(b); ++c)
            if (isGiven(b, c) == given) return c;
        return -1;
    }
    // Drags the right piece onto every empty cell, row by row.
    static void solve(Board& b) {
        for (int c = 0; c < cells(b); ++c)
            if (pieceOn(b, c) < 0) dragTo(b, solutionPiece(b, c), b.Image1(c));
    }
    // A fresh puzzle: the givens, and only they, locked on their solution
    // cells under a marker; every other piece movable in its own slot.
    static void verifyFreshPuzzle(const Board& b, int givens) {
        for (int c = 0; c < cells(b); ++c) {
            const auto& piece = b.Image2(solutionPiece(b, c));
            const bool given = isGiven(b, c);
            givens -= given;
            QVERIFY(b.Image5(c).Visible() == given && piece.Enabled() == !given && piece.Visible());
            QVERIFY(liesOn(piece, given ? b.Image1(c) : b.Image3(solutionPiece(b, c))));
        }
        QCOMPARE(givens, 0);  // no more, no fewer
    }
    static bool shows(const PictureBox& box, const std::string& file) {
        return !box.picture().isNull() &&
               box.picture().cacheKey() == platform::loadPicture(file, box.size()).cacheKey();
    }
    // Every piece, slot and marker shows the window's pointer.
    static bool allShow(const Board& b, Qt::CursorShape shape) {
        bool all = b.cursor().shape() == shape;
        for (int k = 0; k < cells(b); ++k)
            for (const PictureBox* p : {&b.Image2(k), &b.Image3(k), &b.Image5(k)})
                all = all && p->cursor().shape() == shape;
        return all;
    }
    // The pieces show the symbol files of the board's current set.
    static bool showsCurrentSet(const Board& b) {
        const auto& set = tables::catalogue(b.layout().boardsize)[b.pictureset];
        for (int p = 0; p < cells(b); ++p) {
            const QPixmap file =
                platform::loadPicture(set.symbolPath(p / b.layout().n + 1), b.Image2(p).size());
            if (b.Image2(p).picture().cacheKey() != file.cacheKey()) return false;
        }
        return true;
    }

  private slots:
    void initTestCase() {
        const QString game = QStringLiteral(PIMBALO_GAME_DIR);
        QVERIFY(QFile::link(game + "/Images", folder.path() + "/Images"));
        QVERIFY(QFile::link(game + "/wav", folder.path() + "/wav"));
        QDir::setCurrent(folder.path());
        board::registerScreens();
        records::registerScreens();
        // "Exit" goes back to the options screen; a plain stand-in does here.
        platform::screens::registerScreen(tables::Screen::Startplay2, [] {
            return new platform::Form(tables::Screen::Startplay2, platform::FormKind::Fixed);
        });
        platform::setFatalHandler(
            [](const QString& m) { throw std::runtime_error(m.toStdString()); });
        platform::setSoundObserver([](const std::string& path) { heard.push_back(path); });
    }
    void cleanup() {
        for (const auto& entry : tables::kScreens) platform::screens::unload(entry.screen);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Start-up deals a fresh puzzle in the right stacking order, a drop
    // snaps only within half a cell, and the panel switches back and forth.
    void eachSizeStartsSnapsAndSwitchesThePanel_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("givens");  // at level 3
        QTest::newRow("4x4") << 0 << 6;
        QTest::newRow("5x5") << 1 << 10;
        QTest::newRow("6x6") << 2 << 14;
    }
    void eachSizeStartsSnapsAndSwitchesThePanel() {
        QFETCH(int, size);
        QFETCH(int, givens);
        Board& b = open(size);
        for (int k = 0; k < cells(b); ++k) {
            // Pieces lie above slots and cells, markers above pieces.
            QVERIFY(b.Image3(k).Visible());
            QCOMPARE(b.childAt(centre(b.Image2(k))), &b.Image2(k));
            if (b.Image5(k).Visible()) QCOMPARE(b.childAt(centre(b.Image5(k))), &b.Image5(k));
        }
        verifyFreshPuzzle(b, givens);
        // Thumbnail s stands for set s; the 4x4 logo comes after the sets.
        const auto sets = tables::catalogue(size);
        for (int s = 0; s < sets.size(); ++s) QVERIFY(shows(b.Image4(s), sets[s].thumbnailPath()));
        QCOMPARE(b.Image4.has(sets.size()), size == 0);
        if (size == 0) QVERIFY(shows(b.Image4(sets.size()), tables::kBoardLogo.path));
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        const auto& c = b.Image1(cell);
        QCOMPARE(b.childAt(centre(c)), &c);  // above the regions
        QVERIFY(!b.Label7->Visible());
        b.Image4.forEach([](int, PictureBox& t) { QVERIFY(!t.Visible()); });

        const float half = b.layout().side / 2;
        dragTo(b, piece, c, half - 15, 15 - half);
        QVERIFY(liesOn(b.Image2(piece), c));
        QCOMPARE(takeSounds(), kClick1);
        QVERIFY(!b.Label3(NewPuzzle).Visible() && b.Label3(ShowSolution).Visible());

        for (bool shown : {true, false, true, false}) {
            click(b, b.Label3(SwitchPanel));
            QCOMPARE(b.Label3(SwitchPanel).Caption(),
                     std::string(shown ? "Show Rules" : "Change Pictures"));
            QCOMPARE(b.Label1(1).Caption(),
                     shown ? std::string("Select a picture") : b.layout().rulesText);
            b.Image4.forEach([&](int, PictureBox& t) { QCOMPARE(t.Visible(), shown); });
            QCOMPARE(takeSounds(), kSpace);
        }
        if (size != 0) return;
        click(b, b.Label3(SwitchPanel));
        const auto solution = b.game().solution;
        click(b, b.Image4(8));  // the 4x4 logo among the thumbnails is not a set
        QVERIFY(b.game().solution == solution);
        QCOMPARE(takeSounds(), kSpace);  // only the switch's
    }

    // Each size once: a random set drawn from the whole catalogue and no
    // further (the 6x6 board never starts with set 6 or 7), the board's name,
    // and the level shown.
    void startUpDrawsASetAndShowsTheOptions() {
        const QColor colours[] = {{0, 0, 255}, {255, 0, 255}, {255, 0, 0}};
        for (int level = 0; level < 3; ++level) {
            const int size = 2 - level;
            const tables::Screen screen = tables::boardScreen(size);
            std::set<int> seen;
            for (int i = 0; i < 120; ++i) {
                seen.insert(platform::screens::get<Board>(screen).pictureset);
                platform::screens::unload(screen);
            }
            const auto sets = tables::catalogue(size);
            QVERIFY(int(seen.size()) == sets.size() && *seen.rbegin() + 1 == sets.size());
            const bool timed = level != 0;
            Board& b = open(size, level, timed);
            // The window carries the size's own name, by which tools find it.
            const char* const names[] = {"jigsaw", "jigsaw5x5", "jigsaw6x6"};
            QCOMPARE(b.objectName(), QString(names[size]));
            QCOMPARE(b.Label1(0).Caption(), std::to_string(level + 1));
            QVERIFY(b.Label1(0).BackColor() == colours[level] && b.BackColor() == colours[level]);
            cleanup();
        }
    }

    // On the 4x4: the right button drags nothing, givens not at all; the
    // hand shows over movable pieces and commands, and passing over a piece
    // raises it. (Where a drop lands is the engine's to test.)
    void dragRules() {
        Board& b = open(0);
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        const int given = firstCell(b, true), fixed = pieceOn(b, given);
        int other = 0;
        while (other == piece || !b.Image2(other).Enabled()) ++other;
        const auto &p = b.Image2(piece), &o = b.Image2(other);

        dragTo(b, piece, b.Image1(cell));
        takeSounds();
        drag(b, piece, centre(p) + QPoint(150, 40), Qt::RightButton);
        QVERIFY(liesOn(p, b.Image1(cell)));
        QCOMPARE(takeSounds(), kClick1);  // the release still dropped it
        drag(b, fixed, pixel(1005, 1005));
        QVERIFY(liesOn(b.Image2(fixed), b.Image1(given)));

        for (QPoint over : {centre(o), centre(b.Label3(StartAgain))}) {
            QTest::mouseMove(b.windowHandle(), pixel(15000, 1500));  // bare background
            QVERIFY(!b.hasMouseIcon() && allShow(b, Qt::ArrowCursor));
            QTest::mouseMove(b.windowHandle(), over);
            QVERIFY(b.hasMouseIcon() && allShow(b, Qt::BitmapCursor));
        }
        QCOMPARE(b.children().last(), &o);
    }

    // Solves the puzzle in `seconds` by the clock and runs the check.
    static void solveIn(Board& b, int seconds) {
        b.Timer1.setEnabled(false);  // the clock moves only when the test ticks it
        for (int i = 0; i < seconds; ++i) b.Timer1.tick();
        solve(b);
        b.Timer2.tick();
        QCOMPARE(b.Label7->Caption(), "Correct in " + std::to_string(seconds) + " seconds!!!");
    }

    // Two records in a row, the name box of the first still open (a picture
    // set click leaves the fastest times open): the same box moves to the new
    // entry with the name typed so far, over the tables as they now stand.
    void typedNamesReachTheTables() {
        auto& m = shell::module1();
        m.loadfailed = 0;
        for (auto& t : m.besttime[0][2]) t = 0;
        Board& b = open(0, 2, 1);
        click(b, b.Label3(SwitchPanel));  // the thumbnails show
        solveIn(b, 9);
        QVERIFY(scores() && scores()->Text1(2).isVisible());
        QTest::keyClicks(&scores()->Text1(2), "Ann");
        scores()->Timer1.tick();

        click(b, b.Image4((b.pictureset + 1) % 8));
        QVERIFY(scores() && scores()->isVisible());
        solveIn(b, 4);
        records::Highscores& s = *scores();
        QCOMPARE(s.Text1(2).Text(), std::string("Ann"));
        QCOMPARE(s.Text1(2).Top(), 540.0f);  // over rank 1
        QVERIFY(s.Text1(2).isVisible() && s.Label1->isVisible() && s.Timer1.Enabled());
        QCOMPARE(s.Label9(10).Caption(), std::string("4"));
        QCOMPARE(s.Label9(11).Caption(), std::string("9"));
        QCOMPARE(s.Label8(11).Caption(), std::string("Ann"));
        s.Timer1.tick();
        QVERIFY(m.bestname[0][2][0] == "Ann" && m.bestname[0][2][1] == "Ann");

        // A hand-edited board size outside 0..2 plays the 4x4 board: the time
        // goes into a 4x4 table, and so does the name typed for it, though the
        // fastest-times screen keeps its design texts.
        cleanup();
        for (auto& t : m.besttime[0][1]) t = 0;
        Board& c = open(0, 1, 1);
        m.boardsize = 7;
        solveIn(c, 5);
        QVERIFY(scores() && scores()->Text1(1).isVisible());
        QCOMPARE(scores()->Label8(5).Caption(), std::string("Solo Play"));
        QTest::keyClicks(&scores()->Text1(1), "Kim");
        scores()->Timer1.tick();
        QVERIFY(m.besttime[0][1][0] == 5 && m.bestname[0][1][0] == "Kim");
    }

    // Two free pieces of one row dropped on each other's cells: the rows still
    // add up, the columns do not.
    void wrongGridNamesTheFailingKind() {
        Board& b = open(0, 2);
        const int n = b.layout().n;
        int first = -1, second = -1;
        for (int c = 0; c < cells(b) && second < 0; ++c) {
            if (isGiven(b, c)) continue;
            if (first >= 0 && first / n == c / n)
                second = c;
            else if (first < 0 || first / n != c / n)
                first = c;
        }
        QVERIFY(second > first && first >= 0);
        dragTo(b, solutionPiece(b, second), b.Image1(first));
        dragTo(b, solutionPiece(b, first), b.Image1(second));
        solve(b);
        QVERIFY(b.Timer2.Enabled());
        b.Timer2.tick();
        QCOMPARE(b.Label7->Caption(), std::string("Wrong, Try Again"));
        QVERIFY(b.Label7->Visible() && b.Label3(ShowSolution).Visible());
    }

    // A new puzzle keeps the set and restarts the clock; a thumbnail changes
    // the set, the panel staying open; the solution fills the grid.
    void puzzleCommands() {
        Board& b = open(1, 2, 1);
        const int set = b.pictureset;
        b.Label7->show();
        b.Label3(ShowSolution).hide();
        b.Timer1.tick();
        click(b, b.Label3(NewPuzzle));
        QCOMPARE(b.pictureset, set);
        verifyFreshPuzzle(b, 10);
        QVERIFY(!b.Label7->Visible() && b.Label3(ShowSolution).Visible());
        QCOMPARE(b.Label2(1).Caption(), std::string("0"));
        const auto solution = b.game().solution;
        dragTo(b, solutionPiece(b, firstCell(b, false)), b.Image1(firstCell(b, false)));
        click(b, b.Label3(StartAgain));  // the same puzzle afresh
        verifyFreshPuzzle(b, 10);
        QVERIFY(b.game().solution == solution);

        click(b, b.Label3(SwitchPanel));
        takeSounds();
        for (int s = 7; s >= 0; --s) {
            b.Label7->show();
            click(b, b.Image4(s));
            QCOMPARE(b.pictureset, s);
            QVERIFY(showsCurrentSet(b));
            verifyFreshPuzzle(b, 10);
            QVERIFY(!b.Label7->Visible() && b.Image4(s).Visible());
            QCOMPARE(takeSounds(), kSpace);
        }

        b.Label7->show();
        b.Label3(NewPuzzle).hide();
        click(b, b.Label3(ShowSolution));
        for (int c = 0; c < 25; ++c) QCOMPARE(pieceOn(b, c), solutionPiece(b, c));
        QVERIFY(!b.Label7->Visible() && b.Label3(NewPuzzle).Visible());
        QCOMPARE(takeSounds(), Sounds{"wav\\METAL2.wav"});
    }

    // The fastest times open over the board in its colour and every command
    // closes them. Leaving the board, by Exit or by closing the window, writes
    // both files and goes back to the options without ending the game.
    void fastestTimesAndLeavingTheBoard() {
        auto& m = shell::module1();
        bool ended = false;
        platform::screens::setEndHandler([&] { ended = true; });
        for (bool byWindowManager : {false, true}) {
            QFile::remove(records::kLastGameFile);
            QFile::remove(records::kHighscoreFile);
            Board& b = open(2, 0, 1);
            m.hidedesktop = 1;
            m.besttime[2][0][0] = 42;
            for (int command : {SwitchPanel, StartAgain}) {
                click(b, b.Label3(FastestTimes));
                QVERIFY(scores() && scores()->isVisible());
                QCOMPARE(scores()->BackColor(), QColor(0, 0, 255));
                click(b, b.Label3(command));
                QVERIFY(!scores());
            }
            click(b, b.Label3(FastestTimes));
            takeSounds();
            byWindowManager ? void(b.close()) : click(b, b.Label3(Exit));
            QVERIFY(!platform::screens::isLoaded(tables::Screen::jigsaw6x6) && !scores());
            QVERIFY(platform::screens::get(tables::Screen::Startplay2).isVisible());
            platform::screens::unload(tables::Screen::Startplay2);
            QCOMPARE(takeSounds(), Sounds{"wav\\click.wav"});
            tables::Options saved;
            records::FastestTimes tables;
            QVERIFY(records::loadLastGame(records::kLastGameFile, saved) &&
                    records::loadHighscores(records::kHighscoreFile, tables));
            QVERIFY(saved.playsound == 1 && saved.timerson == 1 && saved.hidedesktop == 1 &&
                    saved.boardsize == 2);
            QCOMPARE(tables.besttime[2][0][0], std::int16_t(42));
        }
        QVERIFY(!ended);
        platform::screens::setEndHandler({});
    }

    // A close key held down repeats. The first request closes the fastest
    // times as their "Continue"; the repeats that follow, landing on the board
    // and then on the options screen, are ignored, so the game goes on. A new
    // press a moment later closes the board as its "Exit" does.
    void heldCloseKeyClosesOneScreen() {
        bool ended = false;
        platform::screens::setEndHandler([&] { ended = true; });
        Board& b = open(0, 0, 1);
        click(b, b.Label3(FastestTimes));
        QVERIFY(scores());
        auto desktopCloses = [](QWidget& window) {  // as from the window manager
            QCloseEvent request;
            QSpontaneKeyEvent::setSpontaneous(&request);
            static_cast<QObject&>(window).event(&request);  // sendEvent would clear that
        };
        desktopCloses(*scores());
        QVERIFY(!scores());
        for (int repeat = 0; repeat < 5; ++repeat) {
            QVERIFY(platform::screens::loaded(tables::Screen::jigsaw) == &b);
            desktopCloses(b);
            QTest::qWait(40);
        }
        QVERIFY(platform::screens::loaded(tables::Screen::jigsaw) == &b && b.isVisible() && !ended);

        QTest::qWait(platform::kCloseRepeatMs);
        desktopCloses(b);
        QVERIFY(!platform::screens::isLoaded(tables::Screen::jigsaw));
        QVERIFY(platform::screens::get(tables::Screen::Startplay2).isVisible() && !ended);
        platform::screens::setEndHandler({});
    }

    // Playing without dragging. A click picks a piece and a click on a cell
    // drops it there; on a given it bounces off; a click on another movable
    // piece moves the pick to it; Escape, a drag or an empty tray slot ends it.
    void clickToPlace() {
        Board& b = open(0);
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        const int given = firstCell(b, true), fixed = pieceOn(b, given);
        const auto& p = b.Image2(piece);
        click(b, p);
        QCOMPARE(b.picking().picked(), piece);
        QCOMPARE(b.pickMarked(), std::optional<QRect>(p.geometry()));
        QCOMPARE(takeSounds(), kClick1);  // a click is still a drop where the piece lies
        // A click that misses, in the gap between two cells or on the bare
        // background, keeps the pick.
        const auto &left = b.Image1(0), &right = b.Image1(1);
        const float gapStart = left.Left() + left.Width();
        QVERIFY(gapStart < right.Left());
        clickAt(b, (gapStart + right.Left()) / 2, left.Top() + left.Height() / 2);
        clickAt(b, 14800, 150);  // right of the tray
        QVERIFY(b.picking().picked() == piece && liesOn(p, b.Image3(piece)));
        click(b, b.Image1(cell));
        QVERIFY(liesOn(p, b.Image1(cell)) && !b.pickMarked() && b.hasMouseIcon());
        QCOMPARE(b.picking().picked(), -1);
        QVERIFY(!b.Label3(NewPuzzle).Visible() && b.Label3(ShowSolution).Visible());
        QCOMPARE(takeSounds(), kClick1);

        // The given piece takes no clicks of its own, nor does its marker.
        for (const PictureBox* onGiven : {&b.Image2(fixed), &b.Image5(given)}) {
            click(b, p);
            click(b, *onGiven);
            QCOMPARE(corner(p), corner(b.Image1(given)) + QPointF(600, -600));
            QCOMPARE(b.picking().picked(), -1);
            dragTo(b, piece, b.Image1(cell));
        }
        QCOMPARE(pieceOn(b, given), fixed);

        int second = cell + 1;
        while (isGiven(b, second)) ++second;
        const int other = solutionPiece(b, second);
        click(b, b.Image2(other));
        click(b, p);  // a movable piece on a cell: the pick moves to it
        QCOMPARE(b.picking().picked(), piece);
        QVERIFY(liesOn(p, b.Image1(cell)));
        QTest::keyClick(b.windowHandle(), Qt::Key_Escape);
        QVERIFY(b.picking().picked() == -1 && !b.pickMarked());

        click(b, p);
        dragTo(b, other, b.Image3(other), 200, 200);  // any drag lets go
        QVERIFY(b.picking().picked() == -1 && !b.pickMarked());
        click(b, p);
        click(b, b.Image3(piece));  // its slot is empty: home it goes
        QVERIFY(liesOn(p, b.Image3(piece)) && b.picking().picked() == -1);
        click(b, p);
        click(b, b.Label3(StartAgain));  // commands end the pick too
        QVERIFY(b.picking().picked() == -1 && !b.pickMarked());
    }

    // Young players double-click everything: a double-click does what one
    // click does, on a command, a thumbnail, a piece, a cell and a given.
    void aDoubleClickIsOneClick() {
        Board& b = open(0);
        doubleClick(b, centre(b.Label3(NewPuzzle)));
        QCOMPARE(takeSounds(), kSpace);  // one deal
        doubleClick(b, centre(b.Label3(SwitchPanel)));
        QVERIFY(b.Image4(0).Visible() && b.Label3(SwitchPanel).Caption() == "Show Rules");
        const int set = (b.pictureset + 1) % 8;
        doubleClick(b, centre(b.Image4(set)));
        QVERIFY(b.pictureset == set && showsCurrentSet(b));
        QCOMPARE(takeSounds(), Sounds(2, kSpace[0]));

        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        const int given = firstCell(b, true);
        const auto& p = b.Image2(piece);
        doubleClick(b, centre(p));
        QCOMPARE(b.picking().picked(), piece);
        QCOMPARE(takeSounds(), kClick1);  // one drop where it lies
        // On the given's lower left, where the piece bouncing off the given
        // leaves it bare: the board's own click.
        const auto& g = b.Image2(pieceOn(b, given));
        doubleClick(b, pixel(g.Left() + 300, g.Top() + g.Height() - 300));
        QCOMPARE(corner(p), corner(b.Image1(given)) + QPointF(600, -600));
        QCOMPARE(b.picking().picked(), -1);  // not picked up again off the given
        click(b, p);
        doubleClick(b, centre(b.Image1(cell)));
        QVERIFY(liesOn(p, b.Image1(cell)) && b.picking().picked() == -1);
    }

    // A finger plays as the mouse does: it drags a piece, a tap picks one and
    // a quick tap on a cell puts it there, two quick taps on one spot are
    // one. A second finger during a drag moves nothing, and the first still
    // drops its piece.
    void fingersPlayLikeTheMouse() {
        static QPointingDevice* const screen = QTest::createTouchDevice();
        // Taps carry the real time: let every two taps be quick ones, however
        // slow the machine, so only where they land tells them apart.
        QStyleHints& hints = *QGuiApplication::styleHints();
        const auto restore = qScopeGuard([&, interval = hints.mouseDoubleClickInterval()] {
            hints.setMouseDoubleClickInterval(interval);
        });
        hints.setMouseDoubleClickInterval(60000);
        Board& b = open(0);
        QWindow* w = b.windowHandle();
        auto tap = [&](QPoint at) {
            QTest::touchEvent(w, screen).press(0, at, w);
            QTest::touchEvent(w, screen).release(0, at, w);
        };
        std::vector<int> free;  // the cells without a given, and their pieces
        for (int c = 0; c < cells(b); ++c)
            if (!isGiven(b, c)) free.push_back(c);
        const int dragged = solutionPiece(b, free[0]), tapped = solutionPiece(b, free[1]);
        QTest::touchEvent(w, screen).press(0, centre(b.Image2(dragged)), w);
        QTest::touchEvent(w, screen).move(0, centre(b.Image1(free[0])), w);
        QTest::touchEvent(w, screen).release(0, centre(b.Image1(free[0])), w);
        QVERIFY(liesOn(b.Image2(dragged), b.Image1(free[0])));
        // The mouse last clicked the cell (empty: nothing happens), as it may
        // on a laptop with a touch screen.
        click(b, b.Image1(free[1]));
        tap(centre(b.Image2(tapped)));
        QCOMPARE(b.picking().picked(), tapped);
        tap(centre(b.Image1(free[1])));
        QVERIFY(liesOn(b.Image2(tapped), b.Image1(free[1])));
        QCOMPARE(takeSounds(), Sounds(3, kClick1[0]));
        tap(centre(b.Label3(SwitchPanel)));
        tap(centre(b.Label3(SwitchPanel)));
        QVERIFY(b.Image4(0).Visible());

        const int first = solutionPiece(b, free[2]), other = solutionPiece(b, free[3]);
        const QPoint from = centre(b.Image2(first)), to = centre(b.Image1(free[2]));
        const QPointF otherHome = corner(b.Image2(other));
        QTest::touchEvent(w, screen).press(0, from, w);
        QTest::touchEvent(w, screen).move(0, from + QPoint(40, 40), w);
        QTest::touchEvent(w, screen)
            .move(0, from + QPoint(40, 40), w)
            .press(1, centre(b.Image2(other)), w);
        QTest::touchEvent(w, screen).move(0, to, w).move(1, to + QPoint(0, 200), w);
        QTest::touchEvent(w, screen).release(0, to, w).move(1, to + QPoint(0, 210), w);
        QTest::touchEvent(w, screen).move(1, to + QPoint(0, 250), w);
        QTest::touchEvent(w, screen).release(1, to + QPoint(0, 250), w);
        QVERIFY(liesOn(b.Image2(first), b.Image1(free[2])));
        QCOMPARE(corner(b.Image2(other)), otherHome);
    }

    // A whole 4x4 puzzle from the keyboard: the ring walks the tray, Enter
    // picks, Tab goes to the grid, Space puts the piece down, Shift+Tab goes
    // back. The verdict, and the name box it opens, keep the keys away from
    // the board: they all go into the name.
    void keyboardPlaysAWholePuzzle() {
        auto& m = shell::module1();
        for (auto& t : m.besttime[0][2]) t = 0;
        Board& b = open(0, 2, 1);
        QVERIFY(QTest::qWaitForWindowActive(&b));
        b.Timer1.setEnabled(false);
        b.Timer1.tick();
        QWindow* window = b.windowHandle();
        auto key = [&](Qt::Key k, Qt::KeyboardModifiers mods = {}) {
            QTest::keyClick(window, k, mods);
        };
        listen();
        key(Qt::Key_Return);  // the first key only shows the ring
        QVERIFY(b.ring().shown() && b.picking().picked() == -1);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Image3(0).geometry()));
        // A screen reader follows the ring: to the piece in a slot, to a
        // cell, and to the slot a piece has left.
        QCOMPARE(focused(), b.Image2(0).Enabled() ? &b.Image2(0) : &b.Image3(0));
        const int columns = b.layout().trayColumns;
        for (int c = 0; c < b.layout().n * b.layout().n; ++c) {
            if (isGiven(b, c)) continue;
            const int piece = solutionPiece(b, c);
            while (b.ring().slot() / columns != piece / columns)
                key(b.ring().slot() / columns < piece / columns ? Qt::Key_Down : Qt::Key_Up);
            while (b.ring().slot() != piece)
                key(b.ring().slot() < piece ? Qt::Key_Right : Qt::Key_Left);
            QCOMPARE(focused(), &b.Image2(piece));
            key(Qt::Key_Return);
            QCOMPARE(b.pickMarked(), std::optional<QRect>(b.Image2(piece).geometry()));
            key(Qt::Key_Tab);
            while (b.ring().cell() / 4 != c / 4)
                key(b.ring().cell() / 4 < c / 4 ? Qt::Key_Down : Qt::Key_Up);
            while (b.ring().cell() != c) key(b.ring().cell() < c ? Qt::Key_Right : Qt::Key_Left);
            QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Image1(c).geometry()));
            QCOMPARE(focused(), &b.Image1(c));
            QVERIFY(QAccessible::queryAccessibleInterface(&b.Image1(c))->state().focused);
            told.clear();
            key(Qt::Key_Space);
            QVERIFY(liesOn(b.Image2(piece), b.Image1(c)));
            // The ring stays; what it stands on now has a picture to say.
            QVERIFY((told == decltype(told){{QAccessible::NameChanged, &b.Image1(c)}}));
            key(Qt::Key_Tab, Qt::ShiftModifier);
            QCOMPARE(focused(), &b.Image3(piece));
        }
        QVERIFY(b.Timer2.Enabled());
        b.Timer2.tick();
        QCOMPARE(b.Label7->Caption(), std::string("Correct in 1 seconds!!!"));
        QVERIFY(scores());
        QTRY_VERIFY(scores()->Text1(2).hasFocus());

        const auto before = b.ring().zone();
        const int slot = b.ring().slot();
        for (Qt::Key k :
             {Qt::Key_Z, Qt::Key_O, Qt::Key_E, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Left})
            QTest::keyClick(QGuiApplication::focusWindow(), k);
        key(Qt::Key_Tab);  // even sent to the board's own window
        QCOMPARE(scores()->Text1(2).text(), QString("zoe "));
        QVERIFY(scores()->isVisible() && b.ring().zone() == before && b.ring().slot() == slot);
        // Enter is "Continue": the name kept, the board untouched.
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return);
        QVERIFY(!scores() && b.ring().zone() == before && b.ring().slot() == slot);
        QCOMPARE(m.bestname[0][2][0], std::string("zoe "));
        QCOMPARE(b.Label7->Caption(), std::string("Correct in 1 seconds!!!"));

        // Back on the board, Tab reaches the commands and Enter runs one. The
        // command the ring stands on holds the focus, for screen readers.
        click(b, b.Label3(StartAgain));
        b.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&b));
        key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), nullptr);
        key(Qt::Key_Tab);
        QCOMPARE(b.ring().zone(), engine::Zone::Commands);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Label3(ShowSolution).geometry()));
        QCOMPARE(QApplication::focusWidget(), &b.Label3(ShowSolution));
        key(Qt::Key_Down);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Label3(NewPuzzle).geometry()));
        QCOMPARE(QApplication::focusWidget(), &b.Label3(NewPuzzle));
        key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), nullptr);  // on the tray the board takes the keys
        key(Qt::Key_Tab, Qt::ShiftModifier);
        platform::setAnnouncementObserver({});
        key(Qt::Key_Up);
        takeSounds();
        key(Qt::Key_Enter);
        QCOMPARE(takeSounds(), Sounds{"wav\\METAL2.wav"});

        // The fastest times opened from the keyboard take the keys, yet the
        // ring still walks the board's commands, and the next one closes them.
        for (int i = 0; i < 4; ++i) key(Qt::Key_Down);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Label3(FastestTimes).geometry()));
        key(Qt::Key_Return);
        QVERIFY(scores() && scores()->isVisible());
        QTRY_COMPARE(QGuiApplication::focusWindow(), scores()->windowHandle());
        for (Qt::Key k : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
            QTest::keyClick(QGuiApplication::focusWindow(), k);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Label3(StartAgain).geometry()));
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Return);
        QVERIFY(!scores());
        QCOMPARE(takeSounds(), kSpace);
    }

    // What a screen reader finds on every board: only the texts and the
    // pictures the player can touch, each picture named (copies in the tray
    // told apart), a cell naming the picture on it; the logo, the markers and
    // the regions are not there at all. Names and descriptions follow the
    // pieces as they move; the commands, the level, the clock and the banner
    // read out their captions.
    void screenReadersNameEveryPicture() {
        for (int size = 0; size < 3; ++size) {
            Board& b = open(size, 1, 1);
            const int n = b.layout().n;
            std::set<QObject*> inTree;
            std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* parent) {
                for (int i = 0; i < parent->childCount(); ++i) {
                    QAccessibleInterface* child = parent->child(i);
                    QObject* control = child->object();
                    inTree.insert(control);
                    const bool picture = dynamic_cast<PictureBox*>(control);
                    QVERIFY2(dynamic_cast<platform::Label*>(control) ||
                                 (picture && !child->text(QAccessible::Name).isEmpty()),
                             qPrintable(control->objectName() + " is unnamed or decoration"));
                    walk(child);
                }
            };
            walk(QAccessible::queryAccessibleInterface(&b));
            std::set<QString> names;
            auto named = [&](QWidget& control) {
                QVERIFY2(inTree.count(&control) && names.insert(said(control)).second,
                         qPrintable(control.objectName() + ": " + said(control)));
            };
            for (int k = 0; k < n * n; ++k) {
                named(b.Image2(k));
                named(b.Image3(k));
            }
            const auto& sets = tables::catalogue(size);
            for (int s = 0; s < sets.size(); ++s) named(b.Image4(s));
            const auto& kind = sets[b.pictureset].kind;
            for (int c = 0; c < n * n; ++c) {
                const QString onIt =
                    isGiven(b, c) ? tables::pictureName(kind, solutionPiece(b, c) / n) : "empty";
                QVERIFY2(said(b.Image1(c)).endsWith(": " + onIt), qPrintable(said(b.Image1(c))));
            }
            const int given = firstCell(b, true), cell = firstCell(b, false);
            const int piece = solutionPiece(b, cell);
            QCOMPARE(said(b.Image2(solutionPiece(b, given)), QAccessible::Description),
                     QString("Given, cannot be moved"));
            QCOMPARE(said(b.Image2(piece), QAccessible::Description), QString("In the tray"));
            dragTo(b, piece, b.Image1(cell));
            const QString picture = tables::pictureName(kind, piece / n);
            QCOMPARE(said(b.Image1(cell)),
                     QString("Row %1, column %2: ").arg(cell / n + 1).arg(cell % n + 1) + picture);
            QCOMPARE(said(b.Image2(piece), QAccessible::Description),
                     QString("On row %1, column %2").arg(cell / n + 1).arg(cell % n + 1));
            QCOMPARE(said(b.Image3(piece)), QString("Tray place %1: empty").arg(piece + 1));
            cleanup();
        }

        Board& b = open(1, 1, 1);
        QCOMPARE(said(b.Label1(0)), QString("2"));
        QCOMPARE(said(b.Label1(0), QAccessible::Description), QString("Level"));
        b.Timer1.tick();
        QCOMPARE(said(b.Label2(1)), QString("1"));
        b.Label7->setCaption("Wrong, Try Again");
        QCOMPARE(said(*b.Label7), QString("Wrong, Try Again"));
        auto* panel = QAccessible::queryAccessibleInterface(&b.Label3(SwitchPanel));
        QCOMPARE(panel->role(), QAccessible::Button);
        QCOMPARE(panel->text(QAccessible::Name), QString("Change Pictures"));
        panel->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(panel->text(QAccessible::Name), QString("Show Rules"));
    }

    // A command presses from assistive technology as a click does (a hidden
    // one offers no action: the controls' own tests press one anyway). A
    // hidden piece offers none either, and the ring never focuses it.
    void hiddenCommandsCannotBePressed() {
        Board& b = open(0, 0, 0);
        auto press = [](QWidget& control) {
            QAccessibleInterface* command = QAccessible::queryAccessibleInterface(&control);
            const QStringList offered = command->actionInterface()->actionNames();
            command->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            return offered;
        };
        const int cell = firstCell(b, false);
        QCOMPARE(press(b.Label3(ShowSolution)),
                 QStringList{QAccessibleActionInterface::pressAction()});
        QCOMPARE(pieceOn(b, cell), solutionPiece(b, cell));

        // On its slot the ring stands on the slot.
        click(b, b.Label3(NewPuzzle));
        int hidden = 1;
        while (!b.Image2(hidden).Enabled()) ++hidden;  // one in the tray's first row
        QVERIFY(hidden < b.layout().trayColumns);
        b.Image2(hidden).hide();
        QVERIFY(QTest::qWaitForWindowActive(&b));
        listen();
        for (int i = 0; i <= hidden; ++i) QTest::keyClick(b.windowHandle(), Qt::Key_Right);
        QCOMPARE(b.ring().slot(), hidden);
        QCOMPARE(focused(), &b.Image3(hidden));
        QVERIFY(!focusable(b.Image2(hidden)) && focusable(b.Image3(hidden)));
        QCOMPARE(press(b.Image2(hidden)), QStringList());
        QCOMPARE(b.picking().picked(), -1);
        b.Image2(hidden).show();
        QTest::keyClick(b.windowHandle(), Qt::Key_Left);
        QTest::keyClick(b.windowHandle(), Qt::Key_Right);
        QCOMPARE(focused(), &b.Image2(hidden));
        // Among the commands, a thumbnail the ring stands on has the focus.
        click(b, b.Label3(SwitchPanel));
        for (Qt::Key k : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down})
            QTest::keyClick(b.windowHandle(), k);
        QCOMPARE(b.ringMarked(), std::optional<QRect>(b.Image4(0).geometry()));
        QCOMPARE(focused(), &b.Image4(0));
        platform::setAnnouncementObserver({});
    }
    // The clock ticks each second and the check comes once, a second after
    // the grid fills. "Timers On" and "Play Sound" are on only at 1: at 0,
    // and at 2 (a hand-edited lastgame.inf), the clock stays hidden and
    // stopped and the board silent.
    void timersAndOnOffOptionsAtStartUp() {
        for (const std::int16_t on : {0, 1, 2}) {
            Board& b = open(0, 2, on, on);
            QCOMPARE(b.Timer1.Interval(), 1000);
            QCOMPARE(b.Timer2.Interval(), 1000);
            QCOMPARE(b.Timer1.Enabled(), on == 1);
            for (int i = 0; i <= 2; ++i) QCOMPARE(b.Label2(i).Visible(), on == 1);
            QCOMPARE(b.Label3(FastestTimes).Visible(), on == 1);
            const int piece = solutionPiece(b, firstCell(b, false));
            click(b, b.Image2(piece));  // a release in place is a drop
            b.Timer2.setEnabled(true);
            b.Timer2.tick();  // the check, on a grid far from full
            QVERIFY(!b.Timer2.Enabled());
            click(b, b.Label3(SwitchPanel));
            const Sounds expected =
                on == 1 ? Sounds{"wav\\click1.wav", "wav\\boink.wav", "wav\\space.wav"} : Sounds{};
            QCOMPARE(takeSounds(), expected);
            cleanup();
        }
    }
};

QTEST_MAIN(BoardTests)
#include "board_tests.moc"
