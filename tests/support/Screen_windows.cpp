#include "support/Screen.h"

#include <QTest>

#include <qt_windows.h>

namespace
{
HWND handle(WId window)
{
    return reinterpret_cast<HWND>(window);
}

void send(INPUT input)
{
    ::SendInput(1, &input, sizeof(INPUT));
    QTest::qWait(5);
}

void sendMouse(DWORD flags, LONG x = 0, LONG y = 0)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.dwFlags = flags;
    send(input);
}

void sendKey(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    send(input);
}

/// The windows on the screen, from the top down.
QVector<HWND> allWindows()
{
    QVector<HWND> windows;
    ::EnumWindows(
        [](HWND window, LPARAM found) -> BOOL {
            reinterpret_cast<QVector<HWND> *>(found)->append(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&windows));
    return windows;
}

QRect clientPlace(HWND window)
{
    RECT size{};
    POINT corner{};
    ::GetClientRect(window, &size);
    ::ClientToScreen(window, &corner);
    return QRect(corner.x, corner.y, size.right, size.bottom);
}
} // namespace

void Screen::click(const QPoint &place)
{
    // In parts of 65536 of the screen, each of which the system takes for the pixel that it lies in.
    const auto part = [](int pixel, int size) { return static_cast<LONG>((pixel * 65536LL + 32768) / size); };
    sendMouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, part(place.x(), ::GetSystemMetrics(SM_CXSCREEN)),
              part(place.y(), ::GetSystemMetrics(SM_CYSCREEN)));
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_LEFTUP);
}

void Screen::type(const QString &text)
{
    for (const QChar letter : text) {
        const auto key = static_cast<WORD>(::VkKeyScanW(letter.unicode()) & 0xff);
        sendKey(key, 0);
        sendKey(key, KEYEVENTF_KEYUP);
    }
}

void Screen::focus(WId window)
{
    ::SetForegroundWindow(handle(window));
}

void Screen::raise(WId window)
{
    ::SetWindowPos(handle(window), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

QVector<Screen::Window> Screen::windows(qint64 process)
{
    QVector<Window> found;
    const QVector<HWND> all = allWindows();
    for (int i = 0; i < all.size(); ++i) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(all.at(i), &owner);
        if (owner == process && ::IsWindowVisible(all.at(i)))
            found.append({ clientPlace(all.at(i)), all.size() - i });
    }
    return found;
}

bool Screen::isManaged()
{
    return true;
}

bool Screen::isComposed()
{
    return true;
}
