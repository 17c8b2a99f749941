#include "SyntheticInput.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace
{
constexpr int kDragSteps = 12;

// The innermost widget at the position, with the position in its coordinates.
QWidget *innermost(QWidget *widget, QPoint &position)
{
    QWidget *child = widget->childAt(position);
    if (!child)
        return widget;
    position = child->mapFrom(widget, position);
    return child;
}

void sendMouse(const QPointer<QWidget> &widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    if (!widget)
        return;
    QMouseEvent event(type, position, widget->window()->mapFromGlobal(widget->mapToGlobal(position)),
                      widget->mapToGlobal(position), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void sendKey(const QPointer<QWidget> &widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        if (!widget)
            return;
        QKeyEvent event(type, key, modifiers, text);
        QCoreApplication::sendEvent(widget, &event);
    }
}
} // namespace

void SyntheticInput::click(QWidget *widget, const QPoint &position, Qt::MouseButton button)
{
    QPoint place = position;
    const QPointer<QWidget> target = innermost(widget, place);
    sendMouse(target, QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
    sendMouse(target, QEvent::MouseButtonPress, place, button, button);
    sendMouse(target, QEvent::MouseButtonRelease, place, button, Qt::NoButton);
}

void SyntheticInput::doubleClick(QWidget *widget, const QPoint &position)
{
    click(widget, position);
    QPoint place = position;
    const QPointer<QWidget> target = innermost(widget, place);
    sendMouse(target, QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton);
    sendMouse(target, QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
}

void SyntheticInput::drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    const QPointer<QWidget> target = widget;
    sendMouse(target, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int i = 1; i <= kDragSteps; ++i)
        sendMouse(target, QEvent::MouseMove, from + (to - from) * i / kDragSteps, Qt::NoButton, Qt::LeftButton);
    sendMouse(target, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void SyntheticInput::pressKey(QWidget *widget, int key)
{
    widget->setFocus();
    sendKey(widget, key, Qt::NoModifier, QString());
}

void SyntheticInput::typeOver(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> target = widget;
    widget->setFocus();
    sendKey(target, Qt::Key_A, Qt::ControlModifier, QString());
    for (const QChar letter : text)
        sendKey(target, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
}
