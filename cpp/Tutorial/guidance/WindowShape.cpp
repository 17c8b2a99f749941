#include "Tutorial/guidance/WindowShape.h"

#include "Tutorial/guidance/WindowPlatform.h"

#include <QBitmap>
#include <QImage>
#include <QWidget>

namespace WindowShape
{
QRegion opaquePart(const QImage &image)
{
    return QRegion(QBitmap::fromImage(image.createAlphaMask()));
}

void update(QWidget *window, const std::function<QRegion()> &drawn)
{
    if (WindowPlatform::isComposed()) {
        if (!window->mask().isEmpty())
            window->clearMask();
        return;
    }
    QRegion shape = drawn();
    // An empty mask would be none.
    if (shape.isEmpty())
        shape = QRegion(-1, -1, 1, 1);
    if (shape != window->mask()) {
        window->setMask(shape);
        // An empty shape leaves nothing to paint that would send it.
        WindowPlatform::flush();
    }
}

void updateFixed(QWidget *window)
{
    update(window, [window] {
        if (!window->mask().isEmpty())
            return window->mask();
        QImage image(window->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        window->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return opaquePart(image);
    });
}
} // namespace WindowShape
