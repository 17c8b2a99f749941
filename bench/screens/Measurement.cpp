#include "Measurement.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace
{
constexpr double kSlowFrame = 33;
constexpr int kPatience = 60 * 1000;
} // namespace

double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

void waitUntil(const char *what, const std::function<bool()> &condition)
{
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > kPatience) {
            std::fprintf(stderr, "waited in vain until %s\n", what);
            std::exit(1);
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void waitForFrame(QQuickWindow *window)
{
    bool shown = false;
    const auto connection = QObject::connect(window, &QQuickWindow::frameSwapped, window, [&shown] { shown = true; });
    window->update();
    waitUntil("a frame is shown", [&shown] { return shown; });
    QObject::disconnect(connection);
}

Measurement::Measurement() : mStart(processorTime()), mLastFrame(mStart)
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (auto *quickWindow = qobject_cast<QQuickWindow *>(window))
            watch(quickWindow);
    }
    mClock.start();
}

void Measurement::watch(QQuickWindow *window)
{
    connect(window, &QQuickWindow::frameSwapped, this, &Measurement::takeFrame);
}

void Measurement::takeFrame()
{
    const double now = processorTime();
    const double frame = now - mLastFrame;
    mLastFrame = now;
    ++mFrames.frames;
    mFrames.longestFrame = std::max(mFrames.longestFrame, frame);
    if (frame > kSlowFrame)
        ++mFrames.slowFrames;
}

Cost Measurement::cost() const
{
    Cost cost = mFrames;
    cost.processor = processorTime() - mStart;
    cost.wall = double(mClock.nsecsElapsed()) / 1e6;
    return cost;
}

Cost meanOf(const QVector<Cost> &costs)
{
    Cost mean;
    for (const Cost &cost : costs) {
        mean.processor += cost.processor / costs.size();
        mean.wall += cost.wall / costs.size();
        mean.frames += cost.frames;
        mean.longestFrame = std::max(mean.longestFrame, cost.longestFrame);
        mean.slowFrames += cost.slowFrames;
    }
    mean.frames /= costs.size();
    return mean;
}
