#pragma once

#include "tool/FileLock.h"

#include <QStringList>

#include <memory>

/// The place of one copy on the disk: a folder of its own with a lock in it, by which other processes see that its
/// process lives.
class RecoveryFolder
{
public:
    /// A new folder for the copy of a tutorial, which the root folder then holds; null if it can't be made. The project
    /// is the folder of the translations that belong to the tutorial.
    static std::unique_ptr<RecoveryFolder> create(const QString &root, const QString &project, const QString &path);
    /// Where copies of the project may be, and of that tutorial unless the path is empty: the newest one first.
    static QStringList find(const QString &root, const QString &project, const QString &path);
    /// The copy at such a place; null if a living process holds it, or if there is none. What is left over without a
    /// copy is cleared away.
    static std::unique_ptr<RecoveryFolder> take(const QString &place);

    bool write(const QByteArray &bytes) const;
    bool read(QByteArray &bytes) const;
    /// Whether nobody has removed it.
    bool isThere() const;
    /// Removes it with the copy. False if the copy is still there.
    bool remove();
    /// Keeps what can't be read for a closer look, under the name that is returned, where nobody takes it for a copy.
    QString setAside();

private:
    explicit RecoveryFolder(const QString &path);

    QString copyPath() const;

    const QString mPath;
    FileLock mLock;
};
