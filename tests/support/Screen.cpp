#include "support/Screen.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

QVector<QRect> Screen::places(qint64 process, const QSize &size)
{
    QVector<QRect> places;
    for (const Window &window : windows(process)) {
        if (window.place.size() == size)
            places.append(window.place);
    }
    return places;
}

QImage Screen::pixels(const QRect &place)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}
