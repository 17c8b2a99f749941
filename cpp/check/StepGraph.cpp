#include "check/StepGraph.h"

namespace
{
const QLatin1String kQuestion("yesNo");

bool asksQuestion(const QString &condition)
{
    return condition.section(QLatin1Char(','), 0, 0).trimmed() == kQuestion;
}
} // namespace

QVarLengthArray<int, 2> StepGraph::Step::exits() const
{
    QVarLengthArray<int, 2> exits;
    exits.append(next);
    if (asks && nextAfterNo != next)
        exits.append(nextAfterNo);
    return exits;
}

StepGraph::StepGraph(const TreeDataTemplate<TutorialItemData> &document)
{
    append(document.mRoot, document);
    mShownFrom.fill(kEnd, mSteps.size() + 1);
    for (int i = mSteps.size() - 1; i >= 0; --i)
        mShownFrom[i] = isShown(i) ? i : mShownFrom.at(i + 1);
    mFirst = mShownFrom.first();
    for (int i = 0; i < mSteps.size(); ++i) {
        Step &step = mSteps[i];
        step.next = step.nextAfterNo = mShownFrom.at(i + 1);
        step.jump = resolve(step.record->mJump, i, step.next);
        step.jumpNo = resolve(step.record->mJumpNo, i, step.nextAfterNo);
    }
}

void StepGraph::append(const TreeItem<TutorialItemData> &folder, const TreeDataTemplate<TutorialItemData> &document)
{
    for (const TreeItem<TutorialItemData> &child : folder.mChildren) {
        const TutorialItemData *record = document.getData(child.mId);
        if (!record)
            continue;
        const int begin = mSteps.size();
        const bool isFirst = !mIndexById.contains(child.mId) && !mFolders.contains(child.mId);
        if (child.mFolder) {
            // A folder comes before what is in it, of the same id too.
            if (isFirst)
                mFolders.insert(child.mId, { begin, begin });
            append(child, document);
            if (isFirst)
                mFolders[child.mId].end = mSteps.size();
        } else {
            Step step;
            step.id = child.mId;
            step.record = record;
            step.asks = asksQuestion(record->mCondition);
            mSteps.append(step);
            if (isFirst)
                mIndexById.insert(child.mId, begin);
        }
    }
}

StepGraph::Target StepGraph::resolve(int jump, int from, int &next) const
{
    if (jump == -1)
        return Target::None;
    const auto folder = mFolders.constFind(jump);
    const int index = folder == mFolders.constEnd() ? mIndexById.value(jump, kEnd) : folder->begin;
    if (index == kEnd)
        return Target::Missing;
    next = mShownFrom.at(index);
    if (folder != mFolders.constEnd())
        return next != kEnd && next < folder->end ? Target::Step : Target::Empty;
    if (index == from)
        return Target::Itself;
    return isShown(index) ? Target::Step : Target::Prohibited;
}
