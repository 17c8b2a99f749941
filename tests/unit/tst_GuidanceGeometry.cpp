#include "Tutorial/guidance/GuidanceGeometry.h"

#include <QtTest>

#include <limits>

using namespace GuidanceGeometry;

namespace
{
/// The whole motion of the windows, as a tick carries it out.
struct Motion
{
    QPoint current;
    Flips flips{ false, false };

    void tick(const QPoint &target, const QRect &hostRect)
    {
        if (isNear(current, restingPlace(target, flips)))
            flips = decideFlips(target, hostRect, flips);
        current = easingStep(current, restingPlace(target, flips));
    }
};
} // namespace

class tst_GuidanceGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flipsAtTheirLimits();
    void motionComesToRest_data();
    void motionComesToRest();
    void everyNumberIsTaken();
};

void tst_GuidanceGeometry::flipsAtTheirLimits()
{
    const QRect host(-1920, 0, 1000, 700); // its right edge is at -920
    const auto flips = [&host](int x, int y, const Flips &before) { return decideFlips({ x, y }, host, before); };
    const Flips none{ false, false };
    const Flips vertical{ true, false };
    const Flips horizontal{ false, true };
    QVERIFY(flips(-1800, 0, none) == none);
    QVERIFY(flips(-1800, -1, none) == vertical);
    QVERIFY(flips(-1800, 64, vertical) == vertical);
    QVERIFY(flips(-1800, 65, vertical) == none);
    QVERIFY(flips(-920 - 384, 9, none) == none);
    QVERIFY(flips(-920 - 383, 9, none) == horizontal);
    QVERIFY(flips(-920 - 410, 9, horizontal) == horizontal);
    QVERIFY(flips(-920 - 411, 9, horizontal) == none);
}

void tst_GuidanceGeometry::motionComesToRest_data()
{
    QTest::addColumn<QRect>("hostRect");
    QTest::newRow("on a screen to the left and above") << QRect(-1920, -1080, 1600, 900);
    QTest::newRow("narrower than arrow and text") << QRect(100, 100, 300, 200);
    QTest::newRow("none") << QRect();
}

void tst_GuidanceGeometry::motionComesToRest()
{
    QFETCH(QRect, hostRect);
    const int right = hostRect.x() + hostRect.width();
    Motion motion;
    for (int i = 0; i < 4000; ++i) {
        // Targets all over and round the rectangle; the motion goes on from where the last one ended.
        const QPoint target(hostRect.x() - 300 + i * 7919 % (hostRect.width() + 600),
                            hostRect.y() - 200 + i * 104729 % (hostRect.height() + 400));
        int flipChanges = 0;
        int ticks = 0;
        Motion before;
        do {
            before = motion;
            motion.tick(target, hostRect);
            flipChanges += motion.flips != before.flips;
            QVERIFY2(++ticks < 80, "the windows never come to rest");
        } while (motion.current != before.current || motion.flips != before.flips);

        QVERIFY(flipChanges <= 2);
        QVERIFY(decideFlips(target, hostRect, motion.flips) == motion.flips);
        const QPoint rest = restingPlace(target, motion.flips);
        const QPoint missing = rest - motion.current;
        QVERIFY(qAbs(missing.x()) <= 3 && qAbs(missing.y()) <= 3);

        // Where the rectangle has room on one side of the target, the text is inside of it.
        const int textLeft = rest.x() + textPlace(motion.flips.horizontal).x();
        const bool hasRoom = target.x() - 308 >= hostRect.x() || target.x() + 411 < right;
        if (hasRoom && target.x() >= hostRect.x() && target.x() + kTextWidth - 308 <= right)
            QVERIFY(textLeft >= hostRect.x() && textLeft + kTextWidth <= right);
    }
}

void tst_GuidanceGeometry::everyNumberIsTaken()
{
    const int numbers[] = { std::numeric_limits<int>::min(), -(1 << 24), kNoPosition, 0, 1 << 24,
                            std::numeric_limits<int>::max() };
    for (const int x : numbers) {
        for (const int y : numbers) {
            Motion motion;
            const QRect host(QPoint(y, x), QPoint(x, y));
            for (int tick = 0; tick < 200; ++tick)
                motion.tick({ x, y }, host);
            const QPoint missing = restingPlace({ x, y }, motion.flips) - motion.current;
            QVERIFY(missing.manhattanLength() <= 6);
        }
        QVERIFY(centredPlace({ x, x }, { 320, 240 }).x() <= 1 << 24);
    }
}

QTEST_APPLESS_MAIN(tst_GuidanceGeometry)

#include "tst_GuidanceGeometry.moc"
