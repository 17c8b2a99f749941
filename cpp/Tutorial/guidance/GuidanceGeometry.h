#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the guidance windows come to stand and how they get there, as functions of numbers without
/// state. All lengths are pixels; the places of windows are in screen coordinates, the others in
/// coordinates of the tooltip window. Any int may come in as a target: no result overflows.
namespace GuidanceGeometry
{
const int kNoPosition = -9999; ///< in x and y: the step has no target
const int kArrowSize = 128; ///< width and height of the arrow's picture, whether it loaded or not
const QPoint kArrowTip(38, 133); ///< at rest and not flipped, in the tooltip window
const int kTextWidth = 256;
const int kTextTop = 56; ///< the icon's row is above
const int kIconSize = 56; ///< the largest icon's width and height
const QSize kTooltipSize(640, 480);
const QSize kButtonSize(64, 32);
/// No text is made larger: nobody writes such ones, and their end is far out of sight. Windows' style keeps a picture
/// as wide as the widest and as high as the highest frame that it has ever drawn, and crashes at 2 GB.
const QSize kMostText(8192, 4096);

/// On which side of the target the windows lie.
struct Flips
{
    bool vertical; ///< below the normal place
    bool horizontal; ///< to the left of the target

    bool operator==(const Flips &other) const;
    bool operator!=(const Flips &other) const;
};

/// Where the tooltip window comes to rest, limited to the coordinates that single precision tells apart.
QPoint restingPlace(const QPoint &target, const Flips &flips);

/// The windows are close enough to their resting place for the flips to be decided anew.
bool isNear(const QPoint &current, const QPoint &rest);

/// The flips for a target near by. They only change with some distance to go back, so that a target
/// at rest never makes them toggle.
Flips decideFlips(const QPoint &target, const QRect &hostRect, const Flips &flips);

/// Where the tooltip window stands after one tick: a quarter of the way on, or at rest once it is
/// within two pixels. As the step is truncated towards zero, a way of three pixels may not be gone.
QPoint easingStep(const QPoint &current, const QPoint &rest);

/// The arrow's tip at rest, in the tooltip window.
QPoint arrowTip(const Flips &flips);

/// The top left of the hint's text edit.
QPoint textPlace(bool flipHorizontal);
/// The top left of an icon of a width.
QPoint iconPlace(int iconWidth, bool flipHorizontal);

/// The place of the Next and Yes buttons on the screen, with the tooltip window at `window`.
QPoint nextButtonPlace(const QPoint &window, int hintHeight);
/// The place of the No button, which overlaps the one before by a few pixels.
QPoint noButtonPlace(const QPoint &window, int hintHeight);

/// What a tick repaints: the arrow and what it may hide, or the whole window.
QRect repaintRect(bool flipHorizontal, bool fullClear);
/// What a paint clears for the arrow, with the way of its bounce.
QRect arrowClearRect(bool flipHorizontal);
/// What a paint clears for the icon.
QRect iconClearRect(bool flipHorizontal);

/// How far the arrow hangs below its highest place, 0 to 16, some milliseconds into the step: at rest
/// for a second, up and down again in the next one.
int bounceOffset(qint64 milliseconds);

/// The top left of a window whose content of a size is centred on a point.
QPoint centredPlace(const QPoint &centre, const QSize &size);
} // namespace GuidanceGeometry
