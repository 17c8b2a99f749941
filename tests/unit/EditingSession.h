#pragma once

#include "FakeDocumentContext.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <memory>

/// A document with its history and a stand-in for the program round them, and short texts for
/// documents: "1 2[3 4[]] 5" is item 1, folder 2 with item 3 and the empty folder 4, and item 5.
class EditingSession
{
public:
    EditingSession()
        : mManager(std::make_unique<TutorialEditor::Manager>())
        , mHistory(static_cast<UndoRedo *>(UndoRedo::create(nullptr, nullptr)))
    { }

    using Item = TreeItem<TutorialItemData>;

    TreeDataTemplate<TutorialItemData> &data() { return mManager->mData; }
    UndoRedo &history() { return *mHistory; }
    FakeDocumentContext &context() { return mContext; }
    TutorialItemData *record(int id) { return data().getData(id); }

    /// Replaces the document; names are "name" with the id behind it.
    void load(const QString &text)
    {
        mManager->clear();
        int position = 0;
        data().mRoot.mChildren = parse(text, position);
    }

    /// The shape of the document, and of a row's children.
    QString shape() { return shapeOf(data().mRoot); }

    /// The ids of the records, in the order of their list.
    QList<int> recordIds() { return data().getIdList(); }

    QString sequence(const QString &name, const std::function<void()> &edit)
    {
        mHistory->beginSequence(name);
        edit();
        mHistory->endSequence();
        return shape();
    }

private:
    QList<Item> parse(const QString &text, int &position)
    {
        QList<Item> items;
        while (position < text.size() && text.at(position) != QLatin1Char(']')) {
            const int start = position;
            while (position < text.size() && text.at(position).isDigit())
                ++position;
            if (position == start) {
                ++position;
                continue;
            }
            const int id = text.mid(start, position - start).toInt();
            auto record = std::make_unique<TutorialItemData>();
            record->mId = id;
            record->mName = QStringLiteral("name%1").arg(id);
            data().mDataList.append(record.release());
            items.append(Item(id, position < text.size() && text.at(position) == QLatin1Char('[')));
            if (items.last().mFolder) {
                items.last().mChildren = parse(text, ++position);
                ++position;
            }
        }
        return items;
    }

    static QString shapeOf(const Item &parent)
    {
        QStringList texts;
        for (const Item &item : parent.mChildren) {
            const QString id = QString::number(item.mId);
            texts.append(item.mFolder ? id + QLatin1Char('[') + shapeOf(item) + QLatin1Char(']') : id);
        }
        return texts.join(QLatin1Char(' '));
    }

    FakeDocumentContext mContext;
    std::unique_ptr<TutorialEditor::Manager> mManager;
    // Goes first: its commands may own records.
    std::unique_ptr<UndoRedo> mHistory;
};
