#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QVector>

#include <functional>

class QQuickWindow;

/// What something costs until the screen shows it; times in milliseconds. What waits for a timer takes time and no
/// processor time.
struct Cost
{
    double processor = 0; ///< of all threads
    double wall = 0;
    int frames = 0;
    double longestFrame = 0; ///< the most processor time from one frame to the next
    int slowFrames = 0; ///< those above a thirtieth of a second
};

/// Of the process, in milliseconds.
double processorTime();

/// Runs the event loop until the condition holds. Ends the process with a message where it does not in minutes.
void waitUntil(const char *what, const std::function<bool()> &condition);

/// Asks for a frame of the window, which shows all that has happened, and waits for it.
void waitForFrame(QQuickWindow *window);

/// Measures from its making on. A frame is one of any window that was there then or is watched since.
class Measurement : public QObject
{
    Q_OBJECT

public:
    Measurement();

    void watch(QQuickWindow *window);
    Cost cost() const;

private:
    void takeFrame();

    Cost mFrames;
    double mStart = 0;
    double mLastFrame = 0;
    QElapsedTimer mClock;
};

/// The mean of costs, and the longest frame of all.
Cost meanOf(const QVector<Cost> &costs);
