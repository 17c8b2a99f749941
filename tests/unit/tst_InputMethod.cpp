#include "SystemService/InputMethod.h"

#include <QLineEdit>
#include <QtTest>

#include <qt_windows.h>

#include <imm.h>

/// The input method as Windows knows it; elsewhere the tests of the screens ask Qt.
class tst_InputMethod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isOffWhileOneAsksForIt();
};

void tst_InputMethod::isOffWhileOneAsksForIt()
{
    QWidget window;
    QLineEdit text(&window);
    QLineEdit other(&window);
    other.move(0, 100);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    text.setFocus();
    const auto isOn = [&window] {
        const auto handle = reinterpret_cast<HWND>(window.winId());
        const HIMC context = ::ImmGetContext(handle);
        ::ImmReleaseContext(handle, context);
        return context != nullptr;
    };
    QVERIFY(isOn());
    InputMethod method;
    for (const bool on : { false, false, true }) {
        method.setEnabled(window.windowHandle(), on);
        QVERIFY(!isOn());
    }
    // Qt has a say in it where the focus goes.
    other.setFocus();
    QVERIFY(!isOn());
    method.setEnabled(window.windowHandle(), true);
    QVERIFY(isOn());
}

QTEST_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
