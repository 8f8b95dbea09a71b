// Under a window manager (openbox) on a real X server: a shown screen that
// the window manager minimises (the player's key or its window menu; here
// the same request sent by xdotool) comes back at once.
#include <QProcess>
#include <QtTest>

#include "platform/form.h"

using platform::Form;
using platform::FormKind;

namespace {

// "Normal", "Iconic" or "Withdrawn", as the window manager set it.
QString wmState(const QWidget& window) {
    QProcess xprop;
    xprop.start("xprop", {"-id", QString::number(window.winId()), "WM_STATE"});
    xprop.waitForFinished();
    const QString said = QString::fromLocal8Bit(xprop.readAllStandardOutput());
    const int at = said.indexOf("window state: ");
    return at < 0 ? QString() : said.mid(at + 14).section('\n', 0, 0).trimmed();
}

// Counts the times a window became minimised, as Qt heard it.
class MinimisedCount : public QObject {
  public:
    int count = 0;
    bool eventFilter(QObject* watched, QEvent* e) override {
        if (e->type() == QEvent::WindowStateChange &&
            (static_cast<QWidget*>(watched)->windowState() & Qt::WindowMinimized))
            ++count;
        return false;
    }
};

}  // namespace

class MinimiseTests : public QObject {
    Q_OBJECT

  private slots:
    void minimisedScreensComeBack_data() {
        QTest::addColumn<FormKind>("kind");
        QTest::newRow("full-size") << FormKind::FullSize;
        QTest::newRow("backdrop") << FormKind::Backdrop;
    }
    void minimisedScreensComeBack() {
        QFETCH(FormKind, kind);
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        Form screen(tables::Screen::jigsaw, kind);
        screen.setOuterSize(6000, 6000);
        MinimisedCount minimised;
        screen.installEventFilter(&minimised);
        screen.Show();
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
        QTRY_COMPARE(wmState(screen), QStringLiteral("Normal"));

        QCOMPARE(QProcess::execute("xdotool", {"windowminimize", QString::number(screen.winId())}),
                 0);
        QTRY_VERIFY(minimised.count > 0);  // the window manager did minimise it
        QTRY_COMPARE(wmState(screen), QStringLiteral("Normal"));
        QTRY_VERIFY(!(screen.windowState() & Qt::WindowMinimized));
        QVERIFY(QTest::qWaitForWindowExposed(&screen));
    }
};

QTEST_MAIN(MinimiseTests)
#include "minimise_test.moc"
