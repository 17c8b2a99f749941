#include "Tutorial/HostMessages.h"

namespace
{
constexpr QChar kFieldSeparator(0x01);
}

QStringList HostMessages::split(const QString &message)
{
    return message.split(kFieldSeparator);
}

QString HostMessages::join(const QStringList &fields)
{
    return fields.join(kFieldSeparator);
}

QString HostMessages::name(const QString &message)
{
    return message.left(message.indexOf(kFieldSeparator));
}

QString HostMessages::text(const QStringList &fields, int index)
{
    return fields.value(index);
}

int HostMessages::number(const QStringList &fields, int index)
{
    return fields.value(index).toInt();
}

HostMessages::Step HostMessages::readStep(const QStringList &fields)
{
    constexpr int nextFlag = 1;
    constexpr int yesNoFlag = 2;
    constexpr int arrowFlag = 4;
    const int flags = number(fields, 6);
    Step step;
    step.x = number(fields, 2);
    step.y = number(fields, 3);
    step.windowKey = text(fields, 4);
    step.hint = text(fields, 5);
    step.nextVisible = flags & nextFlag;
    step.yesNoVisible = flags & yesNoFlag;
    step.arrowVisible = flags & arrowFlag;
    step.iconType = number(fields, 7);
    return step;
}

bool HostMessages::hasHostRect(const QStringList &fields)
{
    return fields.size() >= 5;
}

QRect HostMessages::readHostRect(const QStringList &fields)
{
    return QRect(number(fields, 1), number(fields, 2), number(fields, 3), number(fields, 4));
}
