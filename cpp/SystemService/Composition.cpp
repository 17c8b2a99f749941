#include "SystemService/Composition.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QVariant>

namespace
{
// The text fields of Qt Quick tell it by a property of this name.
QString composedText(const QObject *field)
{
    return field ? field->property("preeditText").toString() : QString();
}
} // namespace

Composition::Composition(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

void Composition::finish()
{
    QInputMethod *method = QGuiApplication::inputMethod();
    method->commit();
    QObject *field = QGuiApplication::focusObject();
    if (composedText(field).isEmpty())
        return;
    take(field);
    // It may hand them over now.
    mResetting = true;
    method->reset();
    mResetting = false;
}

bool Composition::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // In the field itself, too, it moves the cursor.
        if (watched->isWindowType() && !composedText(QGuiApplication::focusObject()).isEmpty())
            finish();
        return false;
    case QEvent::FocusOut:
        if (!composedText(watched).isEmpty()) {
            take(watched);
            mLeftField = watched;
        }
        return false;
    case QEvent::FocusIn:
        if (watched == mLeftField)
            mLeftField.clear();
        return false;
    case QEvent::InputMethod:
        return mResetting || (watched == mLeftField && watched != QGuiApplication::focusObject());
    default:
        return false;
    }
}

void Composition::take(QObject *field)
{
    QInputMethodEvent event;
    event.setCommitString(composedText(field));
    QCoreApplication::sendEvent(field, &event);
}
