#pragma once

#include "check/CheckSubject.h"
#include "check/HintSizes.h"
#include "check/Problem.h"

#include <QObject>

/// The loaded tutorial with all that the program knows of it, for a check.
class LoadedTutorial : public QObject
{
    Q_OBJECT

public:
    explicit LoadedTutorial(QObject *parent = nullptr);

    static bool isLoaded();
    /// Looks into its file after a load, which takes about as long as that did.
    void readScenario();
    /// All that is wrong with it, by what is known of it now.
    QVector<Problem> problems() const;
    /// Measures hints of which the size is not known, for a few milliseconds. False if there was none.
    bool measureHints();

Q_SIGNALS:
    /// Something else than a step of the history has changed what a check may find.
    void changed();

private:
    // They end with the next edit.
    static CheckSubject contents();
    CheckSubject subject() const;

    void onReplaced();
    void onSaved();
    void readSources();

    HintSizes mHintSizes;
    QVector<Problem> mFileProblems; // of what the document and the hints were read from
    bool mIsScenarioDue = false;
    QSet<int> mReachedAtSave;
};
