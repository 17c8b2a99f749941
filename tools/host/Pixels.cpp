#include "Pixels.h"

#include <QGuiApplication>
#include <QScreen>

namespace
{
// A screen keeps its origin.
QPoint scaled(const QPoint &place, const QScreen *screen)
{
    const QPoint origin = screen->geometry().topLeft();
    return origin + (place - origin) * screen->devicePixelRatio();
}
} // namespace

QPoint Pixels::ofPlace(const QPoint &place)
{
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen->geometry().contains(place))
            return scaled(place, screen);
    }
    return scaled(place, QGuiApplication::primaryScreen());
}

QRect Pixels::ofFirstScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    return { scaled(area.topLeft(), screen), area.size() * screen->devicePixelRatio() };
}
