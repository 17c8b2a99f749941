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
    void cleanup();
    void requests();
    void followTheFocus();
    void windowIsDestroyedMeanwhile();

private:
    std::unique_ptr<QQuickWindow> createWindow();
    void setIme(bool enabled) { mGui->setIme(QVariant::fromValue(mWindow.get()), enabled); }
    void focus(const char *name) const;
    void activate()
    {
        mWindow->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    }

    QQmlEngine mEngine;
    std::unique_ptr<Gui> mGui;
    std::unique_ptr<QQuickWindow> mWindow;
};

std::unique_ptr<QQuickWindow> tst_InputMethod::createWindow()
{
    QQmlComponent component(&mEngine);
    component.setData("import QtQuick 2.7\nimport QtQuick.Window 2.2\n"
                      "Window {\n"
                      "  width: 100; height: 100; visible: true\n"
                      "  TextInput { objectName: 'first'; text: 'abc'; focus: true }\n"
                      "  TextInput { objectName: 'second' }\n"
                      "  Item { objectName: 'plain' }\n"
                      "}",
                      QUrl());
    return std::unique_ptr<QQuickWindow>(qobject_cast<QQuickWindow *>(component.create()));
}

void tst_InputMethod::focus(const char *name) const
{
    auto *item = mWindow->findChild<QQuickItem *>(QLatin1String(name));
    QVERIFY(item);
    item->forceActiveFocus();
    QCOMPARE(QGuiApplication::focusObject(), item);
}

void tst_InputMethod::init()
{
    mGui.reset(static_cast<Gui *>(Gui::create(&mEngine, &mEngine)));
    mWindow = createWindow();
    QVERIFY(mWindow);
    activate();
    focus("first");
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::cleanup()
{
    mWindow.reset();
    mGui.reset();
}

void tst_InputMethod::requests()
{
    // A minus asks for the input method to be off, a plus takes the request back.
    const QByteArray requests("--++-+");
    const bool enabled[] = { false, false, false, true, false, true };
    for (int i = 0; i < requests.size(); ++i) {
        setIme(requests.at(i) == '+');
        QCOMPARE(acceptsInputMethod(), enabled[i]);
    }
}

void tst_InputMethod::followTheFocus()
{
    setIme(false);
    focus("second");
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
    focus("plain");
    QVERIFY(!acceptsInputMethod());
    focus("second");
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::windowIsDestroyedMeanwhile()
{
    setIme(false);
    mWindow = createWindow(); // made while the first still has its id
    activate();
    QVERIFY(acceptsInputMethod());
    mWindow.reset();
    mWindow = createWindow(); // may get an id that was given out before
    activate();
    setIme(false);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

QTEST_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
