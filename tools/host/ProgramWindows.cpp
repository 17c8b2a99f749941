#include "ProgramWindows.h"

#include <algorithm>

namespace
{
constexpr QSize kButtonSize(64, 32);
} // namespace

QVector<QRect> ProgramWindows::buttons(const QVector<QRect> &windows)
{
    QVector<QRect> found;
    for (const QRect &window : windows) {
        if (window.size() == kButtonSize)
            found.append(window);
    }
    std::sort(found.begin(), found.end(), [](const QRect &a, const QRect &b) { return a.x() < b.x(); });
    return found;
}
