#include "Tutorial/recovery/RecoveryWriter.h"

#include "tool/DataSupport.h"

#include <QElapsedTimer>

void RecoveryWriter::adopt(std::unique_ptr<RecoveryFolder> folder, const QString &project, const QString &path)
{
    remove();
    mFolder = std::move(folder);
    mProject = project;
    mPath = path;
}

void RecoveryWriter::write(const QString &project, const UnsavedWork &work)
{
    QElapsedTimer timer;
    timer.start();
    const RecoveryCopy copy = work();
    const QByteArray bytes = copy.toBytes();
    const qint64 milliseconds = timer.elapsed();
    // The copy before stays until there is another one.
    std::unique_ptr<RecoveryFolder> former;
    if (project != mProject || copy.path != mPath)
        former = std::move(mFolder);
    // Somebody may have cleared the program's data away.
    if (!mFolder || !mFolder->isThere())
        adopt(RecoveryFolder::create(mRoot, project, copy.path), project, copy.path);
    Outcome outcome = Outcome::Kept;
    // It could not be read again.
    if (bytes.size() > DataSupport::kMostBytes)
        outcome = Outcome::TooLarge;
    else if (!mFolder || !mFolder->write(bytes))
        outcome = Outcome::Failed;
    if (former && outcome == Outcome::Kept)
        former->remove();
    Q_EMIT written(outcome, milliseconds);
}

void RecoveryWriter::remove()
{
    if (mFolder)
        mFolder->remove();
    mFolder.reset();
}
