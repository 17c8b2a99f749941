#pragma once

#include "Tutorial/recovery/RecoveryKeeper.h"
#include "UndoRedo/UndoRedo.h"

#include <QStringList>

/// Brings back what a writer had not saved when the program ended without having been asked to: it keeps a copy of
/// what is unsaved, and offers those that earlier processes have left. The screens ask the writer.
///
/// It does nothing before begin(), which the authoring mode alone calls.
class Recovery : public QObject
{
    Q_OBJECT
    /// Whether a copy waits for the writer's answer.
    Q_PROPERTY(bool offered READ isOffered NOTIFY offerChanged)
    /// The tutorial whose copy that is, and what has become of its file, if anything.
    Q_PROPERTY(QString offeredFile READ offeredFile NOTIFY offerChanged)
    Q_PROPERTY(QString offeredRemark READ offeredRemark NOTIFY offerChanged)
    /// Tells that no copy of what is unsaved can be kept; empty while one can. To be shown where it stops nobody who
    /// types.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

public:
    explicit Recovery(RecoveryContext *context, QObject *parent = nullptr);
    ~Recovery() override;

    /// From here on copies are kept, and offered: now those of all tutorials of the project.
    Q_INVOKABLE void begin(UndoRedo *history);
    /// Offers a copy of the tutorial that was loaded from that file.
    void lookFor(const QString &path);

    bool isOffered() const { return mFolder != nullptr; }
    QString offeredFile() const;
    QString offeredRemark() const;
    QString notice() const { return mNotice; }
    /// A line for each difference between the files and what the offered copy would make of them.
    Q_INVOKABLE QStringList differences() const;
    /// Makes the offered copy the loaded tutorial. The reason for a failure is returned.
    Q_INVOKABLE QString restore();
    /// Throws the offered copy away, and offers the next one of the same.
    Q_INVOKABLE void discard();
    /// Leaves the offered copy for the next time.
    Q_INVOKABLE void postpone();

    /// What stands in a field and was not handed over; undefined when nothing does.
    Q_INVOKABLE void setTyped(int itemId, const QString &field, const QVariant &value);
    /// The writer gives up what is unsaved.
    Q_INVOKABLE void forgetChanges();
    /// The document has changed, or whether it is modified.
    void noteChange();
    /// Brings the copy up to date, for what comes next may end the process.
    void flush();

Q_SIGNALS:
    void offerChanged();
    void noticeChanged();
    /// Something went wrong that the writer should know of.
    void failed(const QString &message);

private:
    QStringList differencesOf(const RecoveryCopy &copy) const;

    RecoveryContext *mContext;
    std::unique_ptr<RecoveryKeeper> mKeeper;
    // What is offered, and how it was looked for.
    std::unique_ptr<RecoveryFolder> mFolder;
    RecoveryCopy mCopy;
    QString mWantedPath;
    QString mNotice;
};
