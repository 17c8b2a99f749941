#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

/// The fields of the messages that go over the link, as plain functions. A field that is missing
/// reads as empty, and one that is no decimal number reads as 0.
namespace HostMessages
{
QStringList split(const QString &message);
QString join(const QStringList &fields);

/// The name of a message: its first field.
QString name(const QString &message);

QString text(const QStringList &fields, int index);
int number(const QStringList &fields, int index);

/// One step, as "indicator" "update" describes it. Positions are in screen pixels.
struct Step
{
    int x;
    int y;
    QString windowKey;
    QString hint;
    bool nextVisible;
    bool yesNoVisible;
    bool arrowVisible;
    int iconType;
};
Step readStep(const QStringList &fields);

/// Whether the "start" message carries a rectangle.
bool hasHostRect(const QStringList &fields);
/// Left, top, width and height in screen pixels.
QRect readHostRect(const QStringList &fields);
} // namespace HostMessages
