#include "Tutorial/guidance/GuidanceGeometry.h"

#include <QtTest>

#include <limits>

using namespace GuidanceGeometry;

namespace
{
/// The whole motion of the windows.
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

    /// Goes on to the target until nothing changes. False when it doesn't come to rest there.
    bool run(const QPoint &target, const QRect &hostRect)
    {
        Motion before;
        int ticks = 0;
        do {
            before = *this;
            tick(target, hostRect);
        } while ((current != before.current || flips != before.flips) && ++ticks < 100);
        const QPoint missing = restingPlace(target, flips) - current;
        return ticks < 100 && qAbs(missing.x()) <= 3 && qAbs(missing.y()) <= 3;
    }
};
} // namespace

class tst_GuidanceGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flipsAtTheirLimits();
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

void tst_GuidanceGeometry::motionComesToRest()
{
    // On a screen to the left and above, narrower than arrow and text, none.
    for (const QRect &host : { QRect(-1920, -1080, 1600, 900), QRect(100, 100, 300, 200), QRect() }) {
        Motion motion;
        for (int i = 0; i < 4000; ++i) {
            // Targets all over and round the rectangle; the motion goes on from where the last one ended.
            const QPoint target(host.x() - 300 + i * 7919 % (host.width() + 600),
                                host.y() - 200 + i * 104729 % (host.height() + 400));
            QVERIFY(motion.run(target, host));

            // Where the rectangle has room on one side of the target, the text is inside of it.
            const int right = host.x() + host.width();
            const int textLeft = restingPlace(target, motion.flips).x() + textPlace(motion.flips.horizontal).x();
            const bool hasRoom = target.x() - 308 >= host.x() || target.x() + 411 < right;
            if (hasRoom && target.x() >= host.x() && target.x() + kTextWidth - 308 <= right)
                QVERIFY(textLeft >= host.x() && textLeft + kTextWidth <= right);
        }
    }
}

void tst_GuidanceGeometry::everyNumberIsTaken()
{
    const int numbers[] = { std::numeric_limits<int>::min(), -(1 << 24), kNoPosition, 0, 1 << 24,
                            std::numeric_limits<int>::max() };
    for (const int x : numbers) {
        for (const int y : numbers) {
            Motion motion;
            QVERIFY(motion.run({ x, y }, QRect(QPoint(y, x), QPoint(x, y))));
        }
        QVERIFY(centredPlace({ x, x }, { 320, 240 }).x() <= 1 << 24);
    }
}

QTEST_APPLESS_MAIN(tst_GuidanceGeometry)

#include "tst_GuidanceGeometry.moc"
