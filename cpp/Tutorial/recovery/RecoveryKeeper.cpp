#include "Tutorial/recovery/RecoveryKeeper.h"

RecoveryContext::~RecoveryContext() = default;

namespace
{
constexpr qint64 kPause = 1000;
// Until it is tried again after a failure.
constexpr qint64 kFailurePause = 3000;
// The changes of one gesture come together.
constexpr qint64 kGesture = 50;
// Of a very large tutorial the copies take no more than one part in so many of the time.
constexpr qint64 kShare = 10;
} // namespace

RecoveryKeeper::RecoveryKeeper(RecoveryContext *context, const QString &root, QObject *parent)
    : QObject(parent)
    , mContext(context)
    , mWriter(new RecoveryWriter(root))
    , mPause(kPause)
{
    mWriter->moveToThread(&mThread);
    connect(&mThread, &QThread::finished, mWriter, &QObject::deleteLater);
    // Told, so that the type of the argument is known to the queue.
    connect(this, &RecoveryKeeper::writeRequested, mWriter, &RecoveryWriter::write, Qt::QueuedConnection);
    connect(this, &RecoveryKeeper::removeRequested, mWriter, &RecoveryWriter::remove);
    connect(mWriter, &RecoveryWriter::written, this, &RecoveryKeeper::onWritten);
    qRegisterMetaType<RecoveryWriter::Outcome>();
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer);
    connect(&mTimer, &QTimer::timeout, this, &RecoveryKeeper::write);
    mThread.start();
}

RecoveryKeeper::~RecoveryKeeper()
{
    // A thread that is told to quit leaves undone what it was asked for.
    sync();
    mThread.quit();
    mThread.wait();
}

bool RecoveryKeeper::isNeeded() const
{
    return mContext->isKeepable() && (mContext->isModified() || !mTyped.isEmpty());
}

void RecoveryKeeper::noteChange()
{
    if (!isNeeded()) {
        forget();
        return;
    }
    mDue = true;
    if (mWriting || mTimer.isActive())
        return;
    const qint64 rest = mSinceWrite.isValid() ? mPause - mSinceWrite.elapsed() : 0;
    mTimer.start(static_cast<int>(qMax(kGesture, rest)));
}

void RecoveryKeeper::setTyped(int itemId, const QString &field, const QVariant &value)
{
    if (value.isValid())
        mTyped.insert(field, { itemId, field, value });
    else if (mTyped.remove(field) == 0)
        return;
    noteChange();
}

void RecoveryKeeper::forget()
{
    mDue = false;
    mTimer.stop();
    setFailing(false);
    Q_EMIT removeRequested();
}

void RecoveryKeeper::write()
{
    if (!isNeeded()) {
        forget();
        return;
    }
    mDue = false;
    mSinceWrite.start();
    mWriting = true;
    Q_EMIT writeRequested(mContext->project(), mContext->unsavedWork(mTyped.values()));
}

void RecoveryKeeper::setFailing(bool failing)
{
    if (mFailing == failing)
        return;
    mFailing = failing;
    Q_EMIT failingChanged(failing);
}

void RecoveryKeeper::onWritten(RecoveryWriter::Outcome outcome, qint64 milliseconds)
{
    const bool mayComeRight = outcome == RecoveryWriter::Outcome::Failed;
    mPause = qMax(mayComeRight ? kFailurePause : kPause, milliseconds * kShare);
    mWriting = false;
    setFailing(outcome != RecoveryWriter::Outcome::Kept);
    if (mDue || mayComeRight)
        noteChange();
}

void RecoveryKeeper::flush()
{
    if (mDue) {
        mTimer.stop();
        write();
    }
    sync();
}

void RecoveryKeeper::adopt(std::unique_ptr<RecoveryFolder> folder, const QString &path)
{
    sync();
    mWriter->adopt(std::move(folder), mContext->project(), path);
}

void RecoveryKeeper::sync()
{
    QMetaObject::invokeMethod(mWriter, "sync", Qt::BlockingQueuedConnection);
}
