#include "UndoRedo/TreeCommand.h"

#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/PendingJumpLink.h"

TreeCommand::TreeCommand(const QString &text, const QString &linkInfo, const QVariantMap &option)
    : QUndoCommand(text)
    , mLinkInfo(linkInfo)
    , mOption(option)
{ }

bool TreeCommand::runAhead()
{
    mRanAhead = true;
    run();
    return hasEffect();
}

void TreeCommand::redo()
{
    if (!mRanAhead)
        run();
    mRanAhead = false;
}

void TreeCommand::run()
{
    if (!apply())
        return;
    if (mFirstRedo)
        mFirstRedo = false;
    else if (!mLinkInfo.isEmpty())
        setPendingJumpLink(mLinkInfo);
}

void TreeCommand::undo()
{
    if (revert() && !mLinkInfo.isEmpty())
        setPendingJumpLink(mLinkInfo);
}

TreeCommand::Document &TreeCommand::document()
{
    return TutorialEditor::Manager::instance()->mData;
}

bool TreeCommand::insertAt(int targetId, int position, const Item &item)
{
    Document &data = document();
    Item *parent = data.findItem(targetId);
    int index = position;
    if (parent && !parent->mFolder && targetId >= 0) {
        int targetIndex = -1;
        parent = data.getParentItem(targetId, targetIndex);
        if (index < 0)
            index = targetIndex + 1;
    }
    if (!parent) {
        Log::warning("cpp/UndoRedo", "TreeCommand::insertAt", __LINE__) << "target not found" << targetId;
        return false;
    }
    const int count = parent->mChildren.size();
    data.insertItem(*parent, index < 0 ? count : qMin(index, count), item);
    return true;
}

QString TreeCommand::listText(const QList<int> &idList)
{
    return QLatin1Char('(') + DataSupport::join(idList, QStringLiteral(", ")) + QLatin1Char(')');
}
