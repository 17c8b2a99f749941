#include "check/HintSizes.h"
#include "support/ManagerFixture.h"
#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialTooltip.h"

#include <QPushButton>
#include <QTextEdit>
#include <QTextFrame>
#include <QWindow>

#include <functional>

using namespace HostMessages;
using namespace HostMessages::FromHost;
using namespace ManagerFixture;

namespace
{
const QString kTick = QStringLiteral("tick");
const QString kActive = QStringLiteral("active");
const QString kInactive = QStringLiteral("inactive");

const QString kHint = QStringLiteral("Hint");
const QString kWindow = QStringLiteral("Window");
const QString kAllButtons = stepMessage({ 1, 2, kWindow, kHint, true, true, false, 0 });

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

/// Notes each time that a window is shown ("s") or hidden ("h"), and lets something happen then.
class Watcher : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        const bool shown = event->type() == QEvent::Show;
        if (shown || event->type() == QEvent::Hide) {
            mSeen += QLatin1Char(shown ? 's' : 'h');
            mAfter();
        }
        return false;
    }

    QString mSeen;
    std::function<void()> mAfter;
};
} // namespace

/// The windows of the guidance, driven by the messages that the manager gets.
class tst_GuidanceWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mManager = std::make_unique<Manager>(); }
    void cleanup() { mManager.reset(); }

    void comeAndGo();
    void followWhatTheirShowingChanges();
    void buttonsFollowTheHeightAtRest();
    void hintSizesAreThoseOfTheScreen();
    void closedTooltipIsMadeAnew();
    void hugeTextsAreCut();
    void editorTooltipFades();
    void messagesLeaveNothing();

private:
    TutorialIndicator *start()
    {
        mManager->onReceived(startMessage(QRect(0, 0, 1000, 700)));
        return find<TutorialIndicator>();
    }
    EditorTooltip *showTooltip(const QString &text, int x, int y)
    {
        mManager->receive(kShowTooltip, text, x, y);
        return find<EditorTooltip>();
    }
    void happens(const QString &event)
    {
        if (event == kTick)
            mManager->tick();
        else if (event == kActive || event == kInactive)
            mManager->onApplicationStateChanged(event == kActive ? Qt::ApplicationActive : Qt::ApplicationInactive);
        else
            mManager->onReceived(event);
    }

    std::unique_ptr<Manager> mManager;
};

void tst_GuidanceWindows::comeAndGo()
{
    const QString tip = message(kShowTooltip, QStringLiteral("text"), 1, 2);
    const char *const step = "Log Next No Tooltip Yes";
    const char *const all = "EditorTooltip Log Next No Tooltip Yes";
    const QVector<QPair<QString, const char *>> rows = {
        // Before the first start there is nothing to act upon.
        { kAllButtons, "" },
        { message(kState, kShow), "" },
        { kHideTooltip, "" },
        { kStart, "Log Tooltip" },
        { kAllButtons, step },
        // What nobody knows changes nothing.
        { message(kIndicator, kShow), step },
        { kStop, "" },
        { message(kStart, kWindow), step },
        { message(kIndicator, kUpdate), "Log Tooltip" },
        { stepMessage({ 1, 2, kWindow, kHint, true, false, false, 0 }), "Log Next Tooltip" },
        { stepMessage({ 1, 2, kWindow, kHint, false, true, false, 0 }), "Log No Tooltip Yes" },
        { kAllButtons, step },
        { tip, all },
        { kInactive, all },
        { message(kState, kHide), all },
        { kTick, "" },
        { kActive, all },
        { kInactive, "" },
        { message(kState, kShow), all },
        { kHideTooltip, step },
        { kTick, all },
        // A tip needs no tutorial.
        { kStop, "EditorTooltip" },
    };
    for (const auto &row : rows) {
        happens(row.first);
        QVERIFY2(seen() == QLatin1String(row.second), qPrintable(row.first + QLatin1String(": ") + seen()));
    }
    mManager->onApplicationStateChanged(Qt::ApplicationSuspended);

    // Closed twice before it is freed, it is forgotten once, and the next one is new.
    EditorTooltip *tooltip = find<EditorTooltip>();
    tooltip->close();
    tooltip->close();
    tick(tooltip, 200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    happens(kHideTooltip);
    happens(tip);
    QCOMPARE(seen(), QStringLiteral("EditorTooltip"));
}

// A window that is shown or hidden can change the activation at once.
void tst_GuidanceWindows::followWhatTheirShowingChanges()
{
    const QString all = QStringLiteral("Log Next No Tooltip Yes");
    const QString hide = message(kState, kHide);
    // What comes before, what happens, what each showing and hiding brings, the window of the hint, all windows.
    const QVector<QPair<QStringList, QStringList>> rows = {
        { { hide }, { kInactive, kActive, QStringLiteral("hs"), all } },
        { { hide, kTick }, { kActive, kInactive, QStringLiteral("sh"), QString() } },
        { { hide, kTick }, { kActive, kStop, QStringLiteral("sh"), QString() } },
        // Hidden and shown, they come to stand above the host editor's windows.
        { {}, { message(kState, kShow), kInactive, QStringLiteral("hs"), all } },
    };
    for (const auto &row : rows) {
        for (const QString &event : QStringList{ kInactive, message(kState, kShow), kStart, kAllButtons } + row.first)
            happens(event);
        Watcher watcher;
        watcher.mAfter = [&] { happens(row.second.at(1)); };
        find<TutorialTooltip>()->windowHandle()->installEventFilter(&watcher);
        happens(row.second.at(0));
        QCOMPARE(QStringList(row.second.mid(0, 2)) << watcher.mSeen << seen(), row.second);
    }
}

void tst_GuidanceWindows::buttonsFollowTheHeightAtRest()
{
    TutorialIndicator *indicator = start();
    const auto show = [this](int y, const QString &hint) {
        happens(stepMessage({ 300, y, kWindow, hint, true, true, true, 0 }));
    };
    show(200, kHint);
    tick(indicator, 60);
    // The window moves by one pixel at the same time, which must not hide that the height has changed.
    show(201, QStringLiteral("line\n").repeated(7));
    tick(indicator);
    const QPoint place(indicator->mCurrentX, indicator->mCurrentY);
    const int below = place.y() + 56 + indicator->mHintHeight;
    QVERIFY(indicator->mHintHeight > 64);
    QCOMPARE(indicator->mTooltip->pos(), place);
    QCOMPARE(indicator->mNextButton->pos(), QPoint(place.x() + 128, below));
    QCOMPARE(indicator->mNoButton->pos(), QPoint(place.x() + 184, below));
}

void tst_GuidanceWindows::hintSizesAreThoseOfTheScreen()
{
    TutorialIndicator *indicator = start();
    QStringList hints{ QStringLiteral("a"), QStringLiteral("<b> & \\ \"\n\n漢字"), QString(300, QLatin1Char('w')),
                       QStringLiteral("line\n").repeated(30), QStringLiteral("some words ").repeated(90) };
    HintSizes sizes;
    sizes.measure(hints);
    for (const QString &hint : qAsConst(hints)) {
        indicator->setHint(hint);
        tick(indicator);
        QCOMPARE(sizes.height(hint), indicator->mHintHeight);
    }
}

void tst_GuidanceWindows::closedTooltipIsMadeAnew()
{
    TutorialIndicator *indicator = start();
    indicator->setHint(kHint);
    const QPointer<TutorialTooltip> closed = indicator->mTooltip;
    closed->close();
    happens(kStop);
    tick(indicator);
    QVERIFY(!indicator->mTooltip);
    happens(kStart);
    tick(indicator);
    QVERIFY(!closed && indicator->mTooltip && indicator->mTooltip->isVisible());
    QCOMPARE(indicator->mTooltip->mTextEdit->toPlainText(), kHint);
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
            QVERIFY2(textEdit->width() < 10000 && textEdit->height() < 5000, qPrintable(text.left(20)));
        }
        // All of it is centred.
        const EditorTooltip *tip = find<EditorTooltip>();
        const QSize size = tip->mTextEdit->document()->size().toSize();
        QCOMPARE(tip->pos(), QPoint(100 - size.width() / 2, 100 - size.height() / 2));
    }

    // What has an end is not measured by its source.
    const QString hint = QStringLiteral("C:\\new <b>\"A\" & &lt;\n").repeated(500);
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

/// However many messages have come, there are as many objects as after the first of them, and as many timers.
void tst_GuidanceWindows::messagesLeaveNothing()
{
    const QString locales[] = { QStringLiteral("en_US"), QStringLiteral("en_US_none"), kStandardLocale,
                                QStringLiteral("none") };
    const auto count = [&](int rounds) {
        for (int i = 0; i < rounds; ++i) {
            start();
            for (const QString &event :
                 { kAllButtons, message(kShowTooltip, kHint, 1, 2), message(kState, kHide), kTick,
                   message(kState, kShow), message(kWindowStack, kPush, kWindow), message(kWindowStack, kPop),
                   message(kWindowPosition, kWindow, i, i), message(kTutorialList),
                   message(kFromServer, locales[i % 4]), message(kTutorial, QStringLiteral("TutorialSideViewStep0")),
                   QString(kHideTooltip), QString(kStop) })
                happens(event);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QObjectList objects = qApp->findChildren<QObject *>() + mManager->findChildren<QObject *>();
        for (QWidget *window : QApplication::topLevelWidgets())
            objects += window->findChildren<QObject *>() << window;
        int timers = 0;
        for (QObject *object : objects)
            timers += QAbstractEventDispatcher::instance()->registeredTimers(object).size();
        return qMakePair(objects.size(), timers);
    };
    const auto first = count(4);
    QCOMPARE(count(12), first);
}

MANAGER_TEST_MAIN(tst_GuidanceWindows)
#include "tst_GuidanceWindows.moc"
