// On a real X server, where windows truly stack: the screen shown last lies
// on top, and showing one that lies below again brings it back to the top.
#include <QtTest>

#include "platform/form.h"

using platform::Form;
using platform::FormKind;

class StackingTests : public QObject {
    Q_OBJECT

  private slots:
    void theScreenShownLastLiesOnTop() {
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        // Two full-size screens; which of the game's ids they carry does not matter here.
        Form first(tables::Screen::jigsaw, FormKind::FullSize),
            second(tables::Screen::Morvelrules, FormKind::FullSize);
        for (Form* form : {&first, &second}) {
            form->setOuterSize(6000, 6000);
            form->setLeft(1500);
            form->setTop(1500);
        }
        const QPoint middle(300, 300);  // both cover 100 to 500 pixels each way

        first.Show();
        QVERIFY(QTest::qWaitForWindowExposed(&first));
        second.Show();
        QVERIFY(QTest::qWaitForWindowExposed(&second));
        QTRY_COMPARE(QGuiApplication::topLevelAt(middle), second.windowHandle());

        first.Show();
        QTRY_COMPARE(QGuiApplication::topLevelAt(middle), first.windowHandle());
        second.Show();
        QTRY_COMPARE(QGuiApplication::topLevelAt(middle), second.windowHandle());
    }
};

QTEST_MAIN(StackingTests)
#include "stacking_test.moc"
