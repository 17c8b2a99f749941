#include "SystemService/InputContext.h"

#include "SystemService/InputMethodBlocker.h"

void *associateInputContext(QWindow *window, void *context)
{
    return InputMethodBlocker::associate(window, context);
}
