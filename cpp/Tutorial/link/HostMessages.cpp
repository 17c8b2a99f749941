#include "Tutorial/link/HostMessages.h"

namespace
{
constexpr QChar kFieldSeparator(0x01);

// No window system goes as far, and the sums that a rectangle makes of its numbers stay whole
// numbers up to here.
constexpr int kLargestCoordinate = (1 << 24) - 1;
} // namespace

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
    const auto bounded = [&fields](int index) {
        return qBound(-kLargestCoordinate, number(fields, index), kLargestCoordinate);
    };
    return QRect(bounded(1), bounded(2), bounded(3), bounded(4));
}
