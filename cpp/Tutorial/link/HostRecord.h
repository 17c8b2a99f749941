#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The records of the link to the host editor, as bytes.
///
///     direction byte   '0' from the host editor, '1' to it
///     message          0x02 and the text in UTF-8, fields separated by 0x01; any number of these
///     end              0x00
///
/// Nothing is escaped: a field holds none of the three separators.
namespace HostRecord
{
constexpr char kFromHost = '0';
constexpr char kToHost = '1';
constexpr char kMessageStart = 0x02;
constexpr char kEnd = 0x00;

/// The bytes of a record with one message.
QByteArray encode(char direction, const QString &message);

/// The messages in the text of one record, which begins after the direction byte and the byte
/// that follows it. Empty messages count as messages; an empty text has none.
QStringList splitMessages(const QByteArray &recordText);
} // namespace HostRecord
