#include "SystemService/InputMethodBlocker.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodQueryEvent>
#include <QWindow>

void *InputMethodBlocker::associate(QWindow *window, void *context)
{
    if (!context)
        return new InputMethodBlocker(window);

    // The handle is only compared, since a window takes its blocker along when it is destroyed.
    const auto blockers = window->findChildren<InputMethodBlocker *>(QString(), Qt::FindDirectChildrenOnly);
    for (InputMethodBlocker *blocker : blockers) {
        if (blocker == context) {
            delete blocker;
            QGuiApplication::inputMethod()->update(Qt::ImEnabled);
        }
    }
    return nullptr;
}

InputMethodBlocker::InputMethodBlocker(QWindow *window) : QObject(window)
{
    connect(window, &QWindow::focusObjectChanged, this, &InputMethodBlocker::watch);
    watch(window->focusObject());
}

bool InputMethodBlocker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::InputMethodQuery)
        return false;
    auto *query = static_cast<QInputMethodQueryEvent *>(event);
    if (!(query->queries() & Qt::ImEnabled))
        return false;
    watched->event(event); // one event can carry further questions
    query->setValue(Qt::ImEnabled, false);
    return true;
}

// Qt asks the object that has the focus (in a Qt Quick window the item, not the window), and asks
// it before others hear of a change of the focus: hence the update, by which it asks again.
void InputMethodBlocker::watch(QObject *focusObject)
{
    if (mFocusObject)
        mFocusObject->removeEventFilter(this);
    mFocusObject = focusObject;
    if (mFocusObject)
        mFocusObject->installEventFilter(this);
    QGuiApplication::inputMethod()->update(Qt::ImEnabled);
}
