#include "check/ScenarioLines.h"

#include "model/TutorialItemField.h"

#include <QJsonValue>

#include <algorithm>

namespace
{
bool isKnown(const QStringRef &key)
{
    const auto &fields = TutorialItemField::all();
    return key == QLatin1String("folder") || key == QLatin1String("children")
        || std::any_of(fields.begin(), fields.end(), [&key](const TutorialItemField &field) {
               return field.form != TutorialItemField::Form::Nowhere
                   && (key == field.name || (!field.olderName.isEmpty() && key == field.olderName));
           });
}
} // namespace

ScenarioLines::ScenarioLines(const QString &script, const QString &array, const TextMap &map) : mArray(array), mMap(map)
{
    for (int i = script.indexOf(QLatin1Char('\n')); i >= 0; i = script.indexOf(QLatin1Char('\n'), i + 1))
        mLineFeeds.append(i);
    scanElements();
    for (int i = 0; i < mItems.size(); ++i) {
        if (at(mItems.at(i).position) == QLatin1Char('{'))
            mItemsById[mItems.at(i).id].append(i);
    }
}

void ScenarioLines::scanElements()
{
    int position = 0;
    skipSpace(position);
    if (at(position) != QLatin1Char('['))
        return;
    ++position;
    while (position < mArray.size()) {
        skipSpace(position);
        if (at(position) == QLatin1Char(']'))
            return;
        mElements.append(mItems.size());
        scanItem(position);
        skipSpace(position);
        if (at(position) != QLatin1Char(','))
            return;
        ++position;
    }
}

int ScenarioLines::lineAt(int position) const
{
    const auto before = std::lower_bound(mLineFeeds.begin(), mLineFeeds.end(), position);
    return int(before - mLineFeeds.begin()) + 1;
}

int ScenarioLines::lineOfId(int id, int earlier, const QString &key) const
{
    return lineOfItem(mItemsById.value(id).value(earlier, mItems.size()), key);
}

int ScenarioLines::lineOfPlace(int element, int item, const QString &key) const
{
    return lineOfItem(mElements.value(element, mItems.size()) + item, key);
}

int ScenarioLines::lineOfItem(int item, const QString &key) const
{
    if (item >= mItems.size())
        return 0;
    int position = mItems.at(item).position;
    if (key.isEmpty() || at(position) != QLatin1Char('{'))
        return lineInArray(position);
    int line = lineInArray(position);
    ++position;
    QStringRef name;
    for (int value = nextValue(position, name); value >= 0; value = nextValue(position, name)) {
        if (name == key)
            line = lineInArray(value);
        if (value == mItems.at(item).childrenBegin)
            position = mItems.at(item).childrenEnd;
        else
            skipValue(position);
    }
    return line;
}

void ScenarioLines::scanItem(int &position)
{
    const int index = mItems.size();
    Item item;
    item.position = position;
    mItems.append(item);
    if (at(position) != QLatin1Char('{')) {
        skipValue(position);
        return;
    }
    ++position;
    QStringRef key;
    for (int value = nextValue(position, key); value >= 0; value = nextValue(position, key)) {
        // Of two values of one key the last one counts.
        if (key == QLatin1String("children")) {
            if (mItems.at(index).childrenBegin >= 0)
                forgetItemsAfter(index);
            scanItems(position);
            mItems[index].childrenBegin = value;
            mItems[index].childrenEnd = position;
            continue;
        }
        if (!isKnown(key))
            mUnknownKeys.append({ key.toString(), value, index });
        skipValue(position);
        if (key == QLatin1String("id"))
            mItems[index].id = QJsonValue(mArray.midRef(value, position - value).toDouble()).toInt();
    }
}

void ScenarioLines::forgetItemsAfter(int item)
{
    mItems.resize(item + 1);
    const auto isAfter = [item](const UnknownKey &key) { return key.item > item; };
    mUnknownKeys.erase(std::remove_if(mUnknownKeys.begin(), mUnknownKeys.end(), isAfter), mUnknownKeys.end());
}

void ScenarioLines::scanItems(int &position)
{
    if (at(position) != QLatin1Char('[')) {
        skipValue(position);
        return;
    }
    ++position;
    for (;;) {
        skipSpace(position);
        if (position >= mArray.size() || at(position) == QLatin1Char(']'))
            break;
        scanItem(position);
        skipSpace(position);
        if (at(position) != QLatin1Char(','))
            break;
        ++position;
    }
    ++position;
}

int ScenarioLines::nextValue(int &position, QStringRef &key) const
{
    skipSpace(position);
    if (at(position) == QLatin1Char(',')) {
        ++position;
        skipSpace(position);
    }
    if (at(position) != QLatin1Char('"')) {
        ++position;
        return -1;
    }
    const int begin = position + 1;
    skipString(position);
    key = mArray.midRef(begin, position - 1 - begin);
    skipSpace(position);
    if (at(position) == QLatin1Char(':'))
        ++position;
    skipSpace(position);
    return position;
}

void ScenarioLines::skipValue(int &position) const
{
    const auto isEnd = [](QChar character) {
        return character == QLatin1Char(',') || character == QLatin1Char('}') || character == QLatin1Char(']');
    };
    int depth = 0;
    while (position < mArray.size()) {
        const QChar character = mArray.at(position);
        if (depth == 0 && isEnd(character))
            return;
        if (character == QLatin1Char('"')) {
            skipString(position);
            continue;
        }
        if (character == QLatin1Char('{') || character == QLatin1Char('['))
            ++depth;
        else if (character == QLatin1Char('}') || character == QLatin1Char(']'))
            --depth;
        ++position;
    }
}

void ScenarioLines::skipString(int &position) const
{
    for (++position; position < mArray.size() && mArray.at(position) != QLatin1Char('"'); ++position) {
        if (mArray.at(position) == QLatin1Char('\\'))
            ++position;
    }
    position = std::min(position + 1, mArray.size());
}

void ScenarioLines::skipSpace(int &position) const
{
    while (position < mArray.size() && mArray.at(position).isSpace())
        ++position;
}
