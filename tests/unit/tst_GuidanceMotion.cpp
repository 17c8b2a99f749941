#include "support/ManagerFixture.h"
#include "Tutorial/guidance/EditorTooltip.h"
#include "Tutorial/guidance/GuidanceGeometry.h"
#include "Tutorial/guidance/PlacementTries.h"
#include "Tutorial/guidance/ScreenPixels.h"
#include "Tutorial/guidance/TutorialIndicator.h"
#include "Tutorial/guidance/TutorialTooltip.h"

#include <QTextEdit>

#include <limits>

using namespace HostMessages;
using namespace HostMessages::FromHost;
using namespace ManagerFixture;

static const QString kText = QStringLiteral("Text");

/// Where the windows of the guidance go for the targets that the host editor tells.
class tst_GuidanceMotion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { mManager = std::make_unique<Manager>(); }
    void cleanup() { mManager.reset(); }

    void aimsAtTheTarget();
    void flipsAtItsLimits();
    void comesToRest();
    void isThereAtOnce();
    void pointStaysOnItsPixel();
    void triesToPlaceEnd();

private:
    /// Hidden windows move too, and faster.
    void startHidden(int x, int y, int width, int height)
    {
        mManager->receive(kStart, x, y, width, height);
        mManager->receive(kStop);
        mIndicator = find<TutorialIndicator>();
    }
    void aimAt(const QPoint &target)
    {
        mManager->receive(kIndicator, kUpdateXy, target.x(), target.y());
        tick(mIndicator, 80);
    }
    QPoint place() const { return QPoint(mIndicator->mCurrentX, mIndicator->mCurrentY); }
    QPoint restingPlace() const
    {
        return GuidanceGeometry::restingPlace({ mIndicator->mTargetX, mIndicator->mTargetY },
                                              { mIndicator->mFlipVertical, mIndicator->mFlipHorizontal });
    }
    /// Whether the windows stay where they are, up to three pixels short of their place.
    bool isAtRest() const
    {
        const QPoint before = place();
        const QPoint missing = restingPlace() - before;
        tick(mIndicator);
        return place() == before && qAbs(missing.x()) <= 3 && qAbs(missing.y()) <= 3;
    }

    TutorialIndicator *mIndicator = nullptr;
    std::unique_ptr<Manager> mManager;
};

void tst_GuidanceMotion::aimsAtTheTarget()
{
    startHidden(0, 0, 1000, 700);
    const auto isAimedAt = [this](int x, int y, bool arrow) {
        return mIndicator->mTargetX == x && mIndicator->mTargetY == y && mIndicator->mArrowVisible == arrow;
    };
    mManager->onReceived(stepMessage({ 400, 200, kText, kText, false, false, true, 3 }));
    QVERIFY(isAimedAt(400, 200, true));
    tick(mIndicator);
    QCOMPARE(place(), QPoint(100, 50));
    mManager->updateIndicatorXyWindowKey(5, 6, kText);
    QVERIFY(isAimedAt(5, 6, true));
    // A step without a target has no arrow either.
    mManager->onReceived(stepMessage({ kNoPosition, kNoPosition, kText, kText, false, false, true, 3 }));
    QVERIFY(isAimedAt(5, 6, false));
    // What is no number reads as 0.
    mManager->receive(kIndicator, kUpdateXy, QStringLiteral("12px"), kNoPosition);
    QVERIFY(isAimedAt(0, kNoPosition, false));

    // The rectangle needs all of its numbers, and comes also while the guidance runs.
    QCOMPARE(mManager->hostRect(), QRect(0, 0, 1000, 700));
    mManager->receive(kStart, -1, 2, 3, 4, kText);
    mManager->receive(kStart, 5, 6, 7);
    QCOMPARE(mManager->hostRect(), QRect(-1, 2, 3, 4));
}

void tst_GuidanceMotion::flipsAtItsLimits()
{
    startHidden(-1920, 0, 1000, 700); // its right edge is at -920
    // One target after the other, and on which side of it the windows then lie.
    const QVector<QPair<QPoint, const char *>> rows = {
        { { -1800, 0 }, "" },          { { -1800, -1 }, "below" }, { { -1800, 64 }, "below" },
        { { -1800, 65 }, "" },         { { -920 - 384, 9 }, "" },  { { -920 - 383, 9 }, "left" },
        { { -920 - 410, 9 }, "left" }, { { -920 - 411, 9 }, "" },
    };
    for (const auto &row : rows) {
        aimAt(row.first);
        const QByteArray below = mIndicator->mFlipVertical ? "below" : "";
        QCOMPARE(below + (mIndicator->mFlipHorizontal ? "left" : ""), QByteArray(row.second));
    }
}

void tst_GuidanceMotion::comesToRest()
{
    using namespace GuidanceGeometry;
    QCOMPARE(easingStep({ 398, 0 }, { 400, 3 }), QPoint(400, 0));
    // The sides are chosen anew near the place alone.
    QVERIFY(isNear({ 10, 10 }, { 10, 266 }) && !isNear({ 10, 10 }, { 10, 267 }));

    // On a screen to the left and above, narrower than arrow and text, none.
    for (const QRect &host : { QRect(-1920, -1080, 1600, 900), QRect(100, 100, 300, 200), QRect() }) {
        startHidden(host.x(), host.y(), host.width(), host.height());
        for (int i = 0; i < 1000; ++i) {
            // Targets all over and round the rectangle; the motion goes on from where the last one ended.
            const QPoint target(host.x() - 300 + i * 7919 % (host.width() + 600),
                                host.y() - 200 + i * 104729 % (host.height() + 400));
            aimAt(target);
            QVERIFY(isAtRest());

            // Where the rectangle has room on one side of the target, the text is inside of it.
            const int width = kTextWidth;
            const int right = host.x() + host.width();
            const int textLeft = restingPlace().x() + mIndicator->mTooltip->mTextEdit->x();
            const bool hasRoom = target.x() - 308 >= host.x() || target.x() + 411 < right;
            if (hasRoom && target.x() >= host.x() && target.x() + width - 308 <= right)
                QVERIFY(textLeft >= host.x() && textLeft + width <= right);
        }
    }
    const int numbers[] = { std::numeric_limits<int>::min(), -(1 << 24), 0, 1 << 24, std::numeric_limits<int>::max() };
    for (const int x : numbers) {
        for (const int y : numbers) {
            startHidden(y, x, x, y);
            aimAt({ x, y });
            QVERIFY(isAtRest());
            mManager->receive(kShowTooltip, kText, x, y);
            QVERIFY(qAbs(find<EditorTooltip>()->x()) <= 1 << 24);
        }
    }
}

void tst_GuidanceMotion::isThereAtOnce()
{
    const QTemporaryDir folder;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    QSettings().setValue(QStringLiteral("reducedMotion"), QStringLiteral("yes"));
    startHidden(0, 0, 1000, 700);
    // On the right side of the target, too, which else is decided on the way.
    for (const QPoint &target : { QPoint(100, 100), QPoint(900, 600), QPoint(990, -50), QPoint(10, 300) }) {
        mManager->receive(kIndicator, kUpdateXy, target.x(), target.y());
        tick(mIndicator);
        QCOMPARE(place(), restingPlace());
        QVERIFY(isAtRest());
        QCOMPARE(mIndicator->mFlipHorizontal, target.x() > 700);
        QCOMPARE(mIndicator->mFlipVertical, target.y() < 0);
    }

    mManager->receive(kShowTooltip, kText, 100, 100);
    auto *tip = find<EditorTooltip>();
    QSet<qreal> seen;
    for (int i = 0; i < 700; ++i) {
        tick(tip);
        seen.insert(tip->windowOpacity());
    }
    QCOMPARE(seen, (QSet<qreal>{ 0, 1 }));
    QCOMPARE(tip->windowOpacity(), 0.0);
    QSettings().clear();
}

// A screen left of the first one and higher, each with its scale, and where the toolkit then puts the point.
void tst_GuidanceMotion::pointStaysOnItsPixel()
{
    using namespace ScreenPixels;
    const QSize size = GuidanceGeometry::kTooltipSize;
    for (const double other : { 1.0, 1.25, 1.5, 2.0 }) {
        for (const double scale : { 1.0, 1.25, 1.5, 2.0 }) {
            const QVector<Screen> screens{
                { QRect(QPoint(0, 0), QSize(1920, 1080) / scale), scale },
                { QRect(QPoint(-1920, -200), QSize(1920, 1080) / other), other },
            };
            for (int i = 0; i < 2000; ++i) {
                int current = i % 2;
                const QPoint onScreen(i * 7919 % 1920, i * 127 % 1080);
                const QPoint pixel = screens.at(i / 2 % 2).geometry.topLeft() + onScreen;
                // The text is left of the arrow at the right of a screen alone.
                const QPoint anchor(i % 3 || onScreen.x() < 960 ? 38 : 346, i % 5 ? 133 : -5);
                // Twice at most: from the wrong screen, where its centre decides, and from the right one.
                Placement placed = placement(pixel, anchor, size, screens, current);
                const auto follow = [&] {
                    const QPoint centre = QRect(placed.place, size).center();
                    for (int s = 0; s < screens.size(); ++s) {
                        if (screens.at(s).geometry.contains(centre) && !screens.at(current).geometry.contains(centre))
                            current = s;
                    }
                };
                follow();
                if (!placed.settled) {
                    placed = placement(pixel, anchor, size, screens, current);
                    follow();
                }
                QVERIFY(placed.settled);
                const Screen &drawn = screens.at(current);
                QCOMPARE(placed.scale, drawn.scale);
                const QPoint seen = drawn.toPixels(placed.place) + (QPointF(anchor) * drawn.scale).toPoint();
                QVERIFY((seen - pixel).manhattanLength() <= 2);
            }
        }
    }
}

// Where a window manager refuses, and once there is hope again.
void tst_GuidanceMotion::triesToPlaceEnd()
{
    QWidget window;
    PlacementTries placement;
    const auto tries = [&] {
        int count = 0;
        for (; placement.isDue(&window) && count < 1000; ++count)
            placement.tried(false);
        return count;
    };
    QCOMPARE(tries(), 0);
    placement.begin();
    QCOMPARE(tries(), PlacementTries::kTries);
    QCOMPARE(tries(), 0);
    window.show();
    QCOMPARE(tries(), PlacementTries::kTries);
    placement.begin();
    placement.tried(true);
    QCOMPARE(tries(), 0);
}

MANAGER_TEST_MAIN(tst_GuidanceMotion)
#include "tst_GuidanceMotion.moc"
