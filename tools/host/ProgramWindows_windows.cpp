#include "ProgramWindows.h"

#include <QTimer>

#include <qt_windows.h>

namespace
{
struct Search
{
    qint64 process;
    QVector<QRect> found;
};

BOOL CALLBACK collect(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DWORD process = 0;
    RECT place{};
    ::GetWindowThreadProcessId(window, &process);
    if (::IsWindowVisible(window) && (search->process == 0 || search->process == process)
        && ::GetWindowRect(window, &place))
        search->found.append(QRect(QPoint(place.left, place.top), QPoint(place.right - 1, place.bottom - 1)));
    return TRUE;
}

void sendMouse(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    ::SendInput(1, &input, sizeof(INPUT));
}
} // namespace

bool ProgramWindows::isAvailable()
{
    return true;
}

void ProgramWindows::list(const Answer &answer)
{
    QTimer::singleShot(0, this, [this, answer] {
        Search search{ mProcessId, {} };
        ::EnumWindows(collect, reinterpret_cast<LPARAM>(&search));
        answer(search.found);
    });
}

void ProgramWindows::click(const QPoint &position)
{
    ::SetCursorPos(position.x(), position.y());
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_LEFTUP);
}
