#include "SystemService/InputContext.h"

#include "SystemService/InputMethodBlocker.h"

#include <QVariant>
#include <QWindow>

#include <qt_windows.h>

#include <imm.h>

namespace
{
constexpr char kTaken[] = "trelvaneInputContext";
} // namespace

// Qt gives a window its input context back whenever the focus moves in it or comes to it, unless what has the focus
// answers that it takes no text: hence the blocker, which stands for the context.
void *associateInputContext(QWindow *window, void *context)
{
    const auto handle = reinterpret_cast<HWND>(window->winId());
    if (context) {
        ::ImmAssociateContext(handle, static_cast<HIMC>(window->property(kTaken).value<void *>()));
    } else {
        void *taken = ::ImmAssociateContext(handle, nullptr);
        window->setProperty(kTaken, QVariant::fromValue(taken));
    }
    return InputMethodBlocker::associate(window, context);
}
