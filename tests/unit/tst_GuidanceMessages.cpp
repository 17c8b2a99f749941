#include "support/ManagerFixture.h"
#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialLog.h"
#include "Tutorial/guidance/TutorialTooltip.h"

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
    void ignoresMessages();
    void decidesWhatIsSeen();
    void hidesWithDelay();
    void forgetsAClosedEditorTooltip();

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

    // A second one while it runs changes the rectangle alone.
    receive({ "indicator|update|1|2|A|Hint|7|0", "windowStack|pop", "windowStack|push|A", "windowStack|push|B",
              "windowStack|push|A", "windowStack|pop", "start|-1|2|3|4|more" });
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("B"));
    QCOMPARE(mManager->hostRect(), QRect(-1, 2, 3, 4));

    receive({ "stop" });
    QCOMPARE(seen(), QString());
    receive({ "start|x||3.5|" });
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 0, 0));
    receive({ "indicator|update", "indicator|unknown|1|2", "indicator" });
    QCOMPARE(seen(), QStringLiteral("tl"));
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

void tst_GuidanceMessages::hidesWithDelay()
{
    start();
    mManager->onApplicationStateChanged(Qt::ApplicationInactive);
    receive({ "state|hide" });
    QCOMPARE(seen(), QStringLiteral("tnyol"));
    mManager->tick();
    QCOMPARE(seen(), QString());

    // The activation of this process within the tick keeps them.
    receive({ "state|show", "state|hide" });
    mManager->onApplicationStateChanged(Qt::ApplicationActive);
    mManager->tick(2);
    QCOMPARE(seen(), QStringLiteral("tnyol"));
}

void tst_GuidanceMessages::forgetsAClosedEditorTooltip()
{
    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    receive({ "hideTooltip", "showTooltip" });
    EditorTooltip *tooltip = findWindow<EditorTooltip>();
    tooltip->close();
    tooltip->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    receive({ "hideTooltip", "showTooltip|text|1|2" });
    QCOMPARE(seen(), QStringLiteral("e"));
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    tst_GuidanceMessages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuidanceMessages.moc"
