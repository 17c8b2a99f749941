#pragma once

#include "model/EditHistory.h"

#include <QElapsedTimer>
#include <QList>
#include <QQuickItem>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

class AddFolderCommand;
class CreateItemCommand;
class QAction;
class QJSEngine;
class QQmlEngine;
class QUndoCommand;
class QUndoStack;
class TutorialItemData;
class UndoMergeableCommand;

/// The QML singleton for the one undo history of the authoring mode.
///
/// A transaction is the span between a begin and its end. A sequence is one step of the history,
/// named by it. In a single each command is a step of its own, unless the single begins less than a
/// second after one of the same name: then its item commands are folded into the step before.
class UndoRedo : public QQuickItem, public EditHistory
{
    Q_OBJECT
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)

public:
    /// The provider of the singleton. The caller owns the object.
    static QObject *create(QQmlEngine *engine, QJSEngine *scriptEngine);
    /// The history in force, or null when there is none. Not owned by the caller.
    static UndoRedo *instance();
    ~UndoRedo() override;

    bool canUndo() const;
    /// Whether the next step can be done again; the mark of a step that was made
    /// unredoable can't.
    bool canRedo() const;

    Q_INVOKABLE bool inTransaction() override { return mInTransaction; }
    /// Sequences nest: each needs its own end.
    Q_INVOKABLE void beginSequence(const QString &name);
    /// A sequence in which nothing was recorded leaves no step.
    Q_INVOKABLE void endSequence();
    Q_INVOKABLE void beginSingle(const QString &name = QString());
    Q_INVOKABLE void endSingle();
    /// The next single begins a step of its own.
    Q_INVOKABLE void setUnmergeable() { mUnmergeable = true; }
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    /// Forgets all steps and any open transaction. The present state counts as saved.
    Q_INVOKABLE void clear() override;
    /// Takes the last step back and forgets it.
    Q_INVOKABLE void undoAndMakeUnredoable();
    /// There is no view of the steps; the application window calls this when it closes.
    Q_INVOKABLE void closeUndoView() { }
    /// The name of the last transaction that has ended.
    Q_INVOKABLE QString lastTransactionName() const { return mLastTransactionName; }
    Q_INVOKABLE bool isTemporaryDirAvailable() const;

    /// Carries the command out and holds it as a step, or as a part of one; a tree command that
    /// finds nothing to do is not held. Takes ownership; the command may be gone when this returns.
    void addCommand(QUndoCommand *command);
    void recordChange(int itemId, const TutorialItemField &field, const QVariant &value) override;
    bool isEmpty() const override;
    void markClean() override;
    /// The present state is not the saved one, and no step leads to that.
    void markUnsaved();
    /// Whether the next item command may be folded into what stands before it.
    bool isMergeable() const { return mMergeable; }
    /// A new empty folder for as long as the history lives; an empty text with a warning in the log
    /// when it can't be made.
    QString createTemporaryDir();
    /// Removes all such folders, before an end of the process without destructors.
    void removeTemporaryDir();

    /// Each makes a command and adds it to the history, which must exist. The history owns the
    /// commands; what is returned is valid until the next change of the history.
    static AddFolderCommand *addFolderCommand(int targetId, int position, const QString &linkInfo,
                                              const QVariantMap &option);
    static CreateItemCommand *createItemCommand(int targetId, int position, const QString &name,
                                                const QString &linkInfo, const QVariantMap &option);
    /// Takes ownership of the record.
    static bool insertItemCommand(int targetId, int position, int newId, bool folder, TutorialItemData *data,
                                  const QString &linkInfo, const QVariantMap &option);
    static void moveItemsCommand(const QList<int> &idList, bool before, int targetId, const QString &linkInfo,
                                 const QVariantMap &option);
    static void renameItemCommand(int id, const QString &name, const QString &linkInfo, const QVariantMap &option);
    /// Deletes the items with all their contents, and takes back all jumps to them.
    static QVariant deleteItemsCommand(const QList<int> &idList, const QString &linkInfo, const QVariantMap &option);

Q_SIGNALS:
    void canUndoChanged(bool canUndo);
    void canRedoChanged(bool canRedo);
    /// A command has changed the document, or a step that was taken back or done again. Within a
    /// sequence it comes with each command.
    void documentChanged();
    /// Comes before documentChanged when a step was taken back, or done again. The ids are those of
    /// the items that it is about (see stepItems); they may be gone.
    void stepped(const QList<int> &itemIds, bool back);

private:
    UndoRedo();

    void onCanUndoChanged(bool canUndo);
    void onCanRedoChanged(bool canRedo);
    void onIndexChanged(int index);

    void openMacros();
    void cutRedoSide();
    void tellStep(const QUndoCommand &step, bool back);
    void endTransaction();
    UndoMergeableCommand *mergeTarget() const;
    template <typename Command, typename... Arguments>
    static Command *add(Arguments &&...arguments);

    QUndoStack *mUndoStack;
    QAction *mUndoAction;
    QAction *mRedoAction;
    bool mInTransaction = false;
    // The names of the open sequences. Their macros open with the first command, since a macro costs
    // a full stack its oldest step even if it stays empty.
    QStringList mSequenceNames;
    int mOpenMacros = 0;
    QString mTransactionName;
    QString mLastTransactionName;
    QElapsedTimer mSinceLastBegin;
    bool mMergeable = false;
    bool mUnmergeable = false;
    // The last command that found nothing to do.
    std::unique_ptr<QUndoCommand> mRefused;
    QTemporaryDir mTemporaryDir;
    int mTemporaryDirCount = 0;
};
