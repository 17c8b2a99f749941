#pragma once

#include <QRegion>

#include <functional>

class QImage;
class QWidget;

/// The shapes of translucent windows. Where nothing composes the screen, what such a window leaves
/// out is black, so there it gets the shape of what it draws.
namespace WindowShape
{
/// The pixels that hide more than half of what is below them.
QRegion opaquePart(const QImage &image);

/// Gives a window the shape of what it draws, or takes the shape away as soon as the screen is
/// composed. To be called again whenever either may have changed.
void update(QWidget *window, const std::function<QRegion()> &drawn);

/// The same for a widget whose outline stays as it is.
void updateFixed(QWidget *window);
} // namespace WindowShape
