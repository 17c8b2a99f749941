#include "support/ManagerFixture.h"
#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialTooltip.h"

#include <QPushButton>
#include <QTextEdit>
#include <QTextFrame>

namespace
{
template <typename Window>
Window *find()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *found = qobject_cast<Window *>(window))
            return found;
    }
    return nullptr;
}

/// The windows that can be seen, by their label or class.
QString seen()
{
    QStringList names;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        const auto *button = qobject_cast<const QPushButton *>(window);
        const QString name = QString::fromLatin1(window->metaObject()->className()).remove(QLatin1String("Tutorial"));
        if (window->isVisible())
            names += button ? button->text() : name;
    }
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// Drives an object's timer by hand.
void tick(QObject *object, int times = 1)
{
    QTimerEvent event(0);
    while (times-- > 0)
        QCoreApplication::sendEvent(object, &event);
}
} // namespace

/// The windows of the guidance, driven by the messages that the manager gets.
class tst_GuidanceWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mManager = std::make_unique<ManagerFixture::Manager>(); }
    void cleanup() { mManager.reset(); }

    void comeAndGo();
    void aimAtTheTarget();
    void buttonsFollowTheHeightAtRest();
    void closedTooltipIsMadeAnew();
    void closeLetsEverythingGo();
    void hugeTextsAreCut();
    void textsAreShownWhole();
    void editorTooltipFades();
    void editorTooltipIsCentred();

private:
    TutorialIndicator *start()
    {
        mManager->receive({ "start|0|0|1000|700" });
        return find<TutorialIndicator>();
    }
    EditorTooltip *showTooltip(const QString &text, int x, int y)
    {
        mManager->onReceived(HostMessages::message(HostMessages::FromHost::kShowTooltip, text, x, y));
        return find<EditorTooltip>();
    }

    std::unique_ptr<ManagerFixture::Manager> mManager;
};

void tst_GuidanceWindows::comeAndGo()
{
    const char *const step = "Log Next No Tooltip Yes";
    const char *const all = "EditorTooltip Log Next No Tooltip Yes";
    const char *const rows[][2] = {
        // Before the first start there is nothing to act upon.
        { "indicator|update|1|2|A|Hint|7|0", "" },
        { "indicator|updateXy|1|2", "" },
        { "state|show", "" },
        { "state|hide", "" },
        { "tick", "" },
        { "hideTooltip", "" },
        { "start", "Log Tooltip" },
        { "indicator|update|1|2|A|Hint|3|0", step },
        // What nobody knows changes nothing.
        { "", step },
        { "stopped", step },
        { "bye", step },
        { "indicator", step },
        { "indicator|other|1|2|A|Hint|0|0", step },
        { "stop", "" },
        { "start|x||3.5|", step },
        { "indicator|update", "Log Tooltip" },
        { "indicator|update|1|2|A|Hint|3|0", step },
        { "showTooltip|text|1|2", all },
        { "inactive", all },
        { "state|hide", all },
        { "tick", "" },
        { "active", all },
        { "inactive", "" },
        { "state|show", all },
        { "hideTooltip", step },
        { "tick", all },
        // A tip needs no tutorial.
        { "stop", "EditorTooltip" },
    };
    for (const auto &row : rows) {
        const QByteArray event = row[0];
        if (event == "tick")
            mManager->tick();
        else if (event.endsWith("active"))
            mManager->onApplicationStateChanged(event == "active" ? Qt::ApplicationActive : Qt::ApplicationInactive);
        else
            mManager->receive({ row[0] });
        QVERIFY2(seen() == QLatin1String(row[1]), QByteArray(event + ": " + seen().toLatin1()));
    }
    mManager->onApplicationStateChanged(Qt::ApplicationSuspended);

    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    EditorTooltip *tooltip = find<EditorTooltip>();
    tooltip->close();
    tooltip->close();
    tick(tooltip, 200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mManager->receive({ "hideTooltip", "showTooltip|text|1|2" });
    QCOMPARE(seen(), QStringLiteral("EditorTooltip"));
}

void tst_GuidanceWindows::aimAtTheTarget()
{
    const TutorialIndicator &indicator = *start();
    const auto aimsAt = [&](int x, int y, bool arrow) {
        return indicator.mTargetX == x && indicator.mTargetY == y && indicator.mArrowVisible == arrow;
    };
    mManager->receive({ "indicator|update|-300|200|A|Hint|4|3" });
    QVERIFY(aimsAt(-300, 200, true));
    mManager->updateIndicatorXyWindowKey(5, 6, QStringLiteral("A"));
    QVERIFY(aimsAt(5, 6, true));
    // A step without a target has no arrow either.
    mManager->receive({ "indicator|update|-9999|-9999|A|Hint|4|3" });
    QVERIFY(aimsAt(5, 6, false));
    mManager->receive({ "indicator|updateXy|-9999|-9999" });
    QVERIFY(aimsAt(-9999, -9999, false));

    // The rectangle needs all of its numbers, and comes also while the guidance runs.
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 1000, 700));
    mManager->receive({ "start|-1|2|3|4|more", "start|5|6|7" });
    QCOMPARE(mManager->hostRect(), QRect(-1, 2, 3, 4));
}

void tst_GuidanceWindows::buttonsFollowTheHeightAtRest()
{
    TutorialIndicator *indicator = start();
    mManager->receive({ "indicator|update|300|200|A|Hint|7|0" });
    tick(indicator, 60);
    // The window moves by one pixel at the same time, which must not hide that the height has changed.
    mManager->receive({ "indicator|update|300|201|A|one\ntwo\nthree\nfour\nfive\nsix\nseven|7|0" });
    tick(indicator);
    const QPoint place(indicator->mCurrentX, indicator->mCurrentY);
    const int below = place.y() + 56 + indicator->mHintHeight;
    QVERIFY(indicator->mHintHeight > 64);
    QCOMPARE(indicator->mTooltip->pos(), place);
    QCOMPARE(indicator->mNextButton->pos(), QPoint(place.x() + 128, below));
    QCOMPARE(indicator->mNoButton->pos(), QPoint(place.x() + 184, below));
}

void tst_GuidanceWindows::closedTooltipIsMadeAnew()
{
    TutorialIndicator *indicator = start();
    const QString hint = QStringLiteral("C:\\new <b>\"A\" & &lt;\nsecond");
    indicator->setHint(hint);
    QCOMPARE(indicator->mTooltip->mTextEdit->toPlainText(), hint);
    const QPointer<TutorialTooltip> closed = indicator->mTooltip;
    closed->close();
    mManager->receive({ "stop" });
    tick(indicator);
    QVERIFY(!indicator->mTooltip);
    mManager->receive({ "start" });
    tick(indicator);
    QVERIFY(!closed && indicator->mTooltip && indicator->mTooltip->isVisible());
    QVERIFY(indicator->mTooltip->mTextEdit->toPlainText().contains(QLatin1String("second")));
}

void tst_GuidanceWindows::closeLetsEverythingGo()
{
    TutorialIndicator *indicator = start();
    mManager->receive({ "indicator|update|1|2|A|Hint|7|0" });
    indicator->close();
    QCOMPARE(seen(), QStringLiteral("Log"));
    QVERIFY(!indicator->mTooltip && !indicator->mNextButton && !indicator->mYesButton && !indicator->mNoButton);
    QCOMPARE(indicator->mTimerId, 0);
    mManager->receive({ "state|show", "stop" });
    tick(indicator, 2);
    mManager->receive({ "start", "indicator|update|1|2|A|Hint|7|0" });
    QCOMPARE(seen(), QStringLiteral("Log Tooltip"));
}

// Texts whose whole layout would take seconds, or no end.
void tst_GuidanceWindows::hugeTextsAreCut()
{
    const int size = 5 << 20;
    const QString rows = QStringLiteral("<tr><td>x</td></tr>").repeated(size / 19);
    TutorialIndicator *indicator = start();
    for (const QString &text :
         { QString(size, QLatin1Char('x')), QString(size, QLatin1Char('\n')),
           QString(QLatin1Char('a') + QString::fromUtf8("\U0001F600").repeated(size / 2)),
           QStringLiteral("<b>x</b>").repeated(size / 8), QString(QLatin1String("<table>") + rows),
           QStringLiteral("<table><tr><td>").repeated(200) }) {
        indicator->setHint(text);
        tick(indicator);
        // Of the rest nothing is laid out.
        for (const QTextEdit *textEdit : { indicator->mTooltip->mTextEdit, showTooltip(text, 100, 100)->mTextEdit }) {
            QVERIFY2(textEdit->document()->characterCount() < 20000, qPrintable(text.left(20)));
            QVERIFY(!textEdit->toPlainText().contains(QChar::ReplacementCharacter));
        }
    }
}

// What has an end is not measured by its source.
void tst_GuidanceWindows::textsAreShownWhole()
{
    const QString hint = QStringLiteral("word & line\n").repeated(1000);
    TutorialIndicator *indicator = start();
    indicator->setHint(hint);
    QCOMPARE(indicator->mTooltip->mTextEdit->toPlainText(), hint);

    const QString picture = QStringLiteral("before<img src=\"data:image/png;base64,%1\">after");
    const QString tables = QStringLiteral("<table><tr><td>cell</td></tr></table>").repeated(9);
    const EditorTooltip *tooltip = showTooltip(picture.arg(QString(100000, QLatin1Char('A'))) + tables, 100, 100);
    const QString shown = tooltip->mTextEdit->toPlainText();
    QVERIFY(shown.startsWith(QLatin1String("before")) && shown.contains(QLatin1String("after")));
    QVERIFY(tooltip->mTextEdit->document()->rootFrame()->childFrames().size() >= 9);
}

void tst_GuidanceWindows::editorTooltipFades()
{
    // The ticks, and the opacity after them in parts of 25.
    const int phases[][2] = {
        { 100, 0 }, { 1, 1 }, { 23, 24 }, { 1, 25 }, { 500, 25 }, { 1, 24 }, { 23, 1 }, { 1, 0 }
    };
    // A text that comes while another one is there starts from the beginning.
    for (const int last : { 5, 8 }) {
        EditorTooltip *tooltip = showTooltip(QStringLiteral("text"), 100, 100);
        for (int i = 0; i < last; ++i) {
            tick(tooltip, phases[i][0]);
            QCOMPARE(qRound(tooltip->windowOpacity() * 25), phases[i][1]);
            tooltip->hide(); // the counters stand still
            tick(tooltip, 50);
            tooltip->setVisible(true);
        }
    }
}

void tst_GuidanceWindows::editorTooltipIsCentred()
{
    for (const QString &text : { QStringLiteral("<b>a</b><br>b"), QStringLiteral("word ").repeated(40) }) {
        const EditorTooltip &tooltip = *showTooltip(text, -50, 300);
        const QSize size = tooltip.mTextEdit->size();
        const QSizeF laidOut = tooltip.mTextEdit->document()->size();
        QCOMPARE(size, QSize(int(laidOut.width()), int(laidOut.height())));
        QCOMPARE(tooltip.pos(), QPoint(-50 - size.width() / 2, 300 - size.height() / 2));
    }
    QVERIFY(showTooltip(QString(), 10, 10)->mTextEdit->isHidden());
    QCOMPARE(seen(), QStringLiteral("EditorTooltip"));
}

int main(int argc, char *argv[])
{
    const ManagerFixture::Application application(argv[0]);
    tst_GuidanceWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuidanceWindows.moc"
