#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

/// The place of one copy on the disk: a folder of its own with a lock in it, by which other processes see that its
/// process lives.
class RecoveryFolder
{
public:
    /// A new folder for the copy of a tutorial, which the root folder then holds; null if it can't be made. The project
    /// is the folder of the translations that belong to the tutorial.
    static std::unique_ptr<RecoveryFolder> create(const QString &root, const QString &project, const QString &path);
    /// The newest copy of the project, and of that tutorial unless the path is empty, that no living process holds;
    /// null if there is none. What is left over without a copy is cleared away.
    static std::unique_ptr<RecoveryFolder> takeAbandoned(const QString &root, const QString &project,
                                                         const QString &path);

    bool write(const QByteArray &bytes) const;
    bool read(QByteArray &bytes) const;
    /// Removes it with the copy.
    void remove();
    /// Keeps what can't be read for a closer look, under the name that is returned, where nobody takes it for a copy.
    QString setAside();

private:
    explicit RecoveryFolder(const QString &path);

    QString copyPath() const;

    const QString mPath;
    QLockFile mLock;
};
