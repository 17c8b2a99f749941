#pragma once

#include "support/DocumentFakes.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <memory>

/// A document with its history and a stand-in for the program round them, and short texts for
/// documents: "1 2[3 4[]] 5" is item 1, folder 2 with item 3 and the empty folder 4, and item 5.
class EditingSession
{
public:
    using Item = TreeItem<TutorialItemData>;

    TutorialEditor::Manager &manager() { return mManager; }
    TreeDataTemplate<TutorialItemData> &data() { return mManager.mData; }
    UndoRedo &history() { return *mHistory; }
    FakeContext &context() { return mContext; }
    TutorialItemData *record(int id) { return data().getData(id); }

    /// Replaces the document; names are "name" and the id.
    void load(const QString &text)
    {
        mManager.clear();
        auto tokens = QRegularExpression(QStringLiteral("\\d+\\[?|\\]")).globalMatch(text);
        data().mRoot.mChildren = parse(tokens);
    }

    QString shape() { return shapeOf(data().mRoot); }
    static QString shapeOf(const Item &parent)
    {
        QStringList texts;
        for (const Item &item : parent.mChildren) {
            const bool isOpen = item.mFolder || !item.mChildren.isEmpty();
            texts.append(QString::number(item.mId) + (isOpen ? QStringLiteral("[%1]").arg(shapeOf(item)) : QString()));
        }
        return texts.join(QLatin1Char(' '));
    }

    /// The ids of the records, in the order of their list.
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
    QList<Item> parse(QRegularExpressionMatchIterator &tokens)
    {
        QList<Item> items;
        while (tokens.hasNext()) {
            const QString token = tokens.next().captured();
            if (token == QLatin1String("]"))
                break;
            const bool folder = token.endsWith(QLatin1Char('['));
            auto *record = new TutorialItemData;
            record->mId = token.leftRef(token.size() - folder).toInt();
            record->mName = QStringLiteral("name%1").arg(record->mId);
            data().mDataList.append(record);
            items.append(Item(record->mId, folder));
            if (folder)
                items.last().mChildren = parse(tokens);
        }
        return items;
    }

    FakeContext mContext;
    TutorialEditor::Manager mManager;
    // Goes first: its commands may own records.
    std::unique_ptr<UndoRedo> mHistory{ static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)) };
};
