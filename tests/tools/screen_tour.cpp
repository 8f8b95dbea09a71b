#include "tests/tools/screen_tour.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>
#include <QtTest>
#include <cstdio>

#include "board/board_screen.h"
#include "platform/form.h"
#include "platform/translation.h"

namespace screen_tour {
namespace {

using tables::Screen;

void stopAt(const Walk& walk, Screen screen, const QString& what) {
    settle();
    platform::Form* form = platform::screens::loaded(screen);
    if (!form || !form->isVisible()) {
        std::fprintf(stderr, "screen %s is not shown for %s\n", tables::screenName(screen),
                     qPrintable(what));
        std::exit(1);
    }
    walk.stop(screen, what);
}

// The shown control of `screen` whose caption is `caption`.
template <class Control>
Control* find(Screen screen, const QString& caption) {
    for (Control* c : platform::screens::get(screen).findChildren<Control*>())
        if (c->isVisible() && c->text() == platform::translatedFor(*c, caption)) return c;
    std::fprintf(stderr, "no \"%s\" on %s\n", qPrintable(caption), tables::screenName(screen));
    std::exit(1);
}

void clickWidget(QWidget* w) {
    QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
    settle();
}

void click(Screen screen, const QString& caption) {
    clickWidget(find<QLabel>(screen, caption));
}

void setChecked(Screen screen, const QString& caption, bool on) {
    QCheckBox* box = find<QCheckBox>(screen, caption);
    if (box->isChecked() != on) clickWidget(box);
}

void walkBoard(const Walk& walk, int size, int level, bool timers) {
    setChecked(Screen::Startplay2, "Timers On", timers);
    clickWidget(
        platform::screens::get<QWidget>(Screen::Startplay2).findChildren<QRadioButton*>().at(size));
    click(Screen::Startplay2, QString::number(level + 1));
    const Screen name = tables::boardScreen(size);
    auto& b = platform::screens::get<board::Board>(name);
    b.Timer1.setEnabled(false);  // the clock shows 0 however slow the run
    const QString tag =
        QString("board%1-level%2%3").arg(size).arg(level + 1).arg(timers ? "-timed" : "");
    stopAt(walk, name, tag);
    if (level == 0) {
        click(name, "Change Pictures");
        stopAt(walk, name, tag + "-sets");
        for (int set = 0; walk.everyPictureSet && set < b.layout().pictureSets; ++set) {
            clickWidget(&b.Image4(set));
            stopAt(walk, name, tag + QString("-set%1").arg(set));
        }
        click(name, "Show solution");
        stopAt(walk, name, tag + "-solution");
    }
    if (timers) {
        click(name, "Fastest Times");
        stopAt(walk, Screen::highscores, tag + "-fastest");
        click(Screen::highscores, "Continue");
    }
    click(name, "Exit");
}

}  // namespace

void settle() {
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void walk(const Walk& walk) {
    platform::screens::show(Screen::Titlefrm);
    stopAt(walk, Screen::Titlefrm, "title");
    click(Screen::Titlefrm, "OK");
    stopAt(walk, Screen::Grey, "backdrop");
    stopAt(walk, Screen::Startplay2, "options");

    click(Screen::Startplay2, "The Rules");
    auto pages = platform::screens::get<QWidget>(Screen::Morvelrules).findChildren<QRadioButton*>();
    for (int page = 0; page < pages.size(); ++page) {
        clickWidget(pages.at(page));
        stopAt(walk, Screen::Morvelrules, QString("rules-page%1").arg(page + 1));
    }
    click(Screen::Morvelrules, "Exit");

    for (int size = 0; size < 3; ++size)
        for (int level = 0; level < 3; ++level) walkBoard(walk, size, level, level == 1);

    stopAt(walk, Screen::Startplay2, "options-after-games");
    click(Screen::Startplay2, "Exit");
    stopAt(walk, Screen::Titlefrm, "title-again");
}

}  // namespace screen_tour
