#include "ArrowAim.h"

namespace
{
constexpr int kTurnsBackAt = 65;
constexpr int kTipIsLower = 27;
} // namespace

QPoint ArrowAim::aimAt(const QPoint &place)
{
    mUpsideDown = place.y() < (mUpsideDown ? kTurnsBackAt : 0);
    return mUpsideDown ? place - QPoint(0, kTipIsLower) : place;
}
