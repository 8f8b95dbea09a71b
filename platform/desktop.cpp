#include "platform/desktop.h"

#include <QCursor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QScreen>
#include <QUrl>

#include "platform/twips.h"

namespace platform {

float screenWidthTwips() {
    const QScreen* s = QGuiApplication::primaryScreen();
    return s ? toTwips(s->geometry().width()) : 15360.0f;
}

float screenHeightTwips() {
    const QScreen* s = QGuiApplication::primaryScreen();
    return s ? toTwips(s->geometry().height()) : 11520.0f;
}

void setBusyPointer(bool busy) {
    if (busy)
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    else
        QGuiApplication::restoreOverrideCursor();
}

void openWebPage(const std::string& address) {
    QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

}  // namespace platform
