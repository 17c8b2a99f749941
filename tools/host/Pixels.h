#pragma once

class QPoint;
class QRect;

/// The screen's pixels, which the link tells, where the toolkit scales.
namespace Pixels
{
QPoint ofPlace(const QPoint &place);
/// What is free for windows on the first screen.
QRect ofFirstScreen();
} // namespace Pixels
