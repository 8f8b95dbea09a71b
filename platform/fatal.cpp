#include "platform/fatal.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>
#include <cstdlib>

#include "tables/texts.h"

namespace platform {
namespace {
FatalHandler& handler() {
    static FatalHandler h;
    return h;
}
}  // namespace

void setFatalHandler(FatalHandler h) {
    handler() = std::move(h);
}

void fatalFileError(const QString& path, const QString& reason) {
    const QString message = QString(tables::error_text::kCannotGoOn).arg(path, reason);
    if (handler()) handler()(message);
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) &&
        QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QMessageBox::critical(nullptr, tables::error_text::kTitle, message);
    }
    std::exit(1);
}

}  // namespace platform
