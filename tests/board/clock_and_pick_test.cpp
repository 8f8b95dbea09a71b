// A board's two timers and its on/off options at start-up, and a click that
// misses every cell while a piece is picked. Offscreen, driven through the
// window like board_tests.
#include <QTemporaryDir>
#include <QtTest>

#include "board/board_screen.h"
#include "board/register.h"
#include "platform/files.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "records/highscores.h"
#include "shell/module1.h"

using board::Board;
using Sounds = std::vector<std::string>;

class ClockAndPickTests : public QObject {
    Q_OBJECT
    QTemporaryDir folder;
    static inline Sounds heard;

    static Board& open(std::int16_t playsound, std::int16_t timerson) {
        auto& m = shell::module1();
        m.boardsize = 0;
        m.level = 2;
        m.playsound = playsound;
        m.timerson = timerson;
        platform::screens::show(tables::Screen::jigsaw);
        auto& b = platform::screens::get<Board>(tables::Screen::jigsaw);
        if (!QTest::qWaitForWindowExposed(&b)) throw std::runtime_error("board not exposed");
        heard.clear();
        return b;
    }
    static void clickAt(Board& b, float x, float y) {
        const QPoint at(platform::toPixels(x), platform::toPixels(y));
        QTest::mouseClick(b.windowHandle(), Qt::LeftButton, {}, at);
    }
    template <class Control>
    static void click(Board& b, const Control& c) {
        clickAt(b, c.Left() + c.Width() / 2, c.Top() + c.Height() / 2);
    }

  private slots:
    void initTestCase() {
        const QString game = QStringLiteral(PIMBALO_GAME_DIR);
        QVERIFY(QFile::link(game + "/Images", folder.path() + "/Images"));
        QVERIFY(QFile::link(game + "/wav", folder.path() + "/wav"));
        QDir::setCurrent(folder.path());
        board::registerScreens();
        records::registerScreens();
        platform::setSoundObserver([](const std::string& path) { heard.push_back(path); });
    }
    void cleanup() {
        platform::screens::unload(tables::Screen::jigsaw);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // The clock ticks each second and the check comes once, a second after
    // the grid fills. "Timers On" and "Play Sound" are on only at 1: at 2
    // (a hand-edited lastgame.inf) the clock stays hidden and stopped and
    // the board silent.
    void timersAndOnOffOptionsAtStartUp() {
        for (const std::int16_t on : {1, 2}) {
            Board& b = open(on, on);
            QCOMPARE(b.Timer1.Interval(), 1000);
            QCOMPARE(b.Timer2.Interval(), 1000);
            QCOMPARE(b.Timer1.Enabled(), on == 1);
            for (int i = 0; i <= 2; ++i) QCOMPARE(b.Label2(i).Visible(), on == 1);
            QCOMPARE(b.Label3(3).Visible(), on == 1);  // "Fastest Times"

            int piece = 0;
            while (!b.Image2(piece).Enabled()) ++piece;
            click(b, b.Image2(piece));  // a release in place is a drop
            b.Timer2.setEnabled(true);
            b.Timer2.tick();  // the check, on a grid far from full
            QVERIFY(!b.Timer2.Enabled());
            click(b, b.Label3(5));  // "Change Pictures", a command of the board's own
            const Sounds expected =
                on == 1 ? Sounds{"wav\\click1.wav", "wav\\boink.wav", "wav\\space.wav"} : Sounds{};
            QCOMPARE(heard, expected);
            cleanup();
        }
    }

    // Playing by clicks: a click that misses, in the gap between two cells
    // or on the bare background, keeps the pick, so the next click on a cell
    // still places the piece.
    void aMissedClickKeepsThePick() {
        Board& b = open(0, 0);
        const int n = b.layout().n;
        int cell = 0;
        while (b.game().given[cell % n][cell / n] == 1) ++cell;
        const int piece = engine::pieceNumber(n, b.game().solution[cell % n][cell / n], cell / n);
        click(b, b.Image2(piece));
        QCOMPARE(b.picking().picked(), piece);

        const auto& left = b.Image1(0);
        const auto& right = b.Image1(1);
        const float gapStart = left.Left() + left.Width();
        QVERIFY(gapStart < right.Left());
        clickAt(b, (gapStart + right.Left()) / 2, left.Top() + left.Height() / 2);
        clickAt(b, 14800, 150);  // right of the tray
        QCOMPARE(b.picking().picked(), piece);
        QCOMPARE(QPointF(b.Image2(piece).Left(), b.Image2(piece).Top()),
                 QPointF(b.Image3(piece).Left(), b.Image3(piece).Top()));

        click(b, b.Image1(cell));
        QCOMPARE(QPointF(b.Image2(piece).Left(), b.Image2(piece).Top()),
                 QPointF(b.Image1(cell).Left(), b.Image1(cell).Top()));
        QCOMPARE(b.picking().picked(), engine::Picking::kNone);
    }
};

QTEST_MAIN(ClockAndPickTests)
#include "clock_and_pick_test.moc"
