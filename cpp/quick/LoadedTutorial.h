#pragma once

#include "check/CheckSubject.h"

#include <QObject>

/// The loaded tutorial with all that the program knows of it, for a check.
class LoadedTutorial : public QObject
{
    Q_OBJECT

public:
    explicit LoadedTutorial(QObject *parent = nullptr);

    static bool isLoaded();
    /// It ends with the next edit.
    CheckSubject subject() const;

Q_SIGNALS:
    /// Something else than a step of the history has changed what a check may find.
    void changed();

private:
    void onReplaced();
    void onModifiedChanged();

    QSet<int> mReachedAtSave;
};
