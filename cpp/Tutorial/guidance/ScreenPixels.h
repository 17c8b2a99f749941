#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

class QWidget;

/// The host editor's pixels in the toolkit's coordinates. The two are the same until the user has the toolkit scale:
/// then each screen keeps its origin, and lengths on it count less by its scale.
namespace ScreenPixels
{
struct Screen
{
    QRect geometry; ///< in the toolkit's coordinates
    double scale; ///< pixels of each unit

    /// What the screen covers, in pixels.
    QRect pixels() const;
    QPoint fromPixels(const QPoint &pixel) const;
    QPoint toPixels(const QPoint &place) const;
};

struct Placement
{
    QPoint place; ///< of the window's corner, in the toolkit's coordinates
    QPoint corner; ///< the same in pixels
    double scale; ///< that the window is drawn with
    /// False if the point can't get there in one move: the window then comes to the screen first, and is to be placed
    /// again as soon as the toolkit has noticed.
    bool settled;
};

/// Where a window has to be placed for one of its points to stand on a pixel.
/// \param anchor the point, in units of the window
/// \param size of the window
/// \param current the screen that the window is on. The toolkit leaves the window there as long as its centre is on no
/// other one, and takes its scale from there.
Placement placement(const QPoint &pixel, const QPoint &anchor, const QSize &size, const QVector<Screen> &screens,
                    int current);

/// The same for a window and the screens of now.
Placement placement(const QPoint &pixel, const QPoint &anchor, const QWidget *window);

/// The pixel of a place in the toolkit's coordinates.
QPoint toPixels(const QPoint &place);
} // namespace ScreenPixels
