#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// Mouse and keyboard input on this process's own widgets, as events that the widgets can't tell
/// from those of a user. Positions are in the widget's coordinates.
namespace SyntheticInput
{
void click(QWidget *widget, const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
void doubleClick(QWidget *widget, const QPoint &position);
void drag(QWidget *widget, const QPoint &from, const QPoint &to);
void pressKey(QWidget *widget, int key);
/// Types over what stands in the widget.
void typeOver(QWidget *widget, const QString &text);
} // namespace SyntheticInput
