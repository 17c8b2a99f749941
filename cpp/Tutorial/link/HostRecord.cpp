#include "Tutorial/link/HostRecord.h"

QByteArray HostRecord::encode(char direction, const QString &message)
{
    const char start[] = { direction, kMessageStart };
    QByteArray bytes = message.toUtf8();
    bytes.prepend(start, sizeof start).append(kEnd);
    return bytes;
}

QStringList HostRecord::splitMessages(const QByteArray &recordText)
{
    if (recordText.isEmpty())
        return QStringList();
    const QString text = QString::fromUtf8(recordText);
    return recordText.contains(kMessageStart) ? text.split(QLatin1Char(kMessageStart)) : QStringList(text);
}
