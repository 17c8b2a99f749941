#pragma once

#include "support/DocumentFakes.h"
#include "support/Shape.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioReader.h"
#include "UndoRedo/UndoRedo.h"

#include <memory>

/// A document with its history and a stand-in for the program round them.
class EditingSession
{
public:
    using Item = TreeItem<TutorialItemData>;

    TutorialEditor::Manager &manager() { return mManager; }
    TreeDataTemplate<TutorialItemData> &data() { return mManager.mData; }
    UndoRedo &history() { return *mHistory; }
    FakeContext &context() { return mContext; }
    TutorialItemData *record(int id) { return data().getData(id); }

    void load(const QString &shape)
    {
        QStringList leftOut;
        mManager.clear();
        ScenarioReader::read(Shape::scenario(shape), data(), leftOut);
    }

    QString shape() { return Shape::of(data().mRoot); }

    QList<int> recordIds() { return data().getIdList(); }

    void sequence(const QString &name, const std::function<void()> &edit)
    {
        mHistory->beginSequence(name);
        edit();
        mHistory->endSequence();
    }

    /// Empty if each item has one record, one place and a name of its own, and is found there.
    QString fault()
    {
        QHash<int, QPair<int, int>> places;
        int count = 0;
        data().mRoot.visitAll([&](const Item &item) {
            for (int i = 0; i < item.mChildren.size(); ++i, ++count)
                places.insert(item.mChildren.at(i).mId, { item.mFolder ? item.mId : 0, i });
        });
        QSet<QString> names;
        for (const int id : recordIds()) {
            int index = -1;
            const Item *parent = data().getParentItem(id, index);
            const Item *item = data().findItem(id);
            if (!item || item->mId != id || !parent || places.value(id) != qMakePair(parent->mId, index))
                return QStringLiteral("the place of item %1").arg(id);
            if (data().getDataIndex(id) != names.size() || names.contains(record(id)->mName))
                return QStringLiteral("the record or the name of item %1").arg(id);
            names.insert(record(id)->mName);
        }
        return names.size() == count && places.size() == count ? QString() : QStringLiteral("the count of the items");
    }

private:
    FakeContext mContext;
    TutorialEditor::Manager mManager;
    // Goes first: its commands may own records.
    std::unique_ptr<UndoRedo> mHistory{ static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)) };
};
