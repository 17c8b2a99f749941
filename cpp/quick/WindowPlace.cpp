#include "quick/WindowPlace.h"

#include <algorithm>

namespace
{
// How much of the upper edge a mouse can take hold of.
constexpr QSize kHandle(64, 8);
// Room for the frame, which is known only after the window has been shown.
constexpr int kTitleHeight = 32;
constexpr int kBorder = 8;

bool canBeMoved(const QRect &window, const QVector<QRect> &screens)
{
    const QRect edge(window.topLeft(), QSize(window.width(), kHandle.height()));
    return std::any_of(screens.begin(), screens.end(), [&edge](const QRect &screen) {
        const QRect seen = edge & screen;
        return seen.height() == edge.height() && seen.width() >= qMin(kHandle.width(), edge.width());
    });
}

bool isHalfSeen(const QRect &window, const QVector<QRect> &screens)
{
    const auto area = [](const QRect &rect) { return qint64(rect.width()) * rect.height(); };
    qint64 seen = 0;
    for (const QRect &screen : screens)
        seen += area(window & screen);
    return 2 * seen >= area(window);
}

int distance(const QRect &a, const QRect &b)
{
    return (a.center() - b.center()).manhattanLength();
}
} // namespace

QRect WindowPlace::inSight(const QRect &window, const QVector<QRect> &screens)
{
    if (screens.isEmpty())
        return window;
    QRect all;
    for (const QRect &screen : screens)
        all |= screen;
    const bool fits = window.width() <= all.width() && window.height() <= all.height();
    if (fits && canBeMoved(window, screens) && isHalfSeen(window, screens))
        return window;
    const QRect &nearest = *std::min_element(screens.begin(), screens.end(), [&window](const QRect &a, const QRect &b) {
        return distance(a, window) < distance(b, window);
    });
    const QRect room = nearest.adjusted(kBorder, kTitleHeight, -kBorder, -kBorder);
    QRect placed(window.topLeft(), window.size().boundedTo(room.size()));
    placed.moveLeft(qBound(room.left(), placed.left(), room.right() - placed.width() + 1));
    placed.moveTop(qBound(room.top(), placed.top(), room.bottom() - placed.height() + 1));
    return placed;
}
