#include "Tutorial/guidance/WindowActivation.h"

#include "Tutorial/guidance/GuidanceContext.h"

#include <QEvent>
#include <QWidget>

void WindowActivation::follow(QWidget *window, const QEvent &event, GuidanceContext *context, Loss loss)
{
    if (event.type() != QEvent::ActivationChange)
        return;
    if (window->isActiveWindow())
        context->dropPopupWindowKey();
    else if (loss == TakeBack)
        window->activateWindow();
    context->updateGuidanceVisibility();
}
