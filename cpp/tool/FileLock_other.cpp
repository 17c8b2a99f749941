#include "tool/FileLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// Whether it was not removed while it was opened.
bool isStillThere(int handle, const char *name)
{
    struct stat opened = {};
    struct stat there = {};
    return fstat(handle, &opened) == 0 && stat(name, &there) == 0 && opened.st_dev == there.st_dev
        && opened.st_ino == there.st_ino;
}
} // namespace

bool FileLock::take()
{
    const QByteArray name = QFile::encodeName(mPath);
    int handle = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (handle < 0)
        handle = open(name.constData(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return false;
    const bool isOthers = flock(handle, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isOthers || !isStillThere(handle, name.constData())) {
        close(handle);
        return false;
    }
    mHandle = handle;
    return true;
}

void FileLock::release()
{
    if (mHandle != kNone)
        close(static_cast<int>(mHandle));
    mHandle = kNone;
}
