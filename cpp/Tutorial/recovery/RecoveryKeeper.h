#pragma once

#include "Tutorial/recovery/RecoveryContext.h"
#include "Tutorial/recovery/RecoveryWriter.h"

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QThread>
#include <QTimer>

#include <memory>

/// Keeps the copy of what is unsaved: writes it soon after a change and at most once a second, and throws it away as
/// soon as nothing is unsaved any more.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// Copies go into that folder.
    RecoveryKeeper(RecoveryContext *context, const QString &root, QObject *parent = nullptr);
    ~RecoveryKeeper() override;

    /// The document has changed, or whether it is modified.
    void noteChange();
    /// What stands in a field of an item and was not handed over; an invalid value when nothing does.
    void setTyped(int itemId, const QString &field, const QVariant &value);
    /// What is unsaved is given up by the writer.
    void forget();
    /// Brings the copy up to date; comes back when it is on the disk.
    void flush();
    /// Has a copy that was taken up again as its own from here on.
    void adopt(std::unique_ptr<RecoveryFolder> folder, const QString &path);

Q_SIGNALS:
    /// What is unsaved can't be written as a copy, or no longer so.
    void failingChanged(bool failing);

    void writeRequested(const QString &project, const UnsavedWork &work);
    void removeRequested();

private:
    bool isNeeded() const;
    void write();
    void setFailing(bool failing);
    void onWritten(RecoveryWriter::Outcome outcome, qint64 milliseconds);
    void sync();

    RecoveryContext *mContext;
    QThread mThread;
    RecoveryWriter *mWriter; // in the thread, and goes with it
    QTimer mTimer;
    QElapsedTimer mSinceWrite;
    qint64 mPause;
    QHash<QString, TypedValue> mTyped; // by field
    bool mDue = false;
    bool mWriting = false;
    bool mFailing = false;
};
