#include "EventLog.h"

#include "ControlRegistry.h"

#include <QCursor>

namespace
{
// The mouse moves far more often than anybody can read.
constexpr int kPeriod = 200;
const QString kName = QStringLiteral("eventLog");
} // namespace

EventLog::EventLog(const ControlRegistry *registry, QObject *parent) : QObject(parent), mRegistry(registry)
{
    connect(&mTimer, &QTimer::timeout, this, &EventLog::scan);
}

void EventLog::start()
{
    mShown.clear();
    mCoordinates.clear();
    mTimer.start(kPeriod);
    scan();
}

QString EventLog::line(const HostEvent &event)
{
    QStringList fields = { QStringLiteral("<b>%1</b>").arg(event.kind.toHtmlEscaped()), event.key.toHtmlEscaped() };
    if (!event.value.isEmpty())
        fields.append(event.value.toHtmlEscaped());
    return fields.join(QLatin1Char(','));
}

void EventLog::append(const HostEvent &event)
{
    if (mTimer.isActive())
        Q_EMIT message({ kName, QStringLiteral("append"), line(event) });
}

void EventLog::scan()
{
    scanControls();
    scanCursor();
}

void EventLog::scanControls()
{
    QStringList shown;
    const QStringList keys = mRegistry->keys();
    for (const QString &key : keys) {
        if (mRegistry->screenRect(key).isValid())
            shown.append(key);
    }
    if (shown == mShown)
        return;
    mShown = shown;
    Q_EMIT message(QStringList{ kName, QStringLiteral("raisedHand") } + shown);
}

void EventLog::scanCursor()
{
    // The innermost comes last: its key goes on where that of its window ends.
    const QPoint cursor = QCursor::pos();
    QStringList places;
    for (const QString &key : qAsConst(mShown)) {
        const QRect rect = mRegistry->screenRect(key);
        if (rect.contains(cursor))
            places.append(QStringLiteral("%1 %2, %3").arg(key).arg(cursor.x() - rect.x()).arg(cursor.y() - rect.y()));
    }
    const QString coordinates = places.join(QStringLiteral("; "));
    if (coordinates == mCoordinates)
        return;
    mCoordinates = coordinates;
    Q_EMIT message({ kName, QStringLiteral("coords"), coordinates });
}
