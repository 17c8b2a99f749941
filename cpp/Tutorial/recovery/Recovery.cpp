#include "Tutorial/recovery/Recovery.h"

#include "Tutorial/recovery/RecoveryContext.h"
#include "Tutorial/recovery/RecoveryDifferences.h"
#include "Tutorial/recovery/RecoveryFolder.h"
#include "TutorialEditor/Manager.h"

#include <QDir>
#include <QStandardPaths>

using TutorialEditor::Manager;

namespace
{
QString rootFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) + QLatin1String("/recovery");
}
} // namespace

Recovery::Recovery(RecoveryContext *context, QObject *parent) : QObject(parent), mContext(context) { }

Recovery::~Recovery() = default;

void Recovery::begin(UndoRedo *history)
{
    mKeeper = std::make_unique<RecoveryKeeper>(mContext, rootFolder());
    connect(mKeeper.get(), &RecoveryKeeper::failingChanged, this, [this](bool failing) {
        mNotice = failing ? tr("No copy of the unsaved changes can be kept in %1. Save more often.")
                                .arg(QDir::toNativeSeparators(rootFolder()))
                          : QString();
        Q_EMIT noticeChanged();
    });
    connect(history, &UndoRedo::documentChanged, this, &Recovery::noteChange);
    lookFor(QString());
}

void Recovery::lookFor(const QString &path)
{
    if (!mKeeper)
        return;
    const QStringList places = RecoveryFolder::find(rootFolder(), mContext->project(), path);
    for (const QString &place : places) {
        std::unique_ptr<RecoveryFolder> folder = RecoveryFolder::take(place);
        if (!folder)
            continue;
        QByteArray bytes;
        RecoveryCopy copy;
        if (!folder->read(bytes) || !copy.read(bytes)) {
            Q_EMIT failed(tr("A copy of unsaved changes is damaged. It was kept as %1").arg(folder->setAside()));
            continue;
        }
        if (!differencesOf(copy).isEmpty()) {
            mFolder = std::move(folder);
            mCopy = copy;
            mWantedPath = path;
            Q_EMIT offerChanged();
            return;
        }
        // A save was done but for its last step.
        folder->remove();
    }
}

QString Recovery::offeredFile() const
{
    return mFolder ? QDir::toNativeSeparators(mCopy.path) : QString();
}

QString Recovery::offeredRemark() const
{
    if (!mFolder)
        return QString();
    switch (Manager::compareFile(mCopy.path, mCopy.fileHash)) {
    case Manager::FileState::Missing:
        return mCopy.fileHash.isEmpty() ? QString() : tr("The file is not there any more.");
    case Manager::FileState::Changed:
        return tr("The file was changed since then.");
    case Manager::FileState::Same:
        break;
    }
    return QString();
}

QStringList Recovery::differences() const
{
    return mFolder ? differencesOf(mCopy) : QStringList();
}

QStringList Recovery::differencesOf(const RecoveryCopy &copy) const
{
    const TutorialState stored = mContext->storedState(copy.path);
    return RecoveryDifferences::lines(stored, RecoveryDifferences::merged(copy, stored));
}

QString Recovery::restore()
{
    if (!mFolder)
        return QString();
    if (!mContext->takeUp(mCopy))
        return tr("The copy can't be read as a tutorial.");
    mKeeper->adopt(std::move(mFolder), mCopy.path);
    Q_EMIT offerChanged();
    return QString();
}

void Recovery::discard()
{
    if (!mFolder)
        return;
    const bool isGone = mFolder->remove();
    mFolder.reset();
    if (isGone)
        lookFor(mWantedPath);
    else
        Q_EMIT failed(tr("The copy can't be removed from %1").arg(QDir::toNativeSeparators(rootFolder())));
    if (!mFolder)
        Q_EMIT offerChanged();
}

void Recovery::postpone()
{
    mFolder.reset();
    Q_EMIT offerChanged();
}

void Recovery::setTyped(int itemId, const QString &field, const QVariant &value)
{
    if (mKeeper)
        mKeeper->setTyped(itemId, field, value);
}

void Recovery::forgetChanges()
{
    if (mKeeper)
        mKeeper->forget();
}

void Recovery::noteChange()
{
    if (mKeeper)
        mKeeper->noteChange();
}

void Recovery::flush()
{
    if (mKeeper)
        mKeeper->flush();
}
