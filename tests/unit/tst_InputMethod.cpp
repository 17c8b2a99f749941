#include "quick/Gui.h"

#include <QInputMethodQueryEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtTest>

#include <memory>

namespace
{
// What Qt's input method gets to hear, asked in the way in which it asks.
bool acceptsInputMethod()
{
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
    return query.value(Qt::ImEnabled).toBool();
}
} // namespace

class tst_InputMethod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsRequestsAndFollowsTheFocus();
    void windowIsDestroyedMeanwhile();

private:
    /// Makes a window with two fields, of which the first has the focus.
    void createWindow();
    void setIme(bool enabled) { mGui->setIme(QVariant::fromValue(mWindow.get()), enabled); }

    QQmlEngine mEngine;
    const std::unique_ptr<Gui> mGui{ static_cast<Gui *>(Gui::create(&mEngine, &mEngine)) };
    std::unique_ptr<QQuickWindow> mWindow;
};

void tst_InputMethod::createWindow()
{
    QQmlComponent component(&mEngine);
    component.setData("import QtQuick 2.7; import QtQuick.Window 2.2\n"
                      "Window { width: 100; height: 100; visible: true\n"
                      "  TextInput { focus: true }\n"
                      "  TextInput { objectName: 'second' } }",
                      QUrl());
    mWindow.reset(qobject_cast<QQuickWindow *>(component.create()));
    QVERIFY(mWindow);
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::countsRequestsAndFollowsTheFocus()
{
    createWindow();
    setIme(false);
    setIme(false);
    mWindow->findChild<QQuickItem *>(QStringLiteral("second"))->forceActiveFocus();
    setIme(true);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::windowIsDestroyedMeanwhile()
{
    createWindow();
    setIme(false);
    createWindow(); // made while the first still has its id
    mWindow.reset();
    createWindow(); // may get an id that was given out before
    setIme(false);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

QTEST_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
