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

// Notes what Qt asks by itself.
class QueryCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::InputMethodQuery
            && static_cast<QInputMethodQueryEvent *>(event)->queries() & Qt::ImEnabled)
            ++mCount;
        return false;
    }

    int mCount = 0;
};
} // namespace

class tst_InputMethod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void requests_data();
    void requests();
    void followTheFocus();
    void otherWindowsAreLeftAlone();
    void furtherQueriesAreAnswered();
    void qtIsToldOfTheChange();
    void windowIsDestroyedMeanwhile();
    void windowFromVariant();

private:
    std::unique_ptr<QQuickWindow> createWindow();
    void setIme(bool enabled) { mGui->setIme(QVariant::fromValue(mWindow.get()), enabled); }
    void focus(const char *name) const;

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
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    focus("first");
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::cleanup()
{
    mWindow.reset();
    mGui.reset();
}

void tst_InputMethod::requests_data()
{
    // A minus asks for the input method to be off, a plus takes the request back.
    QTest::addColumn<QByteArray>("requests");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("off") << QByteArray("-") << false;
    QTest::newRow("off and on") << QByteArray("-+") << true;
    QTest::newRow("off twice, on once") << QByteArray("--+") << false;
    QTest::newRow("off twice, on twice") << QByteArray("--++") << true;
    QTest::newRow("off again") << QByteArray("-+-") << false;
    QTest::newRow("off again and on") << QByteArray("-+-+") << true;
}

void tst_InputMethod::requests()
{
    QFETCH(QByteArray, requests);
    for (const char request : qAsConst(requests))
        setIme(request == '+');
    QTEST(acceptsInputMethod(), "enabled");
}

void tst_InputMethod::followTheFocus()
{
    setIme(false);
    focus("second");
    QVERIFY(!acceptsInputMethod());
    focus("plain");
    QVERIFY(!acceptsInputMethod());
    focus("first");
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
    focus("plain");
    QVERIFY(!acceptsInputMethod());
    focus("second");
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::otherWindowsAreLeftAlone()
{
    setIme(false);
    const std::unique_ptr<QQuickWindow> other = createWindow();
    other->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(other.get()));
    QVERIFY(acceptsInputMethod());
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    QVERIFY(!acceptsInputMethod());
}

void tst_InputMethod::furtherQueriesAreAnswered()
{
    setIme(false);
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImSurroundingText);
    QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
    QCOMPARE(query.value(Qt::ImEnabled), QVariant(false));
    QCOMPARE(query.value(Qt::ImSurroundingText), QVariant(QStringLiteral("abc")));
}

void tst_InputMethod::qtIsToldOfTheChange()
{
    QueryCounter counter;
    qApp->installEventFilter(&counter);
    setIme(false);
    QVERIFY(counter.mCount > 0);
    counter.mCount = 0;
    setIme(false);
    setIme(true);
    QCOMPARE(counter.mCount, 0);
    setIme(true);
    QVERIFY(counter.mCount > 0);
}

void tst_InputMethod::windowIsDestroyedMeanwhile()
{
    setIme(false);
    mWindow = createWindow(); // made while the first still has its id
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    QVERIFY(acceptsInputMethod());
    mWindow.reset();
    mWindow = createWindow(); // may get an id that was given out before
    mWindow->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    setIme(false);
    QVERIFY(!acceptsInputMethod());
    setIme(true);
    QVERIFY(acceptsInputMethod());
}

void tst_InputMethod::windowFromVariant()
{
    QObject plain;
    for (const QVariant &none : { QVariant(), QVariant(3), QVariant::fromValue(&plain) }) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no window")));
        mGui->setIme(none, false);
        QVERIFY(acceptsInputMethod());
    }
    mGui->setIme(QVariant::fromValue(static_cast<QObject *>(mWindow.get())), false);
    QVERIFY(!acceptsInputMethod());
    mGui->setIme(QVariant::fromValue(static_cast<QWindow *>(mWindow.get())), true);
    QVERIFY(acceptsInputMethod());
}

QTEST_MAIN(tst_InputMethod)
#include "tst_InputMethod.moc"
