#pragma once

#include <QRect>
#include <QVector>

/// Where a window that is remembered from an earlier run shall stand on the screens of now.
namespace WindowPlace
{
/// The window's own rectangle while half of it is seen, with its upper edge, by which it can be moved, and it is no
/// larger than all screens; else the next one that is wholly on a screen, smaller if need be.
/// \param window without its frame, in the toolkit's coordinates as all rectangles here
/// \param screens what is free for windows on each of them; without any, the window stays
QRect inSight(const QRect &window, const QVector<QRect> &screens);
} // namespace WindowPlace
