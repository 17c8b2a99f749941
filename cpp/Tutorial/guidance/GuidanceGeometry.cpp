#include "Tutorial/guidance/GuidanceGeometry.h"

#include <cmath>

namespace
{
const int kFlippedLeft = 180; // beside the arrow's width
const int kFlippedDown = 165;
const int kUnflipBelow = 65;
const int kRoomToStay = 256;
const int kRoomToReturn = 218;
const int kReturnMargin = 64;
const int kNoButtonShift = 56;
const double kNearDistance = 256.0;
const int kSnapDistance = 2;
const int kBounce = 16;

// Up to here single precision holds every whole number, and no window system goes as far.
const qint64 kLargestCoordinate = (1 << 24) - 1;

int toCoordinate(qint64 value)
{
    return int(qBound(-kLargestCoordinate, value, kLargestCoordinate));
}

int easingStep(int current, int rest)
{
    const float distance = float(qint64(rest) - current);
    const int next = toCoordinate(qint64(float(current) + distance * 0.25f));
    return qAbs(qint64(next) - rest) <= kSnapDistance ? rest : next;
}
} // namespace

namespace GuidanceGeometry
{
bool Flips::operator==(const Flips &other) const
{
    return vertical == other.vertical && horizontal == other.horizontal;
}

bool Flips::operator!=(const Flips &other) const
{
    return !(*this == other);
}

QPoint restingPlace(const QPoint &target, const Flips &flips)
{
    const qint64 left = flips.horizontal ? kFlippedLeft + kArrowSize : 0;
    const qint64 down = flips.vertical ? kFlippedDown : 0;
    return { toCoordinate(target.x() - left), toCoordinate(target.y() + down) };
}

bool isNear(const QPoint &current, const QPoint &rest)
{
    const double dx = double(rest.x()) - current.x();
    const double dy = double(rest.y()) - current.y();
    return std::sqrt(dx * dx + dy * dy) <= kNearDistance;
}

Flips decideFlips(const QPoint &target, const QRect &hostRect, const Flips &flips)
{
    Flips result = flips;
    if (!flips.vertical && target.y() < 0)
        result.vertical = true;
    else if (flips.vertical && target.y() >= kUnflipBelow)
        result.vertical = false;

    const qint64 right = qint64(hostRect.right()) + 1;
    const qint64 arrowRight = qint64(target.x()) + kArrowSize;
    if (!flips.horizontal && arrowRight + kRoomToStay > right)
        result.horizontal = true;
    else if (flips.horizontal && arrowRight + kRoomToReturn < right - kReturnMargin)
        result.horizontal = false;
    return result;
}

QPoint easingStep(const QPoint &current, const QPoint &rest)
{
    return { ::easingStep(current.x(), rest.x()), ::easingStep(current.y(), rest.y()) };
}

QPoint arrowTip(const Flips &flips)
{
    return { flips.horizontal ? kArrowSize + kTextWidth - kArrowTip.x() : kArrowTip.x(),
             flips.vertical ? kArrowSize - kArrowTip.y() : kArrowTip.y() };
}

QPoint textPlace(bool flipHorizontal)
{
    return { flipHorizontal ? 0 : kArrowSize, kTextTop };
}

QPoint iconPlace(int iconWidth, bool flipHorizontal)
{
    return { flipHorizontal ? kTextWidth - iconWidth : kArrowSize, 0 };
}

QPoint nextButtonPlace(const QPoint &window, int hintHeight)
{
    return { window.x() + kArrowSize, window.y() + kTextTop + hintHeight };
}

QPoint noButtonPlace(const QPoint &window, int hintHeight)
{
    return nextButtonPlace(window, hintHeight) + QPoint(kNoButtonShift, 0);
}

QRect repaintRect(bool flipHorizontal, bool fullClear)
{
    if (fullClear)
        return { QPoint(0, 0), kTooltipSize };
    return { flipHorizontal ? kTextWidth : 0, 0, kArrowSize + kIconSize, kArrowSize + 72 };
}

QRect arrowClearRect(bool flipHorizontal)
{
    return { flipHorizontal ? kTextWidth : 0, 0, kArrowSize, kArrowSize + kBounce };
}

QRect iconClearRect(bool flipHorizontal)
{
    return { iconPlace(kIconSize, flipHorizontal), QSize(kIconSize, kIconSize) };
}

int bounceOffset(qint64 milliseconds)
{
    // The angle is single precision, as the speed and the picture were tuned with it.
    const float angle = float(milliseconds) / 1000.0f * 0.5f * 360.0f * 0.017453292f;
    return int(qMin(16.0, kBounce + kBounce * std::sin(double(angle))));
}

QPoint centredPlace(const QPoint &centre, const QSize &size)
{
    return { toCoordinate(qint64(centre.x()) - size.width() / 2),
             toCoordinate(qint64(centre.y()) - size.height() / 2) };
}
} // namespace GuidanceGeometry
