#include "tool/FilePlatform.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace
{
/// What can't be synchronised, as on some network drives, has no fault.
bool synchroniseHandle(int handle)
{
    int result = fsync(handle);
    while (result != 0 && errno == EINTR)
        result = fsync(handle);
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}
} // namespace

bool FilePlatform::synchronise(QFileDevice &file)
{
    return synchroniseHandle(file.handle());
}

bool FilePlatform::synchroniseFolder(const QString &folder)
{
    const int handle = open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) {
        if (isDiskAtFault())
            return false;
        // A folder may let files be made in it and not be read.
        sync();
        return true;
    }
    const bool synchronised = synchroniseHandle(handle);
    close(handle);
    return synchronised;
}

bool FilePlatform::isDiskAtFault()
{
    switch (errno) {
    case EIO:
    case ENOSPC:
    case EDQUOT:
    case EMFILE:
    case ENFILE:
    case ENOMEM:
        return true;
    default:
        return false;
    }
}

std::FILE *FilePlatform::openEmpty(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    std::FILE *file = std::fopen(name.constData(), "wb");
    return file ? std::freopen(name.constData(), "ab", file) : nullptr;
}
