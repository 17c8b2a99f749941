#pragma once

#include "TutorialEditor/Manager.h"

#include <QRegularExpression>

/// A document drawn in one line, such as "1 2?>4/5 3! 6(7 8)": ids in the order of the tree, "?" for a question, "!"
/// for a prohibited one, ">" and "/" with the ids that the jump and the one after No lead to, brackets round what is in
/// a folder.
class SketchedTutorial
{
public:
    explicit SketchedTutorial(const QString &sketch)
    {
        static const QRegularExpression part(QStringLiteral(R"((\d+)(\??)(!?)(?:>(\d+))?(?:/(\d+))?(\(?)|\))"));
        for (auto parts = part.globalMatch(sketch); parts.hasNext();)
            append(parts.next());
    }

    const TreeDataTemplate<TutorialItemData> &document() const { return mManager.mData; }
    TutorialItemData &record(int id) { return *mManager.mData.getData(id); }
    /// As the host editor gets it.
    QString script() const { return mManager.getScenario(false); }

private:
    using Item = TreeItem<TutorialItemData>;

    void append(const QRegularExpressionMatch &part)
    {
        if (part.captured(0) == QLatin1String(")")) {
            mPath.removeLast();
            return;
        }
        auto *record = new TutorialItemData; // owned by the document
        record->mId = part.captured(1).toInt();
        record->mName = QLatin1String("item") + part.captured(1);
        record->mCondition = part.captured(2).isEmpty() ? QStringLiteral("click") : QStringLiteral("yesNo");
        record->mProhibited = !part.captured(3).isEmpty();
        record->mJump = part.captured(4).isEmpty() ? -1 : part.captured(4).toInt();
        record->mJumpNo = part.captured(5).isEmpty() ? -1 : part.captured(5).toInt();
        mManager.mData.mDataList.append(record);
        Item *folder = &mManager.mData.mRoot;
        for (const int index : mPath)
            folder = &folder->mChildren[index];
        const bool isFolder = !part.captured(6).isEmpty();
        folder->mChildren.append(Item(record->mId, isFolder));
        if (isFolder)
            mPath.append(folder->mChildren.size() - 1);
    }

    TutorialEditor::Manager mManager;
    QVector<int> mPath; // to the open folder
};
