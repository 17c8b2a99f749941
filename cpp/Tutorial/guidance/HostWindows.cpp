#include "Tutorial/guidance/HostWindows.h"

void HostWindows::push(const QString &key)
{
    mWindowStack.append(key);
    Q_EMIT currentKeyChanged();
}

void HostWindows::pop()
{
    if (mWindowStack.isEmpty())
        return;
    mWindowStack.removeLast();
    Q_EMIT currentKeyChanged();
}

void HostWindows::clearStack()
{
    mWindowStack.clear();
    Q_EMIT currentKeyChanged();
}

void HostWindows::dropPopup()
{
    if (currentKey() == QLatin1String("Popup"))
        pop();
}

QString HostWindows::currentKey() const
{
    return mWindowStack.isEmpty() ? QStringLiteral("ApplicationWindow") : mWindowStack.last();
}

void HostWindows::setPosition(const QString &key, const QPoint &position)
{
    if (key.isEmpty())
        return;
    const auto place = mPositionByKey.find(key);
    if (place != mPositionByKey.end() && *place == position)
        return;
    mPositionByKey.insert(key, position);
    Q_EMIT placesChanged();
}

void HostWindows::setHostRect(const QRect &rect)
{
    if (rect == mHostRect)
        return;
    mHostRect = rect;
    Q_EMIT placesChanged();
}
