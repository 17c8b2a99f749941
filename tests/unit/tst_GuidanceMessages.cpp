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
    const auto *indicator = findWindow<TutorialIndicator>();
    const QWidget *const windows[] = { findWindow<TutorialTooltip>(),
                                       indicator ? indicator->mNextButton : nullptr,
                                       indicator ? indicator->mYesButton : nullptr,
                                       indicator ? indicator->mNoButton : nullptr,
                                       findWindow<TutorialLog>(),
                                       findWindow<EditorTooltip>() };
    QString letters;
    for (int i = 0; i < 6; ++i) {
        if (windows[i] && windows[i]->isVisible())
            letters += QLatin1Char("tnyole"[i]);
    }
    return letters;
}
} // namespace

class tst_GuidanceMessages : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void startsAndStops();
    void showsSteps();
    void ignoresMessages();
    void decidesWhatIsSeen();
    void bringsTheWindowsToTheTop();
    void hidesWithDelay();
    void forgetsAClosedEditorTooltip();
    void tracksTheWindowStack();
    void tellsOfANewPlace();

private:
    void receive(std::initializer_list<const char *> messages)
    {
        for (const char *message : messages)
            mManager->receive(message);
    }
    void start() { receive({ "start|0|0|800|600", "indicator|update|100|200|MainWindow|Hint|7|3" }); }
};

void tst_GuidanceMessages::startsAndStops()
{
    receive({ "stop", "windowStack|push|A", "start|1|2|3" });
    QVERIFY(!mManager->hostRect().isValid());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(seen(), QStringLiteral("tl"));
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();

    // A second one while it runs changes the rectangle alone.
    receive({ "indicator|update|1|2|A|Hint|7|0", "windowStack|push|B", "start|-1|2|3|4|more" });
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(mManager->hostRect(), QRect(-1, 2, 3, 4));

    receive({ "stop" });
    QCOMPARE(seen(), QString());
    receive({ "start|x||3.5|" });
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(findWindow<TutorialIndicator>(), indicator);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 0, 0));
}

void tst_GuidanceMessages::showsSteps()
{
    start();
    const TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    const auto target = [indicator] { return QPoint(indicator->mTargetX, indicator->mTargetY); };
    receive({ "indicator|update|-5|6|Key|Hint\"|5|2" });
    QCOMPARE(target(), QPoint(-5, 6));
    QCOMPARE(indicator->mWindowKey + indicator->mHint, QStringLiteral("KeyHint\""));
    QCOMPARE(indicator->mIconType, 2);
    QVERIFY(indicator->mArrowVisible);
    QCOMPARE(seen(), QStringLiteral("tnl"));
    receive({ "indicator|update|-9999|-9999|Key||2|x" });
    QCOMPARE(target(), QPoint(-5, 6));
    QVERIFY(!indicator->mArrowVisible);
    QCOMPARE(seen(), QStringLiteral("tyol"));
    receive({ "indicator|updateXy|70|-80" });
    QCOMPARE(target(), QPoint(70, -80));
    receive({ "indicator|update", "indicator|unknown|1|2", "indicator" });
    QCOMPARE(target(), QPoint(0, 0));
    QCOMPARE(seen(), QStringLiteral("tl"));

    indicator->mYesButton->click();
    QCOMPARE(mHost->next(), QStringList{ QStringLiteral("yes") });
}

void tst_GuidanceMessages::ignoresMessages()
{
    // Before the start there is nothing to act upon.
    receive({ "indicator|update|1|2|A|Hint|7|0", "indicator|updateXy|1|2", "state|show", "state|hide", "hideTooltip" });
    mManager->tick(3);
    QVERIFY(!findWindow<TutorialIndicator>() && !findWindow<EditorTooltip>());
    start();
    receive({ "", "|", "contents|1|2", "Start", "bye", "stopped", "windowPosition", "windowPosition||5|6",
              "controlPosition||5|6", "windowStack", "windowStack|other|A", "state", "state|other" });
    mManager->tick();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(mManager->getXy(QString()), QPoint());
    QVERIFY(mHost->silent(*mManager));
}

void tst_GuidanceMessages::decidesWhatIsSeen()
{
    for (int bits = 0; bits < 16; ++bits) {
        const bool running = bits & 8;
        const bool hidden = bits & 4;
        const bool active = bits & 2;
        const bool tooltip = bits & 1;
        start();
        receive({ "state|show", "showTooltip|text|1|2", hidden ? "state|hide" : "", running ? "" : "stop",
                  tooltip ? "" : "hideTooltip" });
        mManager->onApplicationStateChanged(active ? Qt::ApplicationActive : Qt::ApplicationInactive);
        const QString whenStopped = QLatin1String(!running && tooltip ? "e" : "");
        const QString expected = running && (!hidden || active) ? QStringLiteral("tnyole") : whenStopped;
        QVERIFY2(seen() == expected, qPrintable(QString::number(bits, 2)));
    }
}

void tst_GuidanceMessages::bringsTheWindowsToTheTop()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    receive({ "state|show" });
    // Once more on the next tick, and then no more.
    findWindow<TutorialLog>()->hide();
    findWindow<TutorialTooltip>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    findWindow<TutorialLog>()->hide();
    mManager->tick();
    QCOMPARE(seen(), QStringLiteral("tnyo"));
}

void tst_GuidanceMessages::hidesWithDelay()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    receive({ "state|hide" });
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->tick();
    QCOMPARE(seen(), QString());

    // The activation of this process within the tick keeps them, its loss takes them at once.
    receive({ "state|show", "state|hide" });
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    mManager->tick(2);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    QCOMPARE(seen(), QString());
}

void tst_GuidanceMessages::forgetsAClosedEditorTooltip()
{
    receive({ "hideTooltip", "showTooltip" });
    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    EditorTooltip *tooltip = findWindow<EditorTooltip>();
    tooltip->close();
    tooltip->close();
    receive({ "hideTooltip", "showTooltip|text|1|2" });
    tooltip->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    receive({ "showTooltip|text|1|2" });
    QCOMPARE(seen(), QStringLiteral("e"));
}

void tst_GuidanceMessages::tracksTheWindowStack()
{
    QSignalSpy keyChanged(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    receive({ "windowStack|pop", "windowStack|push|Popup", "windowStack|push|A", "windowStack|push|A" });
    mManager->dropPopupWindowKey();
    QCOMPARE(keyChanged.size(), 3);
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("A"));
    receive({ "windowStack|pop", "windowStack|pop", "windowStack|push|Popup" });
    mManager->dropPopupWindowKey();
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("Popup"));
    mManager->dropPopupWindowKey();
    mManager->dropPopupWindowKey();
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(keyChanged.size(), 8);
}

void tst_GuidanceMessages::tellsOfANewPlace()
{
    receive({ "start", "indicator|update|1|2|A|Hint|0|0", "windowPosition|A|-5|6", "controlPosition|A|7|x" });
    QCOMPARE(mManager->getXy(QStringLiteral("A")), QPoint(7, 0));
    mManager->updateIndicatorXyWindowKey(-3, 4, QStringLiteral("%1"));
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("indicator|updateXYWindowKey|-3|4|%1"));
    TutorialIndicator *indicator = findWindow<TutorialIndicator>();
    QCOMPARE(QPoint(indicator->mTargetX, indicator->mTargetY), QPoint(-3, 4));
    QVERIFY(indicator->mWindowKey == QLatin1String("%1") && !indicator->mArrowVisible);
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    tst_GuidanceMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuidanceMessages.moc"
