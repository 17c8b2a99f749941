#pragma once

#include <QHash>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QStringList>

/// What the host editor has reported of its windows: the stack of their keys, the position of each window
/// and control, and the rectangle that the guidance keeps inside of. All numbers are screen pixels.
class HostWindows : public QObject
{
    Q_OBJECT

public:
    HostWindows() = default;

    void push(const QString &key);
    void pop();
    void clearStack();
    /// Takes a "Popup" in front off the stack: it closes by itself when another window becomes active.
    void dropPopup();
    /// The key of the window in front; "ApplicationWindow" when there is none.
    QString currentKey() const;

    /// Windows and controls share their keys. A position without a key is ignored.
    void setPosition(const QString &key, const QPoint &position);
    /// The last reported position; (0, 0) for a key that was never reported.
    QPoint position(const QString &key) const { return mPositionByKey.value(key); }

    /// All of them, by key.
    const QHash<QString, QPoint> &places() const { return mPositionByKey; }

    void setHostRect(const QRect &rect);
    /// Null as long as the host editor gave none.
    QRect hostRect() const { return mHostRect; }

Q_SIGNALS:
    void currentKeyChanged();
    /// A window or control stands elsewhere, or is a new one; or the host editor's rectangle is another.
    void placesChanged();

private:
    Q_DISABLE_COPY(HostWindows)

    QStringList mWindowStack; // the last entry is the window in front
    QHash<QString, QPoint> mPositionByKey;
    QRect mHostRect;
};
