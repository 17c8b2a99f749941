#include "Tutorial/link/HostRecord.h"

QByteArray HostRecord::encode(char direction, const QString &message)
{
    const QByteArray text = message.toUtf8();
    QByteArray bytes;
    bytes.reserve(text.size() + 3);
    bytes.append(direction).append(kMessageStart).append(text).append(kEnd);
    return bytes;
}

QStringList HostRecord::splitMessages(const QByteArray &recordText)
{
    if (recordText.isEmpty())
        return QStringList();
    const QString text = QString::fromUtf8(recordText);
    return recordText.contains(kMessageStart) ? text.split(QLatin1Char(kMessageStart)) : QStringList(text);
}
