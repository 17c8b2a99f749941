#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QTimer>

class ControlRegistry;

/// Looks many times a second at where the windows and controls are, and tells what has changed.
class WindowReporter : public QObject
{
    Q_OBJECT

public:
    WindowReporter(const ControlRegistry *registry, QObject *parent = nullptr);

    /// Tells everything, whether it has changed or not.
    void reportAll();

    /// Whether that window or control is to be seen, and its upper left corner on the screen.
    bool isKnown(const QString &key) const { return mPositions.contains(key); }
    QPoint position(const QString &key) const { return mPositions.value(key); }

Q_SIGNALS:
    /// A message for the program.
    void message(const QString &message);
    void moved(const QString &key);
    /// A dialog or a menu has opened over the window.
    void covered();

private:
    void scan();
    void scanStack();

    const ControlRegistry *mRegistry;
    QStringList mStack;
    QHash<QString, QPoint> mPositions;
    QTimer mTimer;
};
