#include "SystemService/InputContext.h"

#include <QWindow>

#include <qt_windows.h>

#include <imm.h>

void *associateInputContext(QWindow *window, void *context)
{
    return ImmAssociateContext(reinterpret_cast<HWND>(window->winId()), static_cast<HIMC>(context));
}
