#include "ProgramWindows.h"

#include <algorithm>

namespace
{
// A button is twice as wide as high. The desktop may scale it.
constexpr int kButtonHeight = 32; // pixels
constexpr int kMostScale = 4;

bool isButton(const QSize &size)
{
    return qAbs(size.width() - 2 * size.height()) <= 1 && size.height() >= kButtonHeight
        && size.height() <= kMostScale * kButtonHeight;
}
} // namespace

QVector<QRect> ProgramWindows::buttons(const QVector<QRect> &windows)
{
    QVector<QRect> found;
    for (const QRect &window : windows) {
        if (isButton(window.size()))
            found.append(window);
    }
    std::sort(found.begin(), found.end(), [](const QRect &a, const QRect &b) { return a.x() < b.x(); });
    return found;
}
