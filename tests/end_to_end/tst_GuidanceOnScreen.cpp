#include "Neighbour.h"
#include "ScreenWindows.h"

#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/GuidanceContext.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialLog.h"
#include "Tutorial/guidance/TutorialTooltip.h"

#include <QApplication>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

#include <algorithm>
#include <memory>

namespace
{
const QRect kHostRect(0, 0, 1000, 700);

/// The manager's part in showing and hiding the windows, without a link.
class Guidance : public GuidanceContext
{
public:
    void sendMessage(const QString &text) override { mSent.append(text); }
    void dropPopupWindowKey() override { }
    QRect hostRect() const override { return kHostRect; }
    bool isGuidanceRunning() const override { return true; }
    void editorTooltipClosed() override { }

    void updateGuidanceVisibility() override
    {
        if (mLog)
            mLog->show();
        if (!mIndicator)
            return;
        mIndicator->mTooltip->show();
        mIndicator->showButtons();
        if (mEditorTooltip)
            mEditorTooltip->setVisible(true);
    }

    void start()
    {
        mLog = std::make_unique<TutorialLog>(nullptr, this);
        mIndicator = std::make_unique<TutorialIndicator>(nullptr, this);
    }

    void update(const QPoint &target, const QString &hint, int flags, int icon)
    {
        mIndicator->setTargetWindowOffset(target.x(), target.y(), QString(), flags & 4);
        mIndicator->setHint(hint);
        mIndicator->init(flags & 1, flags & 2);
        mIndicator->mIconType = icon;
        mIndicator->mTooltip->show();
    }

    void hide()
    {
        mLog->hide();
        mIndicator->mTooltip->hide();
        mIndicator->hideButtons();
        if (mEditorTooltip)
            mEditorTooltip->hide();
    }

    /// All but the log window: without a size it never comes to the screen.
    QVector<QWidget *> windows() const
    {
        return { mEditorTooltip.get(), mIndicator->mTooltip, mIndicator->mNextButton, mIndicator->mYesButton,
                 mIndicator->mNoButton };
    }

    QStringList mSent;
    std::unique_ptr<TutorialLog> mLog;
    std::unique_ptr<TutorialIndicator> mIndicator;
    std::unique_ptr<EditorTooltip> mEditorTooltip;
};

QPoint windowPlace(const TutorialIndicator &indicator)
{
    return { indicator.mCurrentX, indicator.mCurrentY };
}

/// Runs xdotool to its end while the windows of this process go on living.
bool xdotool(const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral("xdotool"), arguments);
    return QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 60000)
        && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool isAbove(WId window, const Neighbour &other)
{
    return ScreenWindows::isKeptAbove(window)
        && ScreenWindows::stackingPlace(window) > ScreenWindows::stackingPlace(other.window().toULongLong());
}

bool click(const QPoint &point)
{
    return xdotool({ QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y()),
                     QStringLiteral("click"), QStringLiteral("1") });
}
} // namespace

/// The guidance windows over the window of a second application, with real keys and clicks.
class tst_GuidanceOnScreen : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Neighbour> mNeighbour;
    std::unique_ptr<Guidance> mGuidance;

    bool moveTo(const QPoint &target, int flags)
    {
        mGuidance->update(target, QStringLiteral("Click the button."), flags, 0);
        const QPoint rest = mGuidance->mIndicator->mFlipHorizontal ? target - QPoint(308, 0) : target;
        return QTest::qWaitFor([&] {
            return !mGuidance->mIndicator->mHintChanged
                && (windowPlace(*mGuidance->mIndicator) - rest).manhattanLength() <= 6;
        });
    }

private Q_SLOTS:
    void init()
    {
        mNeighbour = std::make_unique<Neighbour>();
        QTRY_VERIFY(!mNeighbour->window().isEmpty());
        mGuidance = std::make_unique<Guidance>();
        mGuidance->start();
        // The log window may ask for the activation once; the user goes back to work after that.
        QVERIFY(xdotool({ QStringLiteral("windowfocus"), mNeighbour->window() }));
        QTRY_VERIFY(mNeighbour->isFocused());
    }

    void cleanup()
    {
        mGuidance.reset();
        mNeighbour.reset();
    }

    void neighbourKeepsTheKeyboard()
    {
        const QString alphabet = QStringLiteral("abcdefghijklmnopqrstuvwxyz");
        const QString text = alphabet.repeated(40);
        QProcess typist;
        typist.start(QStringLiteral("xdotool"),
                     { QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("5"), text });
        for (int i = 0; i < 1000; ++i) {
            const QPoint target(i % 3 * 400, i % 5 * 150 - 200);
            mGuidance->update(target, QStringLiteral("Step %1").arg(i), i % 8, i % 7);
            if (i % 10 == 0)
                mGuidance->hide();
            if (i % 10 == 5)
                mGuidance->updateGuidanceVisibility();
            QTest::qWait(5);
        }
        QTRY_COMPARE_WITH_TIMEOUT(typist.state(), QProcess::NotRunning, 60000);
        QTRY_COMPARE(mNeighbour->typed().size(), text.size());
        QCOMPARE(mNeighbour->typed(), text);
        QVERIFY(mNeighbour->isFocused());
    }

    void clicksGoThrough()
    {
        for (int round = 0; round < 3; ++round) {
            QVERIFY(moveTo({ 100 + round * 40, 80 }, 7));
            const QPoint window = windowPlace(*mGuidance->mIndicator);
            QList<QPoint> points{ QPoint(0, 0) };
            // The arrow's tip, the icon, the hint, the empty rest of the window.
            for (const QPoint &inside : { QPoint(38, 130), QPoint(140, 20), QPoint(200, 70), QPoint(500, 400) })
                points.append(window + inside);
            mNeighbour->forget();
            for (const QPoint &point : qAsConst(points))
                QVERIFY(click(point));
            QTRY_COMPARE(mNeighbour->clicks(), points);
            // A window that was hidden gets a new frame.
            mGuidance->hide();
            mGuidance->updateGuidanceVisibility();
        }
    }

    void isFirstSeenWhereItIsPlaced()
    {
        EditorTooltip editorTooltip(nullptr, mGuidance.get());
        editorTooltip.setVisible(true);
        const TutorialTooltip tooltip(mGuidance->mIndicator.get());
        for (const QWidget *window :
             { static_cast<const QWidget *>(&editorTooltip), static_cast<const QWidget *>(&tooltip) }) {
            QTRY_VERIFY(ScreenWindows::stackingPlace(window->winId()) >= 0);
            QCOMPARE(ScreenWindows::place(window->winId()), QPoint(0, 0));
        }
    }

    // Hidden and shown in one go, the windows stay above a neighbour that is raised by each click.
    void staysAbove()
    {
        mGuidance->mEditorTooltip = std::make_unique<EditorTooltip>(nullptr, mGuidance.get());
        mGuidance->mEditorTooltip->show(QStringLiteral("tip"), 600, 300);
        QVERIFY(moveTo({ 200, 100 }, 7));
        QVector<int> lost(mGuidance->windows().size());
        for (int round = 0; round < 50; ++round) {
            QVERIFY(xdotool({ QStringLiteral("windowraise"), mNeighbour->window() }));
            mGuidance->hide();
            mGuidance->updateGuidanceVisibility();
            mNeighbour->forget();
            QVERIFY(click({ 700 + round, 600 }));
            QTRY_COMPARE(mNeighbour->clicks().size(), 1);
            for (int i = 0; i < lost.size(); ++i) {
                const WId window = mGuidance->windows().at(i)->winId();
                lost[i] += !QTest::qWaitFor([&] { return isAbove(window, *mNeighbour); }, 1000);
            }
        }
        QCOMPARE(lost, QVector<int>(lost.size()));

        // A window that opens later goes below them too; without a window manager, once they are shown again.
        const Neighbour dialog;
        QTRY_VERIFY(ScreenWindows::stackingPlace(dialog.window().toULongLong()) >= 0);
        for (const bool shownAgain : { false, true }) {
            if (shownAgain) {
                mGuidance->hide();
                mGuidance->updateGuidanceVisibility();
            }
            for (const QWidget *window : mGuidance->windows())
                QTRY_VERIFY(isAbove(window->winId(), dialog) || !(shownAgain || ScreenWindows::areManaged()));
        }
    }

    // Where the screen isn't composed, the windows have the shape of what they draw.
    void hidesNothingElse()
    {
        mGuidance->mEditorTooltip = std::make_unique<EditorTooltip>(nullptr, mGuidance.get());
        EditorTooltip &tip = *mGuidance->mEditorTooltip;
        QVERIFY(moveTo({ 200, 100 }, 5));
        const QPoint place = windowPlace(*mGuidance->mIndicator);
        const auto pixel = [](const QPoint &point) {
            return QGuiApplication::primaryScreen()->grabWindow(0, point.x(), point.y(), 1, 1).toImage().pixel(0, 0);
        };
        const QRgb beneath = pixel({ 950, 650 });
        QVERIFY(beneath != qRgb(0, 0, 0));
        // The hint, the middle of the button, the arrow, the text of the editor tooltip.
        const QVector<QPoint> seen{ place + QPoint(380, 70), mGuidance->mIndicator->mNextButton->geometry().center(),
                                    place + QPoint(66, 78), QPoint(100, 606) };
        const QVector<QPoint> unseen{ place + QPoint(500, 400), place + QPoint(5, 5),
                                      mGuidance->mIndicator->mNextButton->pos(), QPoint(300, 690) };
        const auto showsOnlyWhatItDraws = [&](int from = 0) {
            const auto isBeneath = [&](const QPoint &point) { return pixel(point) == beneath; };
            return std::all_of(unseen.begin(), unseen.end(), isBeneath)
                && std::none_of(seen.begin(), seen.end() - from, isBeneath);
        };
        tip.show(QStringLiteral("tip"), 100, 600);

        QTRY_VERIFY(showsOnlyWhatItDraws(1) && pixel(seen.last()) == beneath);
        tip.mDelayTicks = 1;
        QTRY_COMPARE(tip.windowOpacity(), 1.0);
        QTRY_VERIFY(showsOnlyWhatItDraws());
        {
            QProcess compositor;
            compositor.start(QStringLiteral("picom"),
                             { QStringLiteral("--backend"), QStringLiteral("xrender"), QStringLiteral("--config"),
                               QStringLiteral("/dev/null") });
            QTRY_VERIFY_WITH_TIMEOUT(mGuidance->mIndicator->mTooltip->mask().isEmpty() && tip.mask().isEmpty(), 20000);
            QTRY_VERIFY_WITH_TIMEOUT(showsOnlyWhatItDraws(), 20000);
            compositor.terminate();
            QTRY_COMPARE(compositor.state(), QProcess::NotRunning);
        }
        QTRY_VERIFY(showsOnlyWhatItDraws());
        tip.mHoldTicks = 1;
        QTRY_COMPARE(pixel(seen.last()), beneath);
    }

    void buttonsTakeClicksAndNoKeys()
    {
        QVERIFY(moveTo({ 200, 100 }, 7));
        mGuidance->mIndicator->mYesButton->hide();
        mNeighbour->forget();
        for (QPushButton *button : { mGuidance->mIndicator->mNextButton, mGuidance->mIndicator->mNoButton })
            QVERIFY(click(button->geometry().center() + QPoint(10, 0)));
        QTRY_COMPARE(mGuidance->mSent, QStringList({ QStringLiteral("next"), QStringLiteral("no") }));
        QVERIFY(xdotool({ QStringLiteral("type"), QStringLiteral("after") }));
        QTRY_COMPARE(mNeighbour->typed(), QStringLiteral("after"));
        QVERIFY(mNeighbour->clicks().isEmpty());
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(Neighbour::argument()))
        return Neighbour::run();
    tst_GuidanceOnScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_GuidanceOnScreen.moc"
