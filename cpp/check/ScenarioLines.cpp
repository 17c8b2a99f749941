#include "check/ScenarioLines.h"

#include "model/TutorialItemField.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <algorithm>
#include <vector>

namespace
{
using Owner = TutorialItemField::Owner;

// Each item in a list takes two levels, of which the reader refuses more than these.
constexpr int kMaximumDepth = 1024;

struct KnownKey
{
    QString name;
    Owner owner;
};

const std::vector<KnownKey> &knownKeys()
{
    static const std::vector<KnownKey> keys = [] {
        std::vector<KnownKey> known{ { QStringLiteral("folder"), Owner::Item },
                                     { QStringLiteral("children"), Owner::Item } };
        for (const TutorialItemField &field : TutorialItemField::all()) {
            if (field.form == TutorialItemField::Form::Nowhere)
                continue;
            known.push_back({ field.name, field.owner });
            if (!field.olderName.isEmpty())
                known.push_back({ field.olderName, field.owner });
        }
        return known;
    }();
    return keys;
}
/// A key as the reader reads it.
QString unescaped(const QString &key)
{
    if (!key.contains(QLatin1Char('\\')))
        return key;
    const QString list = QLatin1String("[\"") + key + QLatin1String("\"]");
    return QJsonDocument::fromJson(list.toUtf8()).array().first().toString(key);
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
    std::stable_sort(mLostKeys.begin(), mLostKeys.end(),
                     [](const LostKey &one, const LostKey &other) { return one.position < other.position; });
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
        scanItem(position, 1);
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
    QString name;
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

void ScenarioLines::scanItem(int &position, int depth)
{
    const int index = mItems.size();
    Item item;
    item.position = position;
    mItems.append(item);
    if (at(position) != QLatin1Char('{') || depth > kMaximumDepth) {
        skipValue(position);
        return;
    }
    mItems[index].isIdMissing = true;
    ++position;
    const std::vector<KnownKey> &known = knownKeys();
    quint64 seen = 0;
    bool isFolder = false;
    QVector<LostKey> stepKeys;
    QString key;
    for (int value = nextValue(position, key); value >= 0; value = nextValue(position, key)) {
        const auto found =
            std::find_if(known.begin(), known.end(), [&key](const KnownKey &each) { return each.name == key; });
        if (found == known.end()) {
            mLostKeys.append({ LostKey::Kind::Unknown, key, value, index });
            skipValue(position);
            continue;
        }
        const quint64 bit = quint64(1) << (found - known.begin());
        if (seen & bit)
            mLostKeys.append({ LostKey::Kind::Twice, found->name, value, index });
        seen |= bit;
        // Of two values of one key the last one counts.
        if (key == QLatin1String("children")) {
            if (mItems.at(index).childrenBegin >= 0)
                forgetItemsAfter(index);
            scanItems(position, depth);
            mItems[index].childrenBegin = value;
            mItems[index].childrenEnd = position;
            continue;
        }
        skipValue(position);
        const QStringRef text = mArray.midRef(value, position - value);
        const bool isTrue = text.trimmed() == QLatin1String("true");
        if (key == QLatin1String("id")) {
            mItems[index].id = QJsonValue(text.toDouble()).toInt();
            mItems[index].isIdMissing = false;
        } else if (key == QLatin1String("folder")) {
            isFolder = isTrue;
        } else if (key == QLatin1String("hint")) {
            mItems[index].hint = value;
        }
        // A folder that is not prohibited is what one without the key is.
        if (found->owner == Owner::Step || (found->owner == Owner::StepOrOlderFolder && isTrue))
            stepKeys.append({ LostKey::Kind::OfStep, found->name, value, index });
    }
    if (isFolder) {
        mItems[index].hint = -1;
        mLostKeys += stepKeys;
    }
}

void ScenarioLines::forgetItemsAfter(int item)
{
    mItems.resize(item + 1);
    const auto isAfter = [item](const LostKey &key) { return key.item > item; };
    mLostKeys.erase(std::remove_if(mLostKeys.begin(), mLostKeys.end(), isAfter), mLostKeys.end());
}

void ScenarioLines::scanItems(int &position, int depth)
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
        scanItem(position, depth + 1);
        skipSpace(position);
        if (at(position) != QLatin1Char(','))
            break;
        ++position;
    }
    ++position;
}

int ScenarioLines::nextValue(int &position, QString &key) const
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
    key = unescaped(mArray.mid(begin, position - 1 - begin));
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
