#pragma once

#include "StepCondition.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

class ControlRegistry;

/// Tells the writer of a tutorial what the user does: where the mouse is, what happened in the
/// words of a condition, and which windows and controls are to be seen.
class EventLog : public QObject
{
    Q_OBJECT

public:
    explicit EventLog(const ControlRegistry *registry, QObject *parent = nullptr);

    /// Begins, and tells everything that there is to tell.
    void start();

    /// The event as a line of rich text; without its markup it is a condition that the event meets.
    static QString line(const HostEvent &event);

public Q_SLOTS:
    void append(const HostEvent &event);

Q_SIGNALS:
    /// A message for the program.
    void message(const QString &message);

private:
    void scan();
    void scanControls();
    void scanCursor();

    const ControlRegistry *mRegistry;
    QStringList mShown;
    QString mCoordinates;
    QTimer mTimer;
};
