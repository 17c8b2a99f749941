#include "Tutorial/ItemClipboard.h"

#include "tool/FreeNames.h"
#include "tool/IdSet.h"
#include "tool/Log.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";
const QString kStale = QStringLiteral("staleHint2");

using Item = TreeItem<TutorialItemData>;
using Document = TreeDataTemplate<TutorialItemData>;

Document &document()
{
    return TutorialEditor::Manager::instance()->mData;
}

/// Appends the text of the node with all below it; false if a record is missing.
bool appendText(const Item &item, const QSet<int> &staleIds, QStringList &texts)
{
    const TutorialItemData *record = document().getData(item.mId);
    if (!record) {
        Log::warning(kFolder, "ItemClipboard::makePayload", __LINE__) << "data not found" << item.mId;
        return false;
    }
    QString extra = QStringLiteral("\"folder\":") + JsonWrapper::getJsonString(item.mFolder);
    if (item.mFolder && !item.mChildren.isEmpty()) {
        QStringList children;
        for (const Item &child : item.mChildren) {
            if (!appendText(child, staleIds, children))
                return false;
        }
        extra += QStringLiteral(",\"children\":[") + children.join(QLatin1Char(',')) + QLatin1Char(']');
    }
    if (staleIds.contains(item.mId))
        extra += QStringLiteral(",\"%1\":true").arg(kStale);
    texts.append(record->toJsonText(extra));
    return true;
}

/// Gives out the lowest free ids. Numbers once given out are not looked at again.
class FreeIds
{
public:
    explicit FreeIds(const QList<int> &used) : mUsed(idSet(used)) { }

    int next()
    {
        while (mUsed.contains(mNext))
            ++mNext;
        return mNext++;
    }

private:
    QSet<int> mUsed;
    int mNext = 1;
};

/// The elements of one payload on their way into the document.
class Insertion
{
public:
    explicit Insertion(ItemClipboard::SecondHints secondHints)
        : mSecondHints(secondHints)
        , mIds(document().getIdList())
        , mNames(document().getNameList())
        , mHistory(UndoRedo::instance() && UndoRedo::instance()->inTransaction())
    { }

    /// Inserts one element; -1 if it can't be read.
    int insert(const JsonWrapper &json)
    {
        QList<TutorialItemData *> records;
        const std::unique_ptr<Item> item(Item::createFromJson(json, &records));
        mRecords.clear();
        mStale.clear();
        mNext = 0;
        for (TutorialItemData *record : qAsConst(records))
            mRecords.emplace_back(record);
        if (!item)
            return -1;
        if (mSecondHints == ItemClipboard::SecondHints::Copied)
            readSecondHints(*item, json);
        mNext = 0;
        return insert(*item, document().mRoot.mId);
    }

    const QHash<int, bool> &staleById() const { return mStaleById; }

private:
    /// The reader looks the second hint up by its key, which is that of another item here.
    void readSecondHints(const Item &item, const JsonWrapper &json)
    {
        TutorialItemData &record = *mRecords[mNext++];
        const QJsonObject object = json.toObject();
        if (!item.mFolder)
            TutorialItemField::find(&TutorialItemData::mHint2).readJson(record, object);
        if (object.value(kStale).toBool())
            mStale.insert(&record);
        if (item.mChildren.isEmpty())
            return;
        const JsonWrapper children = json[QStringLiteral("children")];
        for (int i = 0; i < item.mChildren.size(); ++i)
            readSecondHints(item.mChildren.at(i), children[i]);
    }

    int insert(const Item &item, int parentId)
    {
        std::unique_ptr<TutorialItemData> record = std::move(mRecords[mNext++]);
        const int newId = mIds.next();
        record->setId(newId);
        if (!item.mFolder)
            mStaleById.insert(newId, mStale.contains(record.get()));
        // Past the setter: the record is not in the document yet.
        record->mName = mNames.next(record->mName, -1);
        if (mHistory)
            UndoRedo::insertItemCommand(parentId, -1, newId, item.mFolder, record.release(), QString(), QVariantMap());
        else
            append(std::move(record), item.mFolder, parentId);
        for (const Item &child : item.mChildren) {
            if (item.mFolder)
                insert(child, newId);
            else
                skip(child);
        }
        return newId;
    }

    void skip(const Item &item)
    {
        ++mNext;
        for (const Item &child : item.mChildren)
            skip(child);
    }

    static void append(std::unique_ptr<TutorialItemData> record, bool folder, int parentId)
    {
        Item *parent = document().findItem(parentId);
        document().insertItem(*parent, parent->mChildren.size(), Item(record->mId, folder));
        document().mDataList.append(record.release());
    }

    ItemClipboard::SecondHints mSecondHints;
    FreeIds mIds;
    FreeNames mNames;
    bool mHistory;
    // The records of one element, parents before children, and the place of the next one to be
    // inserted. Ids would not do: two may be the same.
    std::vector<std::unique_ptr<TutorialItemData>> mRecords;
    std::size_t mNext = 0;
    QSet<const TutorialItemData *> mStale; // of those records
    QHash<int, bool> mStaleById; // of all elements
};
} // namespace

bool ItemClipboard::makePayload(const QList<int> &idList, QString &payload, const QSet<int> &staleIds)
{
    QStringList texts;
    for (const int id : idList) {
        const Item *item = document().findItem(id);
        if (!item) {
            Log::warning(kFolder, "ItemClipboard::makePayload", __LINE__) << "treeItem not found" << id;
            return false;
        }
        if (!appendText(*item, staleIds, texts))
            return false;
    }
    payload = QStringLiteral("[ ") + texts.join(QStringLiteral(", ")) + QStringLiteral(" ]");
    return true;
}

QList<int> ItemClipboard::insertPayload(const QString &payload, SecondHints secondHints, QHash<int, bool> *staleById)
{
    QList<int> idList;
    const JsonWrapper json(payload);
    if (!json.isArray())
        return idList;
    Insertion insertion(secondHints);
    const int length = json.length();
    for (int i = 0; i < length; ++i) {
        const int newId = insertion.insert(json[i]);
        if (newId >= 0)
            idList.append(newId);
    }
    if (staleById)
        *staleById = insertion.staleById();
    return idList;
}
