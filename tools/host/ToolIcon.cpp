#include "ToolIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

QIcon ToolIcon::make(DrawingCanvas::Tool tool)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(44, 62, 80), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (tool) {
    case DrawingCanvas::Tool::Select:
        painter.setBrush(Qt::white);
        painter.drawPolygon(QPolygonF(
            { { 5, 2 }, { 5, 16 }, { 8.5, 12.5 }, { 11, 18 }, { 13.2, 17 }, { 10.8, 11.6 }, { 15.5, 11.2 } }));
        break;
    case DrawingCanvas::Tool::Rectangle:
        painter.setBrush(QColor(126, 179, 232));
        painter.drawRect(QRectF(2.5, 4.5, 15, 11));
        break;
    case DrawingCanvas::Tool::Ellipse:
        painter.setBrush(QColor(246, 183, 94));
        painter.drawEllipse(QRectF(2, 4, 16, 12));
        break;
    case DrawingCanvas::Tool::Erase:
        painter.setBrush(QColor(240, 160, 170));
        painter.drawPolygon(QPolygonF({ { 3, 13 }, { 11, 3 }, { 17, 8 }, { 9.5, 17 }, { 6, 17 } }));
        painter.drawLine(QPointF(7, 8), QPointF(13, 12.6));
        break;
    }
    return QIcon(pixmap);
}
