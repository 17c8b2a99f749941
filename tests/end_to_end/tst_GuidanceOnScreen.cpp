#include "support/HostPeer.h"
#include "support/Screen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>

#include <cmath>
#include <memory>

namespace
{
using namespace HostMessages::FromHost;

const QString kProgram = QStringLiteral(TRELVANE_PROGRAM);
const QSize kHintWindow(640, 480);
const QSize kButton(64, 32);
const QSize kTip(320, 240);
const QRect kHostRect(0, 0, 1000, 700);
// The program's own window, of one pixel, which a window manager keeps on the screen.
const QRect kOwnWindow(0, 0, 8, 8);
constexpr int kNextButton = 1;
constexpr int kYesNoButtons = 2;
constexpr int kArrow = 4;
constexpr int kNoIcon = 6;
constexpr int kArrowAtRest = 16;
// How long the program may take for what it does at once.
constexpr int kLimit = 20000;

/// The host editor's window, which writes down what input reaches it.
class Neighbour : public QWidget
{
public:
    Neighbour()
    {
        setFocusPolicy(Qt::StrongFocus);
        setGeometry(kHostRect);
        setPalette(Qt::darkCyan);
        show();
    }

    QString mTyped;
    QList<QPoint> mClicks;

protected:
    void keyPressEvent(QKeyEvent *event) override { mTyped += event->text(); }
    void mousePressEvent(QMouseEvent *event) override { mClicks.append(event->globalPos()); }
};

struct Step
{
    QPoint target;
    bool below; ///< the windows lie below the target's place
    bool left;
    int icon;
};

const Step kNearby{ { 100, 200 }, false, false, kNoIcon };
const QString kHint = QStringLiteral("Click the button.");
const QRect kArrowAndIcon(0, 0, 128, 144);

/// The arrow and the icon as they are to stand in the window of the hint.
QImage drawing(const Step &step)
{
    const QStringList icons = { QStringLiteral("click"), QStringLiteral("double_click"), QStringLiteral("right_click"),
                                QStringLiteral("eye"),   QStringLiteral("wait"),         QStringLiteral("keyboard") };
    const auto load = [](const QString &name) { return QImage(QStringLiteral(":/resource/png/%1.png").arg(name)); };
    QImage image(kHintWindow, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QImage arrow = load(QStringLiteral("arrow")).mirrored(step.left, step.below);
    painter.drawImage(step.left ? 256 : 0, step.below ? -kArrowAtRest : kArrowAtRest, arrow);
    if (step.icon < icons.size()) {
        const QImage icon = load(icons.at(step.icon));
        painter.drawImage(step.left ? 256 - icon.width() : 128, 0, icon);
    }
    return image;
}

/// How the lightest and the darkest of some pixels contrast, as the guidelines for readable text reckon it: 1 to 21.
double contrast(const QImage &image)
{
    const auto part = [](int value) {
        return value <= 10 ? value / 255.0 / 12.92 : std::pow((value / 255.0 + 0.055) / 1.055, 2.4);
    };
    double least = 1;
    double most = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const double light =
                0.2126 * part(qRed(pixel)) + 0.7152 * part(qGreen(pixel)) + 0.0722 * part(qBlue(pixel));
            least = std::min(least, light);
            most = std::max(most, light);
        }
    }
    return (most + 0.05) / (least + 0.05);
}

bool isDark(const QImage &image)
{
    return qGray(image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0)) < 128;
}
} // namespace

/// The guidance of the real program over a window of this process, with real keys and clicks, and
/// what the screen then shows.
class tst_GuidanceOnScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mNeighbour = std::make_unique<Neighbour>();
        QVERIFY(QTest::qWaitForWindowExposed(mNeighbour.get(), kLimit));
        mHost = std::make_unique<HostPeer>();
        QVERIFY(mHost->start(kProgram));
        mHost->keepAlive();

        mBefore = Screen::pixels(kHostRect);
        start();
        // First seen where it is placed.
        QTRY_COMPARE(places(kHintWindow), QVector<QRect>{ QRect(QPoint(), kHintWindow) });
        // The log window may ask for the activation once; the user goes back to work after that.
        Screen::focus(mNeighbour->winId());
        QTRY_VERIFY_WITH_TIMEOUT(mNeighbour->isActiveWindow(), kLimit);
    }
    void cleanup() { mHost.reset(); }

    void neighbourKeepsTheKeyboard();
    void clicksReachTheNeighbourOrAButton();
    void staysAbove();
    void drawsEachStepAndLeavesNothing();
    void tipComesAndGoes();
    void textsAreReadable();

private:
    /// A step, its buttons and arrow by the flags.
    void update(const QPoint &target, const QString &hint, int flags, int icon)
    {
        mHost->send(kIndicator, kUpdate, target.x(), target.y(), QStringLiteral("MainWindow"), hint, flags, icon);
    }
    void start() { mHost->send(kStart, kHostRect.x(), kHostRect.y(), kHostRect.width(), kHostRect.height()); }
    QVector<QRect> places(const QSize &size) const { return Screen::places(mHost->process().processId(), size); }
    /// Whether the window of the hint stands there; it may come to rest up to three pixels short.
    bool isSeenAt(const QPoint &place) const
    {
        return QRect(place - QPoint(3, 3), QSize(7, 7)).contains(places(kHintWindow).value(0).topLeft());
    }
    /// Whether the windows of the step stand above all of this process, and those that the window manager
    /// raises.
    bool isAboveTheNeighbour() const
    {
        int highest = 0;
        for (const Screen::Window &window : Screen::windows(QCoreApplication::applicationPid()))
            highest = std::max(highest, window.level);
        int count = 0;
        for (const Screen::Window &window : Screen::windows(mHost->process().processId())) {
            const QSize size = window.place.size();
            const bool counts = size == kHintWindow || size == kButton || (size == kTip && Screen::isManaged());
            count += counts && window.level > highest;
        }
        return count == (Screen::isManaged() ? 5 : 4);
    }
    /// Whether the host editor's window shows the drawing in the place of the hint's window and is as it
    /// was before in all other places. Where nothing composes the screen, translucent pixels are cut off
    /// or drawn in full.
    bool shows(const QImage &drawing, const QRegion &uncompared, bool composed) const
    {
        const QPoint corner = places(kHintWindow).value(0).topLeft();
        const QImage screen = Screen::pixels(kHostRect);
        for (int y = 0; y < screen.height(); ++y) {
            for (int x = 0; x < screen.width(); ++x) {
                const QPoint inside = QPoint(x, y) - corner;
                const QRgb over = drawing.rect().contains(inside) ? drawing.pixel(inside) : qRgba(0, 0, 0, 0);
                const QRgb before = mBefore.pixel(x, y);
                const QRgb seen = screen.pixel(x, y);
                const auto differs = [&](int (*part)(QRgb)) {
                    const int wanted = (part(over) * qAlpha(over) + part(before) * (255 - qAlpha(over))) / 255;
                    return std::abs(part(seen) - wanted) > 3;
                };
                const bool compared = composed || qAlpha(over) == 0 || qAlpha(over) == 255;
                if (compared && (differs(qRed) || differs(qGreen) || differs(qBlue)) && !uncompared.contains({ x, y })
                    && !kOwnWindow.contains(x, y))
                    return false;
            }
        }
        return true;
    }
    /// Whether the step is on the screen and at rest: arrow and icon, a hint of dark words on white and
    /// the button below it.
    bool showsStep(const Step &step, bool composed) const
    {
        const QPoint rest = step.target + QPoint(step.left ? -308 : 0, step.below ? 165 : 0);
        const QVector<QRect> buttons = places(kButton);
        if (!isSeenAt(rest) || buttons.size() != 1)
            return false;
        const QRect window = places(kHintWindow).first();
        const QPoint corner = window.topLeft() + QPoint(step.left ? 0 : 128, 56);
        const QRect hint(corner, QSize(256, buttons.first().y() - corner.y()));
        const QImage average =
            Screen::pixels(hint & kHostRect).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const int gray = qGray(average.pixel(0, 0));
        return gray > 200 && gray < 254 && shows(drawing(step), QRegion(hint) + buttons.first(), composed);
    }
    /// Not by QTRY_VERIFY, which asks once more: the arrow doesn't stay at rest.
    bool waitForStep(const Step &step, bool composed) const
    {
        return QTest::qWaitFor([&] { return showsStep(step, composed); }, kLimit);
    }
    bool showsNothing() const { return shows(QImage(), QRegion(), false); }
    QImage insideTheHintWindow(const QRect &part) const
    {
        return Screen::pixels(part.translated(places(kHintWindow).value(0).topLeft()));
    }
    // Words on their ground, without the frames.
    QImage hint() const { return insideTheHintWindow({ 131, 59, 100, 18 }); }
    QImage button() const
    {
        const QRect place = places(kButton).value(0).adjusted(8, 8, -8, -8);
        return place.isValid() ? Screen::pixels(place) : QImage();
    }
    bool isReadable() const { return contrast(hint()) >= 4.5 && contrast(button()) >= 4.5; }

    std::unique_ptr<Neighbour> mNeighbour;
    std::unique_ptr<HostPeer> mHost;
    QImage mBefore;

#ifndef Q_OS_WIN
private Q_SLOTS:
    // On Windows the wishes are the user's own, for all programs.
    void obeysTheDesktop();
#endif
};

void tst_GuidanceOnScreen::neighbourKeepsTheKeyboard()
{
    const QString text = QStringLiteral("abcdefghijklmnopqrstuvwxyz").repeated(20);
    int i = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        update(QPoint(i % 3 * 400, i % 5 * 150 - 200), QStringLiteral("Step %1").arg(i), i % 8, i % 7);
        if (i % 20 == 0)
            mHost->send(kStop);
        if (i % 20 == 5)
            start();
        if (i % 10 == 8)
            mHost->send(kState, i % 20 == 8 ? kHide : kShow);
        ++i;
    });
    timer.start(5);
    Screen::type(text);
    QTRY_COMPARE(mNeighbour->mTyped, text);
    QVERIFY(i > 40);
    QVERIFY(mNeighbour->isActiveWindow());
}

void tst_GuidanceOnScreen::clicksReachTheNeighbourOrAButton()
{
    const QPoint place(200, 100);
    for (int round = 0; round < 2; ++round) {
        update(place, QStringLiteral("Click the button."), kArrow, 0);
        QTRY_VERIFY_WITH_TIMEOUT(isSeenAt(place), kLimit);
        QList<QPoint> points{ QPoint(20, 60) };
        // The arrow's tip, the icon, the hint, the empty rest of the window.
        for (const QPoint &inside : { QPoint(38, 130), QPoint(140, 20), QPoint(200, 70), QPoint(500, 400) })
            points.append(place + inside);
        mNeighbour->mClicks.clear();
        for (const QPoint &point : qAsConst(points)) {
            Screen::click(point);
            QTRY_COMPARE(mNeighbour->mClicks.value(points.indexOf(point)), point);
        }
        QCOMPARE(mNeighbour->mClicks, points);
        // A window that was hidden gets a new frame.
        mHost->send(kState, kShow);
    }

    mNeighbour->mClicks.clear();
    const auto press = [&](int flags, int x, QLatin1String answer) {
        update(place, QStringLiteral("Now?"), flags, 0);
        QTRY_VERIFY_WITH_TIMEOUT(isSeenAt(place) && places(kButton).size() == flags, kLimit);
        Screen::click(QPoint(place.x() + x, places(kButton).first().center().y()));
        QVERIFY2(!mHost->waitForMessage(answer).isEmpty(), answer.data());
    };
    press(kNextButton, 160, HostMessages::ToHost::kNext);
    press(kYesNoButtons, 140, HostMessages::ToHost::kYes);
    press(kYesNoButtons, 220, HostMessages::ToHost::kNo);
    Screen::type(QStringLiteral("after"));
    QTRY_COMPARE(mNeighbour->mTyped, QStringLiteral("after"));
    QVERIFY(mNeighbour->mClicks.isEmpty());
}

// Hidden and shown in one go, the windows stay above a neighbour that is raised by each click.
void tst_GuidanceOnScreen::staysAbove()
{
    mHost->send(kShowTooltip, QStringLiteral("tip"), 600, 300);
    update(QPoint(200, 100), QStringLiteral("Now?"), kNextButton | kYesNoButtons | kArrow, 0);
    QTRY_VERIFY_WITH_TIMEOUT(isAboveTheNeighbour(), kLimit);
    for (int round = 0; round < 5; ++round) {
        Screen::raise(mNeighbour->winId());
        mHost->send(kState, kShow);
        Screen::click({ 700 + round, 600 });
        QTRY_COMPARE(mNeighbour->mClicks.size(), round + 1);
        QTRY_VERIFY_WITH_TIMEOUT(isAboveTheNeighbour(), 1000);
    }
}

void tst_GuidanceOnScreen::drawsEachStepAndLeavesNothing()
{
    const Step normal{ { 300, 200 }, false, false, 0 };
    const bool composed = Screen::isComposed();
    const auto send = [this](const Step &step) {
        update(step.target, QStringLiteral("Click the button."), kNextButton | kArrow, step.icon);
    };
    for (const Step &step : { normal, Step{ normal.target, false, false, 1 }, Step{ normal.target, false, false, 2 },
                              Step{ normal.target, false, false, kNoIcon }, Step{ { 900, 200 }, false, true, 3 },
                              Step{ { 900, -60 }, true, true, 4 }, Step{ { 300, -60 }, true, false, 5 }, normal }) {
        send(step);
        QVERIFY(waitForStep(step, composed));
    }
    // The arrow rises and comes back.
    const QPoint head = places(kHintWindow).first().topLeft() + QPoint(104, 14);
    const auto isSeen = [&] { return Screen::pixels(kHostRect).pixel(head) != mBefore.pixel(head); };
    QVERIFY(QTest::qWaitFor([&] { return !isSeen(); }, kLimit));
    QVERIFY(QTest::qWaitFor(isSeen, kLimit));

    if (!composed) {
        QProcess compositor;
        compositor.start(QStringLiteral("picom"),
                         QStringLiteral("--backend xrender --config /dev/null").split(QLatin1Char(' ')));
        QVERIFY(waitForStep(normal, true));
        for (const Step &step : { Step{ { 900, 200 }, false, true, 3 }, Step{ { 900, 200 }, false, true, kNoIcon },
                                  Step{ normal.target, false, false, kNoIcon }, normal }) {
            send(step);
            QVERIFY(waitForStep(step, true));
        }
        compositor.terminate();
        QTRY_COMPARE(compositor.state(), QProcess::NotRunning);
        QVERIFY(waitForStep(normal, false));
    }

    mHost->send(kState, kHide);
    QTRY_VERIFY_WITH_TIMEOUT(showsNothing(), kLimit);
    mHost->send(kState, kShow);
    QVERIFY(waitForStep(normal, composed));
    update(normal.target, QString(), 0, kNoIcon);
    QTRY_VERIFY_WITH_TIMEOUT(showsNothing(), kLimit);
}

void tst_GuidanceOnScreen::tipComesAndGoes()
{
    update({ 300, 200 }, QString(), 0, kNoIcon);
    QTRY_VERIFY_WITH_TIMEOUT(isSeenAt({ 300, 200 }) && showsNothing(), kLimit);
    const auto isSeen = [&] { return Screen::pixels(kHostRect).pixel(100, 600) != mBefore.pixel(100, 600); };
    QElapsedTimer sent;
    sent.start();
    mHost->send(kShowTooltip, QStringLiteral("<table width=40 height=20><tr><td>tip</table>"), 100, 600);
    // It is unseen for a second, and in its place from the start.
    QTRY_VERIFY_WITH_TIMEOUT(!places(kTip).isEmpty(), kLimit);
    const QPoint corner = places(kTip).value(0).topLeft();
    QVERIFY2(QRect(50, 570, 50, 30).contains(corner),
             qPrintable(QStringLiteral("the tip is at %1, %2").arg(corner.x()).arg(corner.y())));
    // On a slow machine the second is over.
    QVERIFY2(showsNothing() || sent.elapsed() > 900, "the tip is seen at once");
    QTRY_VERIFY_WITH_TIMEOUT(isSeen(), kLimit);
    mHost->send(kHideTooltip);
    QTRY_VERIFY_WITH_TIMEOUT(showsNothing(), kLimit);
}

void tst_GuidanceOnScreen::textsAreReadable()
{
    update(kNearby.target, kHint, kNextButton | kArrow, kNearby.icon);
    QVERIFY(waitForStep(kNearby, false));
    QVERIFY(!isDark(hint()) && !isDark(button()));
    QTRY_VERIFY_WITH_TIMEOUT(isReadable(), kLimit);
}

#ifndef Q_OS_WIN
// Still and in other colours while the desktop says so; what is told stays the same.
void tst_GuidanceOnScreen::obeysTheDesktop()
{
    const Step far{ { 600, 500 }, false, false, kNoIcon };
    update(kNearby.target, kHint, kNextButton | kArrow, kNearby.icon);
    QVERIFY(waitForStep(kNearby, false));
    QVERIFY(!isDark(hint()) && !isDark(button()));

    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("settings")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("Gtk/EnableAnimations 0\nNet/ThemeName \"HighContrastInverse\"\n");
    settings.close();
    QProcess manager;
    manager.start(QStringLiteral("xsettingsd"), { QStringLiteral("-c"), settings.fileName() });
    QVERIFY2(manager.waitForStarted(kLimit), qPrintable(QStringLiteral("xsettingsd: ") + manager.errorString()));
    QTRY_VERIFY_WITH_TIMEOUT(isDark(hint()) && isDark(button()) && isReadable(), kLimit);

    const QSet<int> ends{ kNearby.target.x(), far.target.x() };
    update(far.target, kHint, kNextButton | kArrow, far.icon);
    QSet<int> seen;
    const QDeadlineTimer limit(kLimit);
    while (!seen.contains(far.target.x())) {
        QVERIFY2(!limit.hasExpired(), "the window does not come");
        for (const QRect &place : places(kHintWindow))
            seen.insert(place.x());
        QVERIFY2(ends.contains(seen), "the window was seen on its way");
        QTest::qWait(5);
    }
    const QImage still = insideTheHintWindow(kArrowAndIcon);
    QElapsedTimer timer;
    for (timer.start(); !timer.hasExpired(2000); QTest::qWait(20))
        QVERIFY2(insideTheHintWindow(kArrowAndIcon) == still, "the arrow moves");

    manager.terminate();
    QTRY_COMPARE(manager.state(), QProcess::NotRunning);
    QVERIFY(QTest::qWaitFor([&] { return !isDark(hint()) && insideTheHintWindow(kArrowAndIcon) != still; }, kLimit));
}
#endif

QTEST_MAIN(tst_GuidanceOnScreen)
#include "tst_GuidanceOnScreen.moc"
