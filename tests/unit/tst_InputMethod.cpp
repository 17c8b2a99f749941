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
    void init();
    void countsRequestsAndFollowsTheFocus();
    void windowIsDestroyedMeanwhile();

private:
    void createWindow();
    void setIme(bool enabled) { mGui->setIme(QVariant::fromValue(mWindow.get()), enabled); }
    void focus(const char *name) const;

    QQmlEngine mEngine;
    std::unique_ptr<Gui> mGui;
    std::unique_ptr<QQuickWindow> mWindow;
};

void tst_InputMethod::createWindow()
{
    QQmlComponent component(&mEngine);
    component.setData("import QtQuick 2.7\nimport QtQuick.Window 2.2\n"
                      "Window {\n"
                      "  width: 100; height: 100; visible: true\n"
                      "  TextInput { objectName: 'first'; focus: true }\n"
                      "  TextInput { objectName: 'second' }\n"
                      "}",
                      QUrl());
    mWindow.reset(qobject_cast<QQuickWindow *>(component.create()));
    QVERIFY(mWindow);
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
}

void tst_InputMethod::focus(const char *name) const
{
    mWindow->findChild<QQuickItem *>(QLatin1String(name))->forceActiveFocus();
    QCOMPARE(QGuiApplication::focusObject()->objectName(), QLatin1String(name));
}

void tst_InputMethod::init()
{
    mGui.reset(static_cast<Gui *>(Gui::create(&mEngine, &mEngine)));
    createWindow();
    focus("first");
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::countsRequestsAndFollowsTheFocus()
{
    setIme(false);
    setIme(false);
    focus("second");
    setIme(true);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::windowIsDestroyedMeanwhile()
{
    setIme(false);
    createWindow(); // made while the first still has its id
    QVERIFY(acceptsInputMethod());
    mWindow.reset();
    createWindow(); // may get an id that was given out before
    setIme(false);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

QTEST_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
