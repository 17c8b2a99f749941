#include "support/HostPeer.h"
#include "support/Screen.h"

#include <QApplication>

using namespace HostMessages::FromHost;

namespace
{
constexpr int kLimit = 20000;
const QPoint kTip(38, 133); // of the arrow, from a step's place
const QSize kHintWindow(640, 480);
const int kTextWidth = 256;
const int kArrow = 128;
const int kNextAndArrow = 5;

/// The driver looks what is connected when it is asked.
bool xrandr(const QString &arguments)
{
    QProcess query;
    query.setStandardOutputFile(QProcess::nullDevice());
    const bool done = QProcess::execute(QStringLiteral("xrandr"), arguments.split(QLatin1Char(' '))) == 0;
    query.start(QStringLiteral("xrandr"), { QStringLiteral("--query") });
    return done && query.waitForFinished(kLimit);
}
} // namespace

/// The real program on screens that the toolkit scales, which come and go. The host editor tells pixels.
class tst_GuidanceOnScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tipStaysOnItsTarget()
    {
        for (const auto &[first, second] : { std::pair(1.0, 2.0), std::pair(1.5, 1.25) }) {
            // For the program alone, which starts after this one has read its own.
            qputenv("QT_SCREEN_SCALE_FACTORS", QByteArray::number(first) + ';' + QByteArray::number(second));
            mHost = std::make_unique<HostPeer>();
            QVERIFY(mHost->start(QStringLiteral(TRELVANE_PROGRAM)));
            mHost->keepAlive();
            mHost->send(kStart, 0, 0, 2048, 768);

            const auto update = [&](const QPoint &target) {
                mHost->send(kIndicator, kUpdate, target.x(), target.y(), QString(), QStringLiteral("Here."),
                            kNextAndArrow, 0);
            };
            struct Row
            {
                QPoint target;
                double scale;
                bool left;
            };
            // Within each screen, from the one to the other and back, and at the far right, where the text is on the
            // left.
            for (const Row &row : { Row{ { 100, 100 }, first, false }, Row{ { 1100, 100 }, second, false },
                                    Row{ { 150, 300 }, first, false }, Row{ { 1990, 300 }, second, true },
                                    Row{ { 1100, 50 }, second, false } }) {
                update(row.target);
                QTRY_VERIFY_WITH_TIMEOUT(pointsAt(row.target, row.scale, row.left), kLimit);
            }

            // The screen goes from under the windows; what the host editor then points at is on the other one.
            QVERIFY(xrandr(QStringLiteral("--output DUMMY1 --off")));
            mHost->send(kIndicator, kUpdateXy, 120, 120);
            QTRY_VERIFY_WITH_TIMEOUT(pointsAt({ 120, 120 }, first, false), kLimit);
            QVERIFY(xrandr(QStringLiteral("--output DUMMY1 --mode 1024x768 --right-of DUMMY0")));
            mHost->send(kIndicator, kUpdateXy, 1120, 120);
            QTRY_VERIFY_WITH_TIMEOUT(pointsAt({ 1120, 120 }, second, false), kLimit);
            mHost.reset();
        }
    }

private:
    /// Whether the hint's window is drawn by that scale, with the arrow's tip on its pixel. Windows may come to rest up
    /// to three pixels short, and each of two roundings takes one more.
    bool pointsAt(const QPoint &target, double scale, bool left) const
    {
        const QVector<QRect> windows = Screen::places(mHost->process().processId(), kHintWindow * scale);
        if (windows.size() != 1)
            return false;
        const QPoint tip(left ? kArrow + kTextWidth - kTip.x() : kTip.x(), kTip.y());
        const QPoint missing = windows.first().topLeft() + tip * scale - (target + kTip);
        return qAbs(missing.x()) <= 5 && qAbs(missing.y()) <= 5;
    }

    std::unique_ptr<HostPeer> mHost;
};

QTEST_MAIN(tst_GuidanceOnScreens)
#include "tst_GuidanceOnScreens.moc"
