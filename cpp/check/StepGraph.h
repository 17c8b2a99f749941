#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QHash>
#include <QVarLengthArray>
#include <QVector>

/// The ways through a tutorial, as a host editor walks it: steps in the order of the tree, through all folders, from
/// the first one that is permitted. A prohibited step is passed over. A jump leads to a step, or to the first one in a
/// folder; one to an id that no item has is none.
///
/// It holds pointers to the document's records, and ends with the next edit. Making it costs one pass.
class StepGraph
{
public:
    /// Stands for no step: the end of the tutorial.
    static constexpr int kEnd = -1;

    /// What a jump names.
    enum class Target {
        None, ///< nothing: on to the next step
        Step, ///< a step that is shown, or a folder with one
        Itself,
        Missing, ///< an id that no item has
        Prohibited, ///< a step that is passed over
        Empty, ///< a folder in which no step is shown
    };

    struct Step
    {
        int id = -1; ///< in the tree; of two items with one id the first one's record stands for both
        const TutorialItemData *record = nullptr;
        bool asks = false; ///< Yes and No end it
        Target jump = Target::None;
        Target jumpNo = Target::None;
        int next = kEnd; ///< index of the step after it
        int nextAfterNo = kEnd; ///< the same after No, where it asks

        /// Where a learner goes from here: one step or kEnd for each answer, each of them once.
        QVarLengthArray<int, 2> exits() const;
    };

    explicit StepGraph(const TreeDataTemplate<TutorialItemData> &document);

    /// All steps, prohibited ones too, in the order of the tree.
    const QVector<Step> &steps() const { return mSteps; }
    /// Where the tutorial begins; kEnd if no step is shown.
    int first() const { return mFirst; }
    /// Whether a learner can meet that step at all.
    bool isShown(int index) const { return !mSteps.at(index).record->mProhibited; }
    /// The next step that is shown, in the order of the tree; kEnd after the last one.
    int shownAfter(int index) const { return mShownFrom.at(index + 1); }

private:
    struct Folder
    {
        int begin = 0; ///< index of the first step in it
        int end = 0; ///< index after its last one
    };

    void append(const TreeItem<TutorialItemData> &folder, const TreeDataTemplate<TutorialItemData> &document);
    Target resolve(int jump, int from, int &next) const;

    QVector<Step> mSteps;
    QVector<int> mShownFrom; ///< by index: the first step at or after it that is shown; kEnd at the end
    QHash<int, int> mIndexById;
    QHash<int, Folder> mFolders;
    int mFirst = kEnd;
};
