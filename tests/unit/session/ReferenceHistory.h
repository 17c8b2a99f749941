#pragma once

#include "ReferenceDocument.h"

/// The plainest history: the whole document behind each step.
class ReferenceHistory
{
public:
    static constexpr int kLimit = 10;

    bool canUndo() const { return mDepth == 0 && mIndex > 0; }
    bool canRedo() const { return mDepth == 0 && mIndex < mSteps.size(); }
    bool isModified() const { return mIndex != mCleanIndex; }
    bool inTransaction() const { return mInTransaction; }
    bool inSequence() const { return mDepth > 0; }
    bool isEmpty() const { return mSteps.isEmpty() && mDepth == 0; }

    const ReferenceDocument &state() const { return mIndex == 0 ? mFirst : mSteps.at(mIndex - 1).document; }

    void beginSequence(const QString &name)
    {
        if (mDepth == 0) {
            cutRedo();
            mRecorded = false;
        }
        mEndsWithItemChange = false;
        mInTransaction = true;
        mMergeable = false;
        mName = name;
        ++mDepth;
    }

    void endSequence(const ReferenceDocument &document)
    {
        if (mDepth > 0 && --mDepth == 0 && mRecorded)
            push({ document, mEndsWithItemChange });
        if (mDepth == 0)
            endTransaction();
    }

    /// Whether singles of one name follow quickly is the clock's to say.
    void beginSingle(const QString &name, bool quick)
    {
        mUnmergeable = mUnmergeable || name != mLastName;
        mMergeable = quick && !mUnmergeable;
        mInTransaction = true;
        mName = name;
    }

    bool mayMerge(const QString &name) const { return !mUnmergeable && name == mLastName; }

    void endTransaction()
    {
        mInTransaction = mDepth > 0;
        mLastName = mName;
        mName.clear();
        mUnmergeable = false;
    }

    void setUnmergeable() { mUnmergeable = true; }

    /// A command has made the document what it is now.
    void record(const ReferenceDocument &document, bool itemChange)
    {
        if (mDepth > 0) {
            mRecorded = true;
            mEndsWithItemChange = itemChange && mDepth == 1;
        } else if (itemChange && mMergeable && mInTransaction && mIndex > 0 && !canRedo()
                   && mSteps.at(mIndex - 1).endsWithItemChange) {
            mSteps[mIndex - 1].document = document;
            if (mCleanIndex == mIndex)
                mCleanIndex = -1;
        } else {
            cutRedo();
            push({ document, itemChange });
        }
        mMergeable = true;
    }

    /// The document has changed past the history.
    void replaceFirst(const ReferenceDocument &document) { mFirst = document; }

    void undo() { --mIndex; }
    void redo() { ++mIndex; }
    void save() { mCleanIndex = mIndex; }

    void clear(const ReferenceDocument &document)
    {
        mFirst = document;
        mSteps.clear();
        mIndex = mCleanIndex = mDepth = 0;
        mInTransaction = false;
    }

private:
    struct Step
    {
        ReferenceDocument document;
        bool endsWithItemChange;
    };

    void cutRedo()
    {
        mSteps = mSteps.mid(0, mIndex);
        if (mCleanIndex > mIndex)
            mCleanIndex = -1;
    }

    void push(const Step &step)
    {
        mSteps.append(step);
        ++mIndex;
        if (mSteps.size() > kLimit) {
            mFirst = mSteps.takeFirst().document;
            --mIndex;
            mCleanIndex = std::max(mCleanIndex - 1, -1);
        }
    }

    ReferenceDocument mFirst;
    QList<Step> mSteps;
    int mIndex = 0;
    int mCleanIndex = 0;
    int mDepth = 0;
    bool mInTransaction = false;
    bool mRecorded = false;
    bool mEndsWithItemChange = false;
    bool mMergeable = false;
    bool mUnmergeable = false;
    QString mName;
    QString mLastName;
};
