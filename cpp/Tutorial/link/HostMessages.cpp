#include "Tutorial/link/HostMessages.h"

namespace
{
// No window system goes as far, and the sums that a rectangle makes of its numbers stay whole
// numbers up to here.
constexpr int kLargestCoordinate = (1 << 24) - 1;
} // namespace

QString HostMessages::serverName(const QString &suffix)
{
    return QString(kServerName).arg(suffix);
}

QStringList HostMessages::split(const QString &message)
{
    return message.split(kFieldSeparator);
}

QString HostMessages::join(const QStringList &fields)
{
    return fields.join(kFieldSeparator);
}

bool HostMessages::isNamed(const QString &message, QLatin1String name)
{
    return message.startsWith(name) && (message.size() == name.size() || message.at(name.size()) == kFieldSeparator);
}

QString HostMessages::text(const QStringList &fields, int index)
{
    return fields.value(index);
}

int HostMessages::number(const QStringList &fields, int index)
{
    return fields.value(index).toInt();
}

QString HostMessages::stepMessage(const Step &step)
{
    const int flags = (step.nextVisible ? kNextFlag : 0) | (step.yesNoVisible ? kYesNoFlag : 0)
        | (step.arrowVisible ? kArrowFlag : 0);
    return message(FromHost::kIndicator, FromHost::kUpdate, step.x, step.y, step.windowKey, step.hint, flags,
                   step.iconType);
}

HostMessages::Step HostMessages::readStep(const QStringList &fields)
{
    const int flags = number(fields, 6);
    Step step;
    step.x = number(fields, 2);
    step.y = number(fields, 3);
    step.windowKey = text(fields, 4);
    step.hint = text(fields, 5);
    step.nextVisible = flags & kNextFlag;
    step.yesNoVisible = flags & kYesNoFlag;
    step.arrowVisible = flags & kArrowFlag;
    step.iconType = number(fields, 7);
    return step;
}

QString HostMessages::startMessage(const QRect &hostRect)
{
    return message(FromHost::kStart, hostRect.x(), hostRect.y(), hostRect.width(), hostRect.height());
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
