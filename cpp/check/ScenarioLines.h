#pragma once

#include "tool/TextMap.h"

#include <QHash>
#include <QString>
#include <QVector>

/// Where the items of a scenario stand in its file: a scan of the array, from which the map leads to the script. Lines
/// count from 1.
class ScenarioLines
{
public:
    /// A key of an item that is left out, with the position of its value in the array.
    struct LostKey
    {
        enum class Kind {
            Unknown, ///< no field has it
            Twice, ///< the item has it before, too
            OfStep, ///< the item is a folder
        };
        Kind kind;
        QString key;
        int position;
        int item; ///< number of the item in the order of the file
    };

    struct Item
    {
        int position = 0; ///< in the array
        int id = 0; ///< as the reader has it for an item without one
        bool isIdMissing = false;
        int hint = -1; ///< position of a step's hint in the array, -1 where it has none
        // The list of its children, so that it needs not be walked again for what stands after it.
        int childrenBegin = -1;
        int childrenEnd = -1;
    };

    ScenarioLines() = default;
    ScenarioLines(const QString &script, const QString &array, const TextMap &map);

    /// The line of a position in the script.
    int lineAt(int position) const;
    /// The line of a position in the array.
    int lineInArray(int position) const { return lineAt(mMap.original(position)); }
    /// The line of the first item of that id, or of a later one of the same id; 0 for one that is not there. With a key
    /// that of its value, where the item has it.
    int lineOfId(int id, int earlier = 0, const QString &key = QString()) const;
    /// The line of an item by its place: the number of its element at the top and that of the items before it in there;
    /// with a key that of its value. 0 for a place that is not there.
    int lineOfPlace(int element, int item, const QString &key = QString()) const;
    /// The position in the script of one in the array.
    int inScript(int position) const { return mMap.original(position); }
    /// In the order of the file.
    const QVector<LostKey> &lostKeys() const { return mLostKeys; }
    /// All elements that stand where items do, in the order of the file.
    const QVector<Item> &items() const { return mItems; }

private:
    int lineOfItem(int item, const QString &key) const;
    void scanElements();
    void scanItems(int &position, int depth);
    void scanItem(int &position, int depth);
    void forgetItemsAfter(int item);
    /// To the end of a value, or of the text.
    void skipValue(int &position) const;
    void skipString(int &position) const;
    void skipSpace(int &position) const;
    QChar at(int position) const { return position < mArray.size() ? mArray.at(position) : QChar(); }
    /// The first character of the value of the next key, whose name goes to key; -1 at the end of the object.
    int nextValue(int &position, QString &key) const;

    QString mArray;
    TextMap mMap;
    QVector<int> mLineFeeds; // of the script
    QVector<int> mElements; // indexes into mItems
    QVector<Item> mItems;
    QHash<int, QVector<int>> mItemsById; // indexes into mItems
    QVector<LostKey> mLostKeys;
};
