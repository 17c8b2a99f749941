#include "quick/ModalGuard.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace
{
QWindow *owner(const QWindow *window)
{
    return window->parent() ? window->parent() : window->transientParent();
}

bool isWithin(const QWindow *window, const QWindow *top)
{
    while (window && window != top)
        window = owner(window);
    return window == top;
}

/// The modal window that blocks the window, or null.
QWindow *blocker(const QWindow *window)
{
    QWindow *modal = QGuiApplication::modalWindow();
    if (!window || !modal || isWithin(window, modal))
        return nullptr;
    return modal->modality() == Qt::ApplicationModal || isWithin(modal, window) ? modal : nullptr;
}
} // namespace

bool ModalGuard::isBlocked(const QWindow *window)
{
    return blocker(window) != nullptr;
}

ModalGuard::ModalGuard(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &ModalGuard::passFocusOn);
    qGuiApp->installEventFilter(this);
}

bool ModalGuard::eventFilter(QObject *watched, QEvent *event)
{
    // A shortcut acts for the window that has the focus.
    if (event->type() == QEvent::Shortcut && blocker(QGuiApplication::focusWindow()))
        return true;
    return QObject::eventFilter(watched, event);
}

void ModalGuard::passFocusOn(QWindow *focused) const
{
    if (QWindow *modal = blocker(focused))
        modal->requestActivate();
}
