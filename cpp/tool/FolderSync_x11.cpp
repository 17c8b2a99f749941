#include "tool/FolderSync.h"

#include "tool/Log.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

bool syncFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // It may be closed to readers.
    if (folder < 0)
        return true;
    int result = ::fsync(folder);
    while (result != 0 && errno == EINTR)
        result = ::fsync(folder);
    const int error = errno;
    ::close(folder);
    // File systems that can't do it say so by this.
    if (result == 0 || error == EINVAL || error == ENOTSUP)
        return true;
    Log::warning("cpp/tool", "syncFolder", __LINE__) << "Failed to sync" << path << std::strerror(error);
    return false;
}
