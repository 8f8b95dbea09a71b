// Times the board screens: opening each size with its pictures (load, show
// and first paint), and handling one pointer move while a piece is dragged.
// Run in the game folder, or pass it:  board_bench [game folder]
// under any Qt platform, e.g. QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "board/board_screen.h"
#include "board/register.h"
#include "platform/form.h"
#include "records/highscores.h"
#include "shell/module1.h"

namespace {

double median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

void flushDeletes() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Qt's one-off start-up (font database, first window) is not the board's:
// pay it with a throwaway window before timing.
void warmUp() {
    QWidget window;
    platform::Label text(&window);
    text.setFont(platform::designFont(QStringLiteral("Arial Rounded MT Bold"), 18, true));
    text.setCaption("Show solution");
    platform::Label digit(&window);
    digit.setFont(platform::designFont(QStringLiteral("Tahoma"), 32.25, true));
    digit.setCaption("1");
    window.show();
    window.grab();
    QImage("Images/pimbalo.jpg").isNull();  // loads the JPEG reader; not a board picture
}

// Milliseconds from nothing loaded to the board shown and painted once
// (into a picture, so the platform's own drawing is left out).
double openOnce(tables::Screen screen) {
    QElapsedTimer clock;
    clock.start();
    platform::screens::show(screen);
    platform::screens::get(screen).grab();
    const double ms = clock.nsecsElapsed() / 1e6;
    platform::screens::unload(screen);
    flushDeletes();
    return ms;
}

// Microseconds per pointer move of a left-button drag over the grid, the
// repaint it causes included.
double dragMove(tables::Screen screen, int moves) {
    platform::screens::show(screen);
    auto& b = platform::screens::get<board::Board>(screen);
    if (!QTest::qWaitForWindowExposed(&b)) return -1;
    int piece = 0;
    while (!b.Image2(piece).Enabled()) ++piece;
    QWindow* w = b.windowHandle();
    const auto& p = b.Image2(piece);
    const QPoint start(platform::toPixels(p.Left() + p.Width() / 2),
                       platform::toPixels(p.Top() + p.Height() / 2));
    QTest::mousePress(w, Qt::LeftButton, {}, start);
    QCoreApplication::processEvents();
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < moves; ++i) {
        QTest::mouseMove(w, QPoint(500 + i % 200, 400 + i % 150), 0);
        QCoreApplication::processEvents();
    }
    const double us = clock.nsecsElapsed() / 1e3 / moves;
    QTest::mouseRelease(w, Qt::LeftButton, {}, QPoint(500, 400));
    platform::screens::unload(screen);
    flushDeletes();
    return us;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc > 1) QDir::setCurrent(QString::fromLocal8Bit(argv[1]));
    board::registerScreens();
    records::registerScreens();
    shell::module1().timerson = 1;
    warmUp();

    std::printf("%-10s %12s %14s %16s\n", "board", "first open", "open (median)", "drag move");
    for (int size = 0; size < 3; ++size) {
        const tables::Screen screen = tables::boardScreen(size);
        const double first = openOnce(screen);  // pictures read from disk
        std::vector<double> runs;
        for (int i = 0; i < 30; ++i) runs.push_back(openOnce(screen));
        const double move = dragMove(screen, 2000);
        std::printf("%-10s %9.2f ms %11.2f ms %13.1f us\n", tables::screenName(screen), first,
                    median(runs), move);
    }
    return 0;
}
