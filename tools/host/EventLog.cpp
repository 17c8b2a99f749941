#include "EventLog.h"

#include "ControlRegistry.h"
#include "Tutorial/link/HostMessages.h"

#include <QCursor>

using namespace HostMessages;

namespace
{
// The mouse moves far more often than anybody can read.
constexpr int kPeriod = 200;

QString eventMessage(QLatin1String kind, const QString &text)
{
    return HostMessages::message(FromHost::kEventLog, kind, text);
}
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
        Q_EMIT message(eventMessage(FromHost::kAppend, line(event)));
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
    Q_EMIT message(HostMessages::join(QStringList{ FromHost::kEventLog, FromHost::kRaisedHand } + shown));
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
    Q_EMIT message(eventMessage(FromHost::kCoords, coordinates));
}
