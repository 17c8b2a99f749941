#pragma once

#include <QString>

/// A lock that one process at a time has, on a file that is made for it. It ends with its process, whatever ends that.
///
/// It wants nothing of the disk once the file is there. A file system without locks refuses none.
class FileLock
{
public:
    explicit FileLock(const QString &path) : mPath(path) { }
    ~FileLock() { release(); }

    /// False while another one has it, or if the file can't be opened.
    bool take();
    void release();
    const QString &path() const { return mPath; }

private:
    Q_DISABLE_COPY(FileLock)

    static constexpr qintptr kNone = -1;

    const QString mPath;
    qintptr mHandle = kNone;
};
