#pragma once

#include "Tutorial/recovery/RecoveryContext.h"
#include "Tutorial/recovery/RecoveryFolder.h"

#include <QObject>

/// Puts together, writes and removes the copy of this process. It lives in a thread of its own, so that nobody who
/// types waits for it; what it is asked for is done in that order.
class RecoveryWriter : public QObject
{
    Q_OBJECT

public:
    enum class Outcome { Kept, Failed, TooLarge };
    Q_ENUM(Outcome)

    explicit RecoveryWriter(const QString &root) : mRoot(root) { }

    /// Takes a copy over as its own. Only while nothing that it was asked for is under way.
    void adopt(std::unique_ptr<RecoveryFolder> folder, const QString &project, const QString &path);

public Q_SLOTS:
    /// Replaces the copy by that of a tutorial.
    void write(const QString &project, const UnsavedWork &work);
    void remove();
    /// Comes back when all that was asked for before is done.
    void sync() { }

Q_SIGNALS:
    /// With the time that it took to put the copy together.
    void written(RecoveryWriter::Outcome outcome, qint64 milliseconds);

private:
    const QString mRoot;
    QString mProject;
    QString mPath;
    std::unique_ptr<RecoveryFolder> mFolder;
};
