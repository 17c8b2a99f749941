#include "Tutorial/recovery/RecoveryWriter.h"

#include "tool/DataSupport.h"

void RecoveryWriter::adopt(std::unique_ptr<RecoveryFolder> folder, const QString &project, const QString &path)
{
    remove();
    mFolder = std::move(folder);
    mProject = project;
    mPath = path;
}

void RecoveryWriter::write(const QString &project, const QString &path, const QByteArray &bytes)
{
    if (project != mProject || path != mPath)
        remove();
    if (!mFolder)
        adopt(RecoveryFolder::create(mRoot, project, path), project, path);
    // A larger one could not be read again.
    Q_EMIT written(mFolder && bytes.size() <= DataSupport::kMostBytes && mFolder->write(bytes));
}

void RecoveryWriter::remove()
{
    if (mFolder)
        mFolder->remove();
    mFolder.reset();
}
