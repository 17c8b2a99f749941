#include "SampleScenario.h"

#include "TutorialEditor/Manager.h"

namespace
{
constexpr int kStepsInFolder = 10;
constexpr int kFoldersInFolder = 3;

using Item = TreeItem<TutorialItemData>;

void addStep(TutorialEditor::Manager &manager, Item &folder, int id)
{
    auto *record = new TutorialItemData; // owned by the document
    record->mId = id;
    record->mName = QStringLiteral("item%1").arg(id, 5, 10, QLatin1Char('0'));
    record->mX = id % 1000;
    record->mY = id % 700;
    record->mWindowKey = QStringLiteral("MainWindow/canvas");
    record->mCondition = QStringLiteral("click,MainWindow/toolRectangle");
    record->mJump = id % 7 == 0 ? 1 : -1;
    manager.mData.mDataList.append(record);
    folder.mChildren.append(Item(id, false));
}

void fill(TutorialEditor::Manager &manager, Item &folder, int depth, int &nextId, int itemCount)
{
    for (int i = 0; i < kStepsInFolder && nextId <= itemCount; ++i)
        addStep(manager, folder, nextId++);
    for (int i = 0; depth > 0 && i < kFoldersInFolder && nextId <= itemCount; ++i) {
        auto *record = new TutorialItemData; // owned by the document
        record->mId = nextId;
        record->mName = QStringLiteral("folder%1").arg(nextId);
        manager.mData.mDataList.append(record);
        Item child(nextId, true);
        ++nextId;
        fill(manager, child, depth - 1, nextId, itemCount);
        folder.mChildren.append(child);
    }
}

void fillAll(TutorialEditor::Manager &manager, int itemCount)
{
    int nextId = 1;
    while (nextId <= itemCount)
        fill(manager, manager.mData.mRoot, 3, nextId, itemCount);
}
} // namespace

QString SampleScenario::fileText(int itemCount)
{
    TutorialEditor::Manager manager;
    fillAll(manager, itemCount);
    return manager.getScenario(true);
}

void SampleScenario::addBranching(TutorialEditor::Manager &manager, int itemCount)
{
    fillAll(manager, itemCount);
    for (TutorialItemData *record : qAsConst(manager.mData.mDataList)) {
        record->mJump = -1;
        if (record->mId % 5 != 0)
            continue;
        record->mCondition = QStringLiteral("yesNo");
        record->mJumpNo = record->mId + (record->mId % 3 == 0 ? -11 : 17);
    }
}

QString SampleScenario::flatText(int itemCount)
{
    TutorialEditor::Manager manager;
    for (int id = 1; id <= itemCount; ++id)
        addStep(manager, manager.mData.mRoot, id);
    return manager.getScenario(true);
}

QString SampleScenario::hint(int id, const QString &locale)
{
    const QString words = locale == QLatin1String("ja_JP") ? QStringLiteral("ここをクリックして、次の手順へ進みます。")
                                                           : QStringLiteral("Click here to go on to the next step.");
    return QStringLiteral("%1 %2\n\"%1\"").arg(id).arg(words);
}
