#include "Tutorial/guidance/ScreenPixels.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace
{
QVector<ScreenPixels::Screen> screensOfNow()
{
    QVector<ScreenPixels::Screen> result;
    for (const QScreen *screen : QGuiApplication::screens())
        result.append({ screen->geometry(), screen->devicePixelRatio() });
    return result;
}

bool isScaled(const QVector<ScreenPixels::Screen> &screens)
{
    return std::any_of(screens.begin(), screens.end(),
                       [](const ScreenPixels::Screen &screen) { return screen.scale != 1; });
}

// The first screen of which it holds, or rather the preferred one; -1 if it holds of none.
template <typename Contains>
int indexOf(const QVector<ScreenPixels::Screen> &screens, int preferred, const Contains &contains)
{
    if (preferred >= 0 && preferred < screens.size() && contains(screens.at(preferred)))
        return preferred;
    for (int i = 0; i < screens.size(); ++i) {
        if (contains(screens.at(i)))
            return i;
    }
    return -1;
}
} // namespace

namespace ScreenPixels
{
QRect Screen::pixels() const
{
    return { geometry.topLeft(), QSize(qRound(geometry.width() * scale), qRound(geometry.height() * scale)) };
}

QPoint Screen::fromPixels(const QPoint &pixel) const
{
    return (QPointF(pixel - geometry.topLeft()) / scale).toPoint() + geometry.topLeft();
}

QPoint Screen::toPixels(const QPoint &place) const
{
    return (QPointF(place - geometry.topLeft()) * scale).toPoint() + geometry.topLeft();
}

Placement placement(const QPoint &pixel, const QPoint &anchor, const QSize &size, const QVector<Screen> &screens,
                    int current)
{
    if (!isScaled(screens))
        return { pixel - anchor, pixel - anchor, 1, true };
    const auto placedBy = [&](const Screen &screen) {
        const QPoint corner = pixel - (QPointF(anchor) * screen.scale).toPoint();
        return Placement{ screen.fromPixels(corner), corner, screen.scale, true };
    };
    const int aimed = indexOf(screens, current, [&](const Screen &screen) { return screen.pixels().contains(pixel); });
    // The screen that the toolkit will reckon with is the one that it finds below the centre: it is tried for each,
    // that of the pixel first, whether it leads to itself.
    QVector<int> order;
    for (const int i : { aimed, current }) {
        if (i >= 0 && i < screens.size())
            order.append(i);
    }
    for (int i = 0; i < screens.size(); ++i)
        order.append(i);
    for (const int i : qAsConst(order)) {
        const Placement placed = placedBy(screens.at(i));
        const QPoint centre = QRect(placed.place, size).center();
        const int found =
            indexOf(screens, current, [&](const Screen &screen) { return screen.geometry.contains(centre); });
        if ((found < 0 ? current : found) == i)
            return placed;
    }
    const Screen &screen = screens.at(order.first());
    Placement placed = placedBy(screen);
    const QRect area = screen.geometry;
    const QPoint centre = QRect(placed.place, size).center();
    placed.place +=
        QPoint(qBound(area.left(), centre.x(), area.right()), qBound(area.top(), centre.y(), area.bottom())) - centre;
    placed.corner = screen.toPixels(placed.place);
    placed.settled = false;
    return placed;
}

Placement placement(const QPoint &pixel, const QPoint &anchor, const QWidget *window)
{
    const QScreen *screen =
        window->windowHandle() ? window->windowHandle()->screen() : QGuiApplication::primaryScreen();
    const int current = QGuiApplication::screens().indexOf(const_cast<QScreen *>(screen));
    return placement(pixel, anchor, window->size(), screensOfNow(), current);
}

QPoint toPixels(const QPoint &place)
{
    const QVector<Screen> screens = screensOfNow();
    const int found = indexOf(screens, 0, [&](const Screen &screen) { return screen.geometry.contains(place); });
    return found < 0 ? place : screens.at(found).toPixels(place);
}
} // namespace ScreenPixels
