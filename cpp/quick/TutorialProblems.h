#pragma once

#include "quick/LoadedTutorial.h"
#include "quick/ProblemListModel.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QTimer>

class UndoRedo;
template <typename T>
class TreeItem;
class TutorialItemData;

/// What is wrong with the loaded tutorial, a row each, and by step for the signs in the tree. It follows each change
/// soon after it, and takes no more than a small part of the time for that, however large the tutorial is.
class TutorialProblems : public ProblemListModel
{
    Q_OBJECT
    Q_PROPERTY(UndoRedo *history READ history WRITE setHistory)
    Q_PROPERTY(int count READ count NOTIFY revisionChanged)
    Q_PROPERTY(int errors READ errors NOTIFY revisionChanged)
    Q_PROPERTY(int warnings READ warnings NOTIFY revisionChanged)
    Q_PROPERTY(int remarks READ remarks NOTIFY revisionChanged)
    /// Another one whenever anything that is told here may differ; what asks by id reads it to be asked again.
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)

public:
    explicit TutorialProblems(QObject *parent = nullptr);

    UndoRedo *history() const { return mHistory; }
    void setHistory(UndoRedo *history);
    int count() const { return problems().size(); }
    int errors() const { return countOf(Problem::Severity::Error); }
    int warnings() const { return countOf(Problem::Severity::Warning); }
    int remarks() const { return countOf(Problem::Severity::Remark); }
    int revision() const { return mRevision; }

    /// The severity of the worst problem of that item: 0 an error, 1 a warning, 2 a remark; -1 if it has none.
    Q_INVOKABLE int severityOf(int itemId) const { return mSeverities.value(itemId, -1); }
    /// The same for all that stands in a folder, remarks apart.
    Q_INVOKABLE int severityIn(int folderId) const { return mFolderSeverities.value(folderId, -1); }
    /// The sentences of that item's problems, a line each.
    Q_INVOKABLE QString textOf(int itemId) const;
    Q_INVOKABLE int itemIdAt(int row) const;
    /// Puts a row into the system's clipboard as a line of text.
    Q_INVOKABLE void copyRow(int row) const;

Q_SIGNALS:
    void revisionChanged();

private:
    void onDocumentChanged();
    void schedule();
    void check();
    void measureHints();
    void readSeverities();
    int readFolder(const TreeItem<TutorialItemData> &folder);

    LoadedTutorial mTutorial;
    QPointer<UndoRedo> mHistory;
    QHash<int, int> mSeverities; // by item
    QHash<int, int> mFolderSeverities; // by folder, of what is in it
    int mRevision = 0;
    QTimer mTimer;
    QTimer mMeasureTimer;
    QElapsedTimer mSinceChange; // the first one that was not checked
    QElapsedTimer mSinceCheck;
    qint64 mPause = 0; // from the begin of one check to the next one
};
