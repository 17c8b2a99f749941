#include "support/ManagerFixture.h"
#include "Tutorial/EditorTooltip.h"
#include "Tutorial/TutorialIndicator.h"
#include "Tutorial/TutorialLog.h"
#include "Tutorial/TutorialTooltip.h"

#include <QPushButton>

using namespace ManagerFixture;

namespace
{
template <typename T>
T *findWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (T *found = qobject_cast<T *>(window))
            return found;
    }
    return nullptr;
}

/// What can be seen, a letter each: tooltip, next, yes, no, log, editor tooltip.
QString seen()
{
    QString letters;
    const auto add = [&letters](const QWidget *window, char letter) {
        if (window && window->isVisible())
            letters += QLatin1Char(letter);
    };
    add(findWindow<TutorialTooltip>(), 't');
    if (const auto *indicator = findWindow<TutorialIndicator>()) {
        add(indicator->mNextButton, 'n');
        add(indicator->mYesButton, 'y');
        add(indicator->mNoButton, 'o');
    }
    add(findWindow<TutorialLog>(), 'l');
    add(findWindow<EditorTooltip>(), 'e');
    return letters;
}

/// Counts how often a window was hidden and shown.
class Visibility : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Hide || event->type() == QEvent::Show)
            mChanges += event->type() == QEvent::Hide ? QLatin1Char('h') : QLatin1Char('s');
        return false;
    }

    QString mChanges;
};
} // namespace

class tst_GuidanceMessages : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void startsAndStops();
    void takesTheHostRectangle();
    void showsSteps();
    void sendsThePressedButton();
    void guardsMessagesBeforeTheStart();
    void ignoresMessages_data();
    void ignoresMessages();
    void decidesWhatIsSeen_data();
    void decidesWhatIsSeen();
    void bringsTheWindowsToTheTop();
    void hidesWithDelay();
    void showsTheEditorTooltip();
    void tracksTheWindowStack();
    void tracksPositions();
    void tellsOfANewPlace();

private:
    void start()
    {
        mManager->receive("start|0|0|800|600");
        mManager->receive("indicator|update|100|200|MainWindow|Hint|7|3");
    }
};

void tst_GuidanceMessages::startsAndStops()
{
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    mManager->receive("stop");
    QVERIFY(!findWindow<TutorialIndicator>() && !findWindow<TutorialLog>());
    mManager->receive("windowStack|push|A");
    mManager->receive("start");
    QVERIFY(mManager->isGuidanceRunning());
    QCOMPARE(keyChanged.size(), 2);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(seen(), QStringLiteral("tl"));
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->receive("indicator|update|1|2|A|Hint|7|0");
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // A second one while it runs changes the rectangle alone.
    mManager->receive("windowStack|push|B");
    findWindow<TutorialTooltip>()->hide();
    mManager->receive("start|1|2|3|4");
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(seen(), QStringLiteral("nyol"));
    QCOMPARE(mManager->hostRect(), QRect(1, 2, 3, 4));

    mManager->receive("stop");
    QCOMPARE(seen(), QString());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(mManager->hostRect(), QRect(1, 2, 3, 4));
    mManager->receive("start");
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(findWindow<TutorialIndicator>(), indicator);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
}

void tst_GuidanceMessages::takesTheHostRectangle()
{
    QVERIFY(!mManager->hostRect().isValid());
    mManager->receive("start|1|2|3");
    QVERIFY(!mManager->hostRect().isValid());
    QVERIFY(mManager->isGuidanceRunning());
    mManager->receive("start|-10|20|640|480|more");
    QCOMPARE(mManager->hostRect(), QRect(-10, 20, 640, 480));
    mManager->receive("start|x||3.5|");
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 0, 0));
}

void tst_GuidanceMessages::showsSteps()
{
    mManager->receive("start|0|0|800|600");
    TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->receive("indicator|update|-5|6|Key|Hint\"|5|2");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(-5, 6));
    QCOMPARE(indicator->mWindowKey, QStringLiteral("Key"));
    QCOMPARE(indicator->mHint, QStringLiteral("Hint\""));
    QCOMPARE(indicator->mIconType, 2);
    QVERIFY(indicator->mArrowVisible);
    QCOMPARE(seen(), QStringLiteral("tnl"));

    mManager->receive("indicator|update|-9999|-9999|Key||2|x");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(-5, 6));
    QVERIFY(!indicator->mArrowVisible);
    QCOMPARE(indicator->mIconType, 0);
    QCOMPARE(seen(), QStringLiteral("tyol"));

    mManager->receive("indicator|updateXy|70|-80");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(70, -80));
    mManager->receive("indicator|updateXy");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(0, 0));
    mManager->receive("indicator|update");
    QCOMPARE(seen(), QStringLiteral("tl"));
    mManager->receive("indicator|unknown|1|2");
    mManager->receive("indicator");
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(0, 0));
}

void tst_GuidanceMessages::sendsThePressedButton()
{
    start();
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    indicator->mNextButton->click();
    indicator->mYesButton->click();
    indicator->mNoButton->click();
    for (const char *name : { "next", "yes", "no" })
        QCOMPARE(mHost->next(), QStringList{ QLatin1String(name) });
}

void tst_GuidanceMessages::guardsMessagesBeforeTheStart()
{
    for (const char *message : { "indicator|update|1|2|A|Hint|7|0", "indicator|updateXy|1|2", "state|show",
                                 "state|hide", "hideTooltip", "windowStack|pop" })
        mManager->receive(message);
    mManager->tick(3);
    QVERIFY(!findWindow<TutorialIndicator>() && !findWindow<TutorialLog>() && !findWindow<EditorTooltip>());
    // The "hide" was not taken down either.
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
}

void tst_GuidanceMessages::ignoresMessages_data()
{
    QTest::addColumn<QByteArray>("message");
    for (const char *message : { "", "|", "alive", "contents|1|2", "log|append|text", "eventLog|coords|1|2", "Start",
                                 "bye", "unknown|1", "stopped", "windowPosition", "windowPosition||5|6",
                                 "controlPosition||5|6", "windowStack", "windowStack|other|A", "state", "state|other" })
        QTest::addRow("\"%s\"", message) << QByteArray(message);
}

void tst_GuidanceMessages::ignoresMessages()
{
    QFETCH(QByteArray, message);
    start();
    mManager->receive("windowStack|push|A");
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    mManager->receive(message.constData());
    mManager->tick();
    QCOMPARE(keyChanged.size(), 0);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(mManager->getXy(QString()), QPoint());
    QVERIFY(mManager->isGuidanceRunning());
    QVERIFY(mHost->silent(*mManager));
}

void tst_GuidanceMessages::decidesWhatIsSeen_data()
{
    QTest::addColumn<bool>("running");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("editorTooltip");
    QTest::addColumn<QString>("expected");

    for (int bits = 0; bits < 16; ++bits) {
        const bool running = bits & 8;
        const bool hidden = bits & 4;
        const bool active = bits & 2;
        const bool tooltip = bits & 1;
        const bool visible = running && (!hidden || active);
        const QString expected = visible ? QStringLiteral("tnyole") : QLatin1String(!running && tooltip ? "e" : "");
        QTest::addRow("%s, host %s, %s, tooltip %s", running ? "running" : "stopped", hidden ? "hidden" : "seen",
                      active ? "active" : "inactive", tooltip ? "seen" : "hidden")
            << running << hidden << active << tooltip << expected;
    }
}

void tst_GuidanceMessages::decidesWhatIsSeen()
{
    QFETCH(bool, running);
    QFETCH(bool, hidden);
    QFETCH(bool, active);
    QFETCH(bool, editorTooltip);
    QFETCH(QString, expected);
    start();
    mManager->receive("showTooltip|text|1|2");
    if (hidden)
        mManager->receive("state|hide");
    if (!running)
        mManager->receive("stop");
    if (!editorTooltip)
        mManager->receive("hideTooltip");
    mManager->onApplicationStateChanged(active ? Qt::ApplicationActive : Qt::ApplicationInactive);
    QCOMPARE(seen(), expected);
    mManager->updateGuidanceVisibility();
    QCOMPARE(seen(), expected);
    // The other states of the application are no news.
    mManager->onApplicationStateChanged(Qt::ApplicationSuspended);
    mManager->onApplicationStateChanged(Qt::ApplicationHidden);
    mManager->updateGuidanceVisibility();
    QCOMPARE(seen(), expected);
}

void tst_GuidanceMessages::bringsTheWindowsToTheTop()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    Visibility tooltip;
    Visibility button;
    findWindow<TutorialTooltip>()->installEventFilter(&tooltip);
    findWindow<TutorialIndicator>()->mNextButton->installEventFilter(&button);
    mManager->receive("state|show");
    QCOMPARE(tooltip.mChanges, QStringLiteral("hs"));
    QCOMPARE(button.mChanges, QStringLiteral("hs"));
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // Once more on the next tick, and then no more.
    findWindow<TutorialLog>()->hide();
    findWindow<TutorialTooltip>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    findWindow<TutorialLog>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyo"));

    mManager->receive("stop");
    mManager->receive("state|show");
    mManager->tick();
    QCOMPARE(seen(), QString());
}

void tst_GuidanceMessages::hidesWithDelay()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    mManager->receive("state|hide");
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->tick();
    QCOMPARE(seen(), QString());
    mManager->receive("state|show");
    QCOMPARE(seen(), QStringLiteral("tnyol"));

    // The activation of this process within the tick keeps them, its loss takes them at once.
    mManager->receive("state|hide");
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    mManager->tick(2);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QString());
}

void tst_GuidanceMessages::showsTheEditorTooltip()
{
    mManager->receive("hideTooltip");
    mManager->receive("showTooltip|text|300|400");
    QCOMPARE(seen(), QStringLiteral("e"));
    EditorTooltip *tooltip = findWindow<EditorTooltip>();
    mManager->receive("hideTooltip");
    QCOMPARE(seen(), QString());
    mManager->receive("showTooltip");
    QCOMPARE(findWindow<EditorTooltip>(), tooltip);
    QCOMPARE(seen(), QStringLiteral("e"));

    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    tooltip->close();
    tooltip->close();
    mManager->receive("hideTooltip");
    mManager->receive("showTooltip|text|1|2");
    tooltip->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mManager->receive("showTooltip|text|1|2");
    QCOMPARE(seen(), QStringLiteral("e"));
}

void tst_GuidanceMessages::tracksTheWindowStack()
{
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    const auto top = [this] { return mManager->getCurrentWindowKey(); };
    QCOMPARE(top(), QStringLiteral("ApplicationWindow"));
    mManager->receive("windowStack|pop");
    mManager->dropPopupWindowKey();
    QCOMPARE(keyChanged.size(), 0);
    for (const char *message : { "windowStack|push|Popup", "windowStack|push|A", "windowStack|push|A" })
        mManager->receive(message);
    mManager->dropPopupWindowKey();
    QCOMPARE(keyChanged.size(), 3);
    QCOMPARE(mManager->property("currentWindowKey").toString(), QStringLiteral("A"));
    for (int i = 0; i < 2; ++i)
        mManager->receive("windowStack|pop");
    QCOMPARE(top(), QStringLiteral("Popup"));
    mManager->receive("windowStack|push|Popup");
    mManager->dropPopupWindowKey();
    QCOMPARE(top(), QStringLiteral("Popup"));
    mManager->dropPopupWindowKey();
    QCOMPARE(top(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(keyChanged.size(), 8);
    mManager->receive("windowStack|push");
    QCOMPARE(top(), QString());
}

void tst_GuidanceMessages::tracksPositions()
{
    const auto xy = [this](const char *key) { return mManager->getXy(QString::fromUtf8(key)); };
    QCOMPARE(xy("A"), QPoint(0, 0));
    mManager->receive("windowPosition|A|-5|6");
    mManager->receive("controlPosition|A|7|x");
    mManager->receive("controlPosition|B|1");
    QCOMPARE(xy("A"), QPoint(7, 0));
    QCOMPARE(xy("B"), QPoint(1, 0));
    QCOMPARE(xy("a"), QPoint(0, 0));
}

void tst_GuidanceMessages::tellsOfANewPlace()
{
    mManager->updateIndicatorXyWindowKey(-3, 4, QStringLiteral("%1"));
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("indicator|updateXYWindowKey|-3|4|%1"));
    mManager->receive("start");
    mManager->receive("indicator|update|1|2|A|Hint|0|0");
    TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    mManager->updateIndicatorXyWindowKey(8, 9, QStringLiteral("B"));
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(8, 9));
    QCOMPARE(indicator->mWindowKey, QStringLiteral("B"));
    QVERIFY(!indicator->mArrowVisible);
    indicator->mArrowVisible = true;
    mManager->updateIndicatorXyWindowKey(8, 9, QStringLiteral("B"));
    QVERIFY(indicator->mArrowVisible);
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    tst_GuidanceMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuidanceMessages.moc"
