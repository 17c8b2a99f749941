#pragma once

#include "Tutorial/recovery/RecoveryCopy.h"

#include <QList>
#include <QMetaType>
#include <QVariant>

#include <functional>

/// What stands in a field of an item and was not handed over yet.
struct TypedValue
{
    int itemId;
    QString field;
    QVariant value;
};

/// Puts a copy together from what it holds itself, in any thread.
using UnsavedWork = std::function<RecoveryCopy()>;
Q_DECLARE_METATYPE(UnsavedWork)

/// What the recovery asks of the program round it. The manager implements it.
class RecoveryContext
{
public:
    RecoveryContext() = default;
    virtual ~RecoveryContext();

    /// The folder of the translations that a save writes, absolute.
    virtual QString project() const = 0;
    /// Whether a tutorial is loaded that a save would store.
    virtual bool isKeepable() const = 0;
    virtual bool isModified() const = 0;
    /// The document as it would be with these values handed over, but for those that it refuses.
    virtual UnsavedWork unsavedWork(const QList<TypedValue> &typed) const = 0;
    /// What the files of a tutorial say now; a missing one says nothing.
    virtual TutorialState storedState(const QString &path) const = 0;
    /// Makes the copy the loaded tutorial, as one with unsaved changes. False, with nothing changed, if it can't be
    /// read.
    virtual bool takeUp(const RecoveryCopy &copy) = 0;

private:
    Q_DISABLE_COPY(RecoveryContext)
};
