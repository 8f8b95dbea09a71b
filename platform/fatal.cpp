#include "platform/fatal.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "platform/form.h"
#include "platform/timer.h"
#include "platform/translation.h"
#include "tables/texts.h"

namespace platform {
namespace {
FatalHandler& handler() {
    static FatalHandler h;
    return h;
}
// Ends the program from wherever the error struck, as cleanly as its "Exit"
// does: every screen goes, then the application with its windows, fonts and
// display connection, and only then the process, with status 1. Nothing is
// saved on the way (only a board's "Exit" saves).
[[noreturn]] void endAfterError() {
    if (QCoreApplication* application = QCoreApplication::instance()) {
        screens::endProgram();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // The application object belongs to main(), which never gets control
        // back now: its life ends here, as it would have on leaving main().
        application->~QCoreApplication();
    }
    std::exit(1);
}

}  // namespace

void setFatalHandler(FatalHandler h) {
    handler() = std::move(h);
}

void fatalFileError(const QString& path, const QString& reason) {
    // The message box below runs its own event loop: no clock may tick and
    // no answer check may run under it.
    stopAllTimers();
    const QString message = translated("Error", tables::error_text::kCannotGoOn).arg(path, reason);
    if (handler()) handler()(message);
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) &&
        QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QMessageBox::critical(nullptr, translated("Error", tables::error_text::kTitle), message);
    }
    endAfterError();
}

}  // namespace platform
