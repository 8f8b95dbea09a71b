// The three board screens under the offscreen platform, driven with real
// mouse events: start-up layout, drag and drop, the check a full grid starts,
// and the commands.
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <set>

#include "board/catalogue.h"
#include "board/register.h"
#include "board_helpers.h"
#include "platform/fatal.h"
#include "platform/files.h"
#include "platform/sound.h"
#include "records/inf_files.h"

using namespace boardtest;
using board::Board;

namespace {

const std::vector<std::string> kClick1{"wav\\click1.wav"}, kSpace{"wav\\space.wav"};

// A fresh puzzle: the givens, and only they, locked on their solution cells
// under a marker; every other piece movable in its own slot; all shown.
void verifyFreshPuzzle(const Board& b, int givens) {
    int locked = 0;
    for (int c = 0; c < b.cellcount; ++c) {
        const auto& piece = b.Image2(solutionPiece(b, c));
        const bool given = isGiven(b, c);
        locked += given;
        QCOMPARE(b.Image5(c).Visible(), given);
        QCOMPARE(piece.Enabled(), !given);
        QVERIFY(piece.Visible());
        QVERIFY(liesOn(piece, given ? b.Image1(c) : b.Image3(solutionPiece(b, c))));
        if (!given) continue;
        QCOMPARE(b.Image5(c).Left() + b.Image5(c).Width(), piece.Left() + piece.Width());
        QCOMPARE(b.Image5(c).Top(), piece.Top());
    }
    QCOMPARE(locked, givens);
}

// The pieces show the symbol files of the board's current set.
bool showsCurrentSet(const Board& b) {
    const auto& set = board::catalogue(b.layout().boardsize).at(b.pictureset);
    for (int p = 0; p < b.cellcount; ++p) {
        const QPixmap file = platform::loadPicture(set.symbolPath(p / b.layout().n + 1));
        if (b.Image2(p).picture().cacheKey() != file.cacheKey()) return false;
    }
    return true;
}

void addSizes() {
    QTest::addColumn<int>("size");
    for (int size = 0; size < 3; ++size)
        QTest::newRow(board::boardLayout(size).screenName.c_str()) << size;
}

}  // namespace

class BoardTests : public QObject {
    Q_OBJECT
    QTemporaryDir folder;  // the working directory: .inf files land here

  private slots:
    void initTestCase() {
        const QString game = QStringLiteral(PIMBALO_GAME_DIR);
        QVERIFY(QFile::link(game + "/Images", folder.path() + "/Images"));
        QVERIFY(QFile::link(game + "/wav", folder.path() + "/wav"));
        QDir::setCurrent(folder.path());
        board::registerScreens();
        records::registerScreens();
        platform::setFatalHandler(
            [](const QString& m) { throw std::runtime_error(m.toStdString()); });
        platform::setSoundObserver([](const std::string& path) { heard.push_back(path); });
    }
    void cleanup() { closeScreens(); }

    void startUpLaysOutTrayGridAndGivens_data() {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("regions");
        QTest::addColumn<QPointF>("lastHome");
        QTest::addColumn<QPointF>("lastCell");
        QTest::addColumn<int>("givens");  // at level 3
        QTest::newRow("4x4") << 0 << 4 << QPointF(12840, 1920) << QPointF(11160, 9600) << 6;
        QTest::newRow("5x5") << 1 << 1 << QPointF(3000, 2760) << QPointF(11520, 9960) << 10;
        QTest::newRow("6x6") << 2 << 6 << QPointF(13680, 2520) << QPointF(11760, 10200) << 14;
    }
    void startUpLaysOutTrayGridAndGivens() {
        QFETCH(int, size);
        QFETCH(int, regions);
        QFETCH(QPointF, lastHome);
        QFETCH(QPointF, lastCell);
        QFETCH(int, givens);
        Board& b = openBoard(size);
        const int cells = b.layout().n * b.layout().n, last = cells - 1;
        QCOMPARE(QRectF(b.Left(), b.Top(), b.Width(), b.Height()),
                 QRectF(1920, 1920, 15360, 11520));
        QCOMPARE(b.Shape1.count(), regions);
        QCOMPARE(QPointF(b.Image1(last).Left(), b.Image1(last).Top()), lastCell);
        QCOMPARE(QPointF(b.Image3(last).Left(), b.Image3(last).Top()), lastHome);
        QCOMPARE(b.Image3.count(), cells);
        QCOMPARE(b.Image5.count(), cells);
        for (int k = 0; k < cells; ++k) {
            QVERIFY(b.Image3(k).Visible());
            // Pieces lie above slots and cells, markers above pieces.
            QCOMPARE(b.childAt(centre(b.Image2(k))), &b.Image2(k));
            if (b.Image5(k).Visible()) QCOMPARE(b.childAt(centre(b.Image5(k))), &b.Image5(k));
        }
        verifyFreshPuzzle(b, givens);
        const int empty = firstCell(b, false);
        QCOMPARE(b.childAt(centre(b.Image1(empty))), &b.Image1(empty));  // above the regions
        QVERIFY(showsCurrentSet(b));
        QVERIFY(!b.Label7->Visible() && b.Label3(NewPuzzle).Visible() &&
                b.Label3(ShowSolution).Visible());
        QCOMPARE(b.Label1(1).Caption(), b.layout().rulesText);
        b.Image4.forEach([](int, platform::PictureBox& t) { QVERIFY(!t.Visible()); });
        QCOMPARE(b.Image6 && b.Image6->Visible(), size != 0);
    }

    void levelAndClockOptions() {
        const QColor colours[] = {{0, 0, 255}, {255, 0, 255}, {255, 0, 0}};
        for (int level = 0; level < 3; ++level) {
            const bool timed = level != 0;
            Board& b = openBoard(2 - level, level, timed);  // each size once
            QCOMPARE(b.Label1(0).Caption(), std::to_string(level + 1));
            QCOMPARE(b.Label1(0).BackColor(), colours[level]);
            QCOMPARE(b.BackColor(), colours[level]);
            for (int i = 0; i < 3; ++i) QCOMPARE(b.Label2(i).Visible(), timed);
            QCOMPARE(b.Label3(FastestTimes).Visible(), timed);
            QCOMPARE(b.Timer1.Enabled(), timed);
            closeScreens();
        }
    }

    void randomStartSetCoversExactlyTheCatalogue() {
        for (int size = 0; size < 3; ++size) {
            const std::string name = board::boardLayout(size).screenName;
            std::set<int> seen;
            for (int i = 0; i < 120; ++i) {
                seen.insert(platform::screens::get<Board>(name).pictureset);
                platform::screens::unload(name);
            }
            const auto& sets = board::catalogue(size);
            std::set<int> all;  // so the 6x6 board never starts with set 6 or 7
            for (int s = 0; s < static_cast<int>(sets.size()); ++s) all.insert(s);
            QVERIFY(seen == all);
            for (const auto& set : sets) {
                QVERIFY2(platform::findGameFile(set.thumbnailPath()), set.thumbnailPath().c_str());
                for (std::size_t k = 1; k <= set.symbols.size(); ++k)
                    QVERIFY2(platform::findGameFile(set.symbolPath(k)), set.symbolPath(k).c_str());
            }
        }
    }

    void dropSnapsOnlyWithinHalfACell_data() { addSizes(); }
    void dropSnapsOnlyWithinHalfACell() {
        QFETCH(int, size);
        Board& b = openBoard(size);
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        const auto& c = b.Image1(cell);
        const float half = b.layout().side / 2;
        dragTo(b, piece, c, half - 15, 15 - half);
        QVERIFY(liesOn(b.Image2(piece), c));
        QCOMPARE(takeSounds(), kClick1);
        QVERIFY(!b.Label3(NewPuzzle).Visible() && b.Label3(ShowSolution).Visible());
        // Exactly half a cell off lies in no catchment: the piece stays put.
        for (QPointF off : {QPointF(half, 0), QPointF(-half, 0), QPointF(0, -half)}) {
            dragTo(b, piece, c, off.x(), off.y());
            QCOMPARE(QPointF(b.Image2(piece).Left() - c.Left(), b.Image2(piece).Top() - c.Top()),
                     off);
            QVERIFY(takeSounds().empty());
        }
    }

    void dropNearAnySlotGoesHomeOntoAPieceBouncesOff() {
        Board& b = openBoard(0);
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        dragTo(b, piece, b.Image1(cell));
        dragTo(b, piece, b.Image3(piece == 15 ? 0 : 15), 300, 300);  // near a far slot
        QVERIFY(liesOn(b.Image2(piece), b.Image3(piece)));
        const auto& given = b.Image1(firstCell(b, true));
        dragTo(b, piece, given, 90, 90);
        QCOMPARE(QPointF(b.Image2(piece).Left(), b.Image2(piece).Top()),
                 QPointF(given.Left() + 600, given.Top() - 600));
        QCOMPARE(b.game().coveredCells(), 6);
    }

    void dragStopsShortOfTheWindowEdges() {
        Board& b = openBoard(0);
        int piece = 0;  // a movable piece of the tray's top row
        while (!b.Image2(piece).Enabled()) ++piece;
        const auto& p = b.Image2(piece);
        const int x = centre(p).x();
        const float left0 = x * 15 - 780, left1 = (x + 20) * 15 - 780;
        // Pointer (window pixels) and where the piece's corner must then be: a
        // move that would bring it within 120 twips of an edge does nothing.
        const std::pair<QPoint, QPointF> steps[] = {
            {{x, 75}, {left0, 345}},        {{x + 20, 55}, {left0, 345}},   // top 45
            {{x + 20, 62}, {left1, 150}},   {{x + 20, 710}, {left1, 150}},  // bottom 11430
            {{x + 20, 700}, {left1, 9720}}, {{1010, 700}, {left1, 9720}},   // right 15930
            {{x + 20, 62}, {left1, 150}},
        };
        QTest::mousePress(b.windowHandle(), Qt::LeftButton, {}, centre(p));
        for (const auto& [pointer, corner] : steps) {
            QTest::mouseMove(b.windowHandle(), pointer);
            QCOMPARE(QPointF(p.Left(), p.Top()), corner);
        }
        QTest::mouseRelease(b.windowHandle(), Qt::LeftButton, {}, {x + 20, 62});
        QVERIFY(liesOn(p, b.Image3(piece)));
    }

    void onlyTheLeftButtonDragsAndGivensStayPut() {
        Board& b = openBoard(0);
        const int cell = firstCell(b, false), piece = solutionPiece(b, cell);
        dragTo(b, piece, b.Image1(cell));
        takeSounds();
        drag(b, piece, centre(b.Image2(piece)) + QPoint(150, 40), Qt::RightButton);
        QVERIFY(liesOn(b.Image2(piece), b.Image1(cell)));
        QCOMPARE(takeSounds(), kClick1);  // the release still dropped it
        const int given = firstCell(b, true), fixed = pieceOn(b, given);
        drag(b, fixed, pixel(1005, 1005));
        QVERIFY(liesOn(b.Image2(fixed), b.Image1(given)));
    }

    void handPointerOverPiecesAndCommands() {
        Board& b = openBoard(0);
        int piece = 0;
        while (!b.Image2(piece).Enabled()) ++piece;
        QTest::mouseMove(b.windowHandle(), centre(b.Image2(piece)));
        QVERIFY(b.hasMouseIcon());
        QCOMPARE(b.children().last(), &b.Image2(piece));         // passing over raises it
        QTest::mouseMove(b.windowHandle(), pixel(15000, 1500));  // bare background
        QVERIFY(!b.hasMouseIcon());
        QTest::mouseMove(b.windowHandle(), centre(b.Label3(StartAgain)));
        QVERIFY(b.hasMouseIcon());
    }

    void fullGridIsJudgedASecondAfterTheLastDrop() {
        Board& b = openBoard(0, 1);
        fillEmptyCells(b, [&](int c) { return solutionPiece(b, c); });
        QVERIFY(b.Timer2.Enabled());
        QTest::qWait(500);
        QVERIFY(!b.Label7->Visible());
        QTRY_VERIFY_WITH_TIMEOUT(b.Label7->Visible(), 1500);
        QCOMPARE(b.Label7->Caption(), std::string("Correct, Well Done!!!"));
        QVERIFY(b.Label3(NewPuzzle).Visible() && !b.Label3(ShowSolution).Visible());
        QVERIFY(!b.Timer2.Enabled());
        QCOMPARE(takeSounds().back(), std::string("wav\\fanf3.wav"));
    }

    void wrongGridNamesTheFailingRegion() {
        Board& b = openBoard(1);
        // Two free cells of one row swap pictures: the rows still add up, two columns not.
        int a = -1, c = -1;
        for (int cell = 0; cell < 25 && c < 0; ++cell) {
            if (cell % 5 == 0) a = -1;
            if (!isGiven(b, cell)) (a < 0 ? a : c) = cell;
        }
        fillEmptyCells(b, [&](int cell) {
            return solutionPiece(b, cell == a ? c : cell == c ? a : cell);
        });
        b.Timer2.tick();
        QCOMPARE(b.Label7->Caption(), std::string("Wrong, Try Again"));
        QVERIFY(b.Label3(ShowSolution).Visible() && !b.Timer2.Enabled());
        QCOMPARE(takeSounds().back(), std::string("wav\\boink.wav"));
    }

    void timedCorrectGridEntersTheFastestTimes() {
        auto& m = shell::module1();
        m.loadfailed = 0;
        for (auto& t : m.besttime[2][1]) t = 0;
        Board& b = openBoard(2, 1, 1);
        b.Timer1.setEnabled(false);  // the clock moves only when the test ticks it
        for (int i = 0; i < 3; ++i) b.Timer1.tick();
        fillEmptyCells(b, [&](int c) { return solutionPiece(b, c); });
        b.Timer2.tick();
        QCOMPARE(b.Label7->Caption(), std::string("Correct in 3 seconds!!!"));
        QCOMPARE(m.besttime[2][1][0], std::int16_t(3));
        auto* scores = static_cast<records::Highscores*>(platform::screens::loaded("highscores"));
        QVERIFY(scores && scores->isVisible() && scores->Text1(1).isVisible());
    }

    void startAgainKeepsThePuzzleAndTheClock() {
        Board& b = openBoard(0, 2, 1);
        b.Timer1.setEnabled(false);
        for (int i = 0; i < 5; ++i) b.Timer1.tick();
        const int set = b.pictureset;
        const auto solution = b.game().solution;
        for (int i = 0; i < 2; ++i) {
            const int cell = [&] {
                for (int c = 0;; ++c)
                    if (pieceOn(b, c) < 0) return c;
            }();
            dragTo(b, solutionPiece(b, cell), b.Image1(cell));
        }
        b.Label7->show();
        takeSounds();
        click(b, b.Label3(StartAgain));
        verifyFreshPuzzle(b, 6);
        QVERIFY(b.pictureset == set && b.game().solution == solution);
        QVERIFY(b.Timer1.Enabled());
        QCOMPARE(b.game().seconds, std::int16_t(5));  // runs on from where it was
        QVERIFY(!b.Label7->Visible() && b.Label3(ShowSolution).Visible());
        QCOMPARE(takeSounds(), kSpace);
    }

    void newPuzzleKeepsTheSetAndAThumbnailChangesIt() {
        Board& b = openBoard(1, 2, 1);
        const int set = b.pictureset;
        b.Label7->show();
        b.Label3(ShowSolution).hide();
        b.Timer1.tick();
        click(b, b.Label3(NewPuzzle));
        QCOMPARE(b.pictureset, set);
        verifyFreshPuzzle(b, 10);
        QVERIFY(!b.Label7->Visible() && b.Label3(ShowSolution).Visible());
        QCOMPARE(b.Label2(1).Caption(), std::string("0"));
        click(b, b.Label3(SwitchPanel));
        takeSounds();
        for (int s = 7; s >= 0; --s) {
            b.Label7->show();
            click(b, b.Image4(s));
            QCOMPARE(b.pictureset, s);
            QVERIFY(showsCurrentSet(b));
            verifyFreshPuzzle(b, 10);
            QVERIFY(!b.Label7->Visible() && b.Image4(s).Visible());
            QCOMPARE(b.Label3(SwitchPanel).Caption(), std::string("Show Rules"));
            QCOMPARE(takeSounds(), kSpace);
        }
    }

    void showSolutionFillsTheGridAndPlayGoesOn() {
        Board& b = openBoard(2, 2, 1);
        b.Label3(NewPuzzle).hide();
        click(b, b.Label3(ShowSolution));
        for (int c = 0; c < 36; ++c) QCOMPARE(pieceOn(b, c), solutionPiece(b, c));
        QVERIFY(b.Label3(NewPuzzle).Visible() && b.Label3(ShowSolution).Visible());
        QVERIFY(b.Timer1.Enabled() && !b.Timer2.Enabled());
        QCOMPARE(takeSounds(), std::vector<std::string>{"wav\\METAL2.wav"});
        // Lifting a free piece and putting it back fills the grid again: checked.
        const int cell = firstCell(b, false);
        drag(b, pieceOn(b, cell), centre(b.Image1(cell)));
        b.Timer2.tick();
        QVERIFY(b.Label7->Caption().rfind("Correct in ", 0) == 0);
    }

    void panelSwitchesBetweenRulesAndThumbnails_data() { addSizes(); }
    void panelSwitchesBetweenRulesAndThumbnails() {
        QFETCH(int, size);
        Board& b = openBoard(size);
        QCOMPARE(b.Image4.count(), size == 0 ? 9 : b.layout().pictureSets);  // 4x4: and the logo
        for (int round = 0; round < 4; ++round) {
            click(b, b.Label3(SwitchPanel));
            const bool open = round % 2 == 0;
            QCOMPARE(b.Label3(SwitchPanel).Caption(),
                     std::string(open ? "Show Rules" : "Change Pictures"));
            QCOMPARE(b.Label1(1).Caption(),
                     open ? std::string("Select a picture") : b.layout().rulesText);
            b.Image4.forEach([&](int, platform::PictureBox& t) { QCOMPARE(t.Visible(), open); });
            QCOMPARE(takeSounds(), kSpace);
        }
        if (size != 0) return;
        click(b, b.Label3(SwitchPanel));
        const auto solution = b.game().solution;
        click(b, b.Image4(8));  // the 4x4 logo among the thumbnails is not a set
        QVERIFY(b.game().solution == solution);
        QCOMPARE(takeSounds(), kSpace);  // only the switch's
    }

    void fastestTimesOpensInTheBoardColourAndCommandsCloseIt() {
        Board& b = openBoard(0, 1, 1);
        for (int command : {SwitchPanel, StartAgain}) {
            click(b, b.Label3(FastestTimes));
            auto* scores =
                static_cast<records::Highscores*>(platform::screens::loaded("highscores"));
            QVERIFY(scores && scores->isVisible());
            QCOMPARE(scores->BackColor(), QColor(255, 0, 255));
            for (int j = 0; j < 3; ++j)
                QCOMPARE(scores->Frame1(j).BackColor(), QColor(255, 0, 255));
            click(b, b.Label3(command));
            QVERIFY(!platform::screens::isLoaded("highscores"));
        }
    }

    void exitSavesBothFilesAndLeavesTheBoard() {
        auto& m = shell::module1();
        bool ended = false;
        platform::screens::setEndHandler([&] { ended = true; });
        for (bool byWindowManager : {false, true}) {
            QFile::remove(records::kLastGameFile);
            QFile::remove(records::kHighscoreFile);
            Board& b = openBoard(2, 0, 1);
            m.hidedesktop = 1;
            m.besttime[2][0][0] = 42;
            click(b, b.Label3(FastestTimes));
            takeSounds();
            if (byWindowManager)
                b.close();
            else
                click(b, b.Label3(Exit));
            QVERIFY(!platform::screens::isLoaded("jigsaw6x6") &&
                    !platform::screens::isLoaded("highscores"));
            QCOMPARE(takeSounds(), std::vector<std::string>{"wav\\click.wav"});
            records::LastGame saved;
            QVERIFY(records::loadLastGame(records::kLastGameFile, saved));
            QVERIFY(saved.playsound == 1 && saved.timerson == 1 && saved.hidedesktop == 1 &&
                    saved.boardsize == 2);
            records::FastestTimes tables;
            QVERIFY(records::loadHighscores(records::kHighscoreFile, tables));
            QCOMPARE(tables.besttime[2][0][0], std::int16_t(42));
        }
        QVERIFY(!ended);
        platform::screens::setEndHandler({});
    }
};

QTEST_MAIN(BoardTests)
#include "board_tests.moc"
