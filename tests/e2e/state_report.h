// What the two state reporters share: state_hook.cpp, linked into the
// end-to-end build of the game, and tests/install/state_preload.cpp, preloaded
// into the installed game. Both tell play_game.sh where things are, in global
// pixels as xdotool uses them, by a file rewritten every 100 ms.
#pragma once
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <ostream>
#include <string>

namespace e2e {

inline QPoint centreOf(const QWidget& control) {
    return control.mapToGlobal(control.rect().center());
}

// "textbox <x> <y>": the centre of the text box holding the focus, if any.
inline void writeTextBox(std::ostream& out) {
    if (auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        box && box->isVisible()) {
        const QPoint centre = centreOf(*box);
        out << "textbox " << centre.x() << ' ' << centre.y() << '\n';
    }
}

// Every 100 ms what `describe` tells, when it has changed, written beside
// `path` and renamed over it, so the script never reads half a file.
inline void reportEvery100ms(const QString& path, std::function<std::string()> describe) {
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, [=, last = std::string()]() mutable {
        const std::string text = describe();
        if (text == last) return;
        QFile tmp(path + QStringLiteral(".tmp"));
        if (!tmp.open(QIODevice::WriteOnly)) return;
        tmp.write(text.data(), static_cast<qint64>(text.size()));
        tmp.close();
        if (std::rename(qPrintable(tmp.fileName()), qPrintable(path)) == 0) last = text;
    });
    timer->start(100);
}

}  // namespace e2e
