#include "tool/FileLock.h"

#include <qt_windows.h>

bool FileLock::take()
{
    // Who has opened it shares it with nobody.
    const std::wstring name = mPath.toStdWString();
    const HANDLE handle =
        CreateFileW(name.c_str(), GENERIC_READ, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    mHandle = reinterpret_cast<qintptr>(handle);
    return true;
}

void FileLock::release()
{
    if (mHandle != kNone)
        CloseHandle(reinterpret_cast<HANDLE>(mHandle));
    mHandle = kNone;
}
