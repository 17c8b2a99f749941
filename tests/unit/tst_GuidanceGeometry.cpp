#include "Tutorial/GuidanceGeometry.h"

#include <QtTest>

#include <limits>

using namespace GuidanceGeometry;

namespace
{
const int kArrowTip = 38;

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

Q_DECLARE_METATYPE(GuidanceGeometry::Flips)

class tst_GuidanceGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flipsAtTheirLimits_data();
    void flipsAtTheirLimits();
    void easesByAQuarter_data();
    void easesByAQuarter();
    void motionComesToRest_data();
    void motionComesToRest();
    void everyNumberIsTaken();
    void rectanglesHoldWhatIsPainted();
    void bounces_data();
    void bounces();
};

void tst_GuidanceGeometry::flipsAtTheirLimits_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QRect>("hostRect");
    QTest::addColumn<Flips>("before");
    QTest::addColumn<Flips>("after");

    const QRect host(-1920, 0, 1000, 700); // its right edge is at -920
    const Flips none{ false, false };
    const Flips vertical{ true, false };
    const Flips horizontal{ false, true };
    const Flips both{ true, true };
    QTest::newRow("y 0 stays") << QPoint(-1800, 0) << host << none << none;
    QTest::newRow("y below 0 goes down") << QPoint(-1800, -1) << host << none << vertical;
    QTest::newRow("y 64 stays down") << QPoint(-1800, 64) << host << vertical << vertical;
    QTest::newRow("y 65 comes back") << QPoint(-1800, 65) << host << vertical << none;
    QTest::newRow("room for the text") << QPoint(-920 - 384, 9) << host << none << none;
    QTest::newRow("no room") << QPoint(-920 - 383, 9) << host << none << horizontal;
    QTest::newRow("room, but not to return") << QPoint(-920 - 410, 9) << host << horizontal << horizontal;
    QTest::newRow("room to return") << QPoint(-920 - 411, 9) << host << horizontal << none;
    QTest::newRow("both at once") << QPoint(-930, -9) << host << none << both;
    QTest::newRow("no rectangle has its edge at 0") << QPoint(-383, 9) << QRect() << none << horizontal;
    QTest::newRow("no rectangle, far to the left") << QPoint(-384, 9) << QRect() << none << none;
}

void tst_GuidanceGeometry::flipsAtTheirLimits()
{
    QFETCH(QPoint, target);
    QFETCH(QRect, hostRect);
    QFETCH(Flips, before);
    QFETCH(Flips, after);
    QVERIFY(decideFlips(target, hostRect, before) == after);
}

void tst_GuidanceGeometry::easesByAQuarter_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("rest");
    QTest::addColumn<int>("next");

    QTest::newRow("a quarter") << 0 << 400 << 100;
    QTest::newRow("truncated") << 0 << 403 << 100;
    QTest::newRow("truncated towards zero") << 0 << -403 << -100;
    QTest::newRow("towards zero on the way back") << -10 << 0 << -7;
    QTest::newRow("snaps within two") << 100 << 102 << 102;
    QTest::newRow("snaps after the step") << 103 << 100 << 100;
    QTest::newRow("stays three short") << 97 << 100 << 97;
    QTest::newRow("stays three short below zero") << -97 << -100 << -97;
}

void tst_GuidanceGeometry::easesByAQuarter()
{
    QFETCH(int, current);
    QFETCH(int, rest);
    QFETCH(int, next);
    QCOMPARE(easingStep(QPoint(current, rest), QPoint(rest, rest)), QPoint(next, rest));
    QCOMPARE(easingStep(QPoint(rest, current), QPoint(rest, rest)), QPoint(rest, next));
}

void tst_GuidanceGeometry::motionComesToRest_data()
{
    QTest::addColumn<QRect>("hostRect");
    QTest::newRow("at the origin") << QRect(0, 0, 1280, 1024);
    QTest::newRow("on a screen to the left and above") << QRect(-1920, -1080, 1600, 900);
    QTest::newRow("far to the right") << QRect(5000, 300, 900, 600);
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

        const int tip = motion.flips.horizontal ? kArrowSize + kTextWidth - kArrowTip : kArrowTip;
        QCOMPARE(rest.x() + tip, target.x() + kArrowTip);
        QCOMPARE(rest.y(), motion.flips.vertical ? target.y() + 165 : target.y());

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

void tst_GuidanceGeometry::rectanglesHoldWhatIsPainted()
{
    for (const bool flip : { false, true }) {
        const QRect window(QPoint(0, 0), kTooltipSize);
        QCOMPARE(repaintRect(flip, true), window);
        const QRect arrow(flip ? 256 : 0, 0, kArrowSize, kArrowSize + 16);
        QCOMPARE(arrowClearRect(flip), arrow);
        QVERIFY(repaintRect(flip, false).contains(arrow));
        QCOMPARE(repaintRect(flip, false).size(), QSize(184, 200));
        for (const int width : { 48, 56 })
            QVERIFY(iconClearRect(flip).contains(QRect(iconPlace(width, flip), QSize(width, 56))));
        const QRect text(textPlace(flip), QSize(kTextWidth, 64));
        QVERIFY(!text.intersects(arrow) && !text.intersects(iconClearRect(flip)) && window.contains(text));
    }
    QCOMPARE(nextButtonPlace({ 10, -20 }, 64), QPoint(138, 100));
    QCOMPARE(noButtonPlace({ 10, -20 }, 64), QPoint(194, 100));
}

void tst_GuidanceGeometry::bounces_data()
{
    QTest::addColumn<qint64>("milliseconds");
    QTest::addColumn<int>("offset");

    QTest::newRow("at rest") << qint64(0) << 16;
    QTest::newRow("still at rest") << qint64(500) << 16;
    QTest::newRow("a quarter up") << qint64(1250) << 4;
    QTest::newRow("at the top") << qint64(1500) << 0;
    QTest::newRow("a quarter down") << qint64(1750) << 4;
    QTest::newRow("at rest again") << qint64(2500) << 16;
    QTest::newRow("an hour later") << qint64(3601500) << 0;
}

void tst_GuidanceGeometry::bounces()
{
    QFETCH(qint64, milliseconds);
    QTEST(bounceOffset(milliseconds), "offset");
}

QTEST_APPLESS_MAIN(tst_GuidanceGeometry)

#include "tst_GuidanceGeometry.moc"
