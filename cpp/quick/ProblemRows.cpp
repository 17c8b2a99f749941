#include "quick/ProblemRows.h"

#include <QHash>
#include <QPair>

#include <algorithm>

namespace
{
// For each place the list moves all rows after it.
constexpr int kFewPlaces = 16;

/// The item, and the rule with a number where the item breaks it several times.
using Key = QPair<int, QString>;

QVector<Key> keysOf(const QVector<Problem> &problems)
{
    QVector<Key> keys;
    keys.reserve(problems.size());
    QHash<Key, int> counts;
    for (const Problem &problem : problems) {
        const Key key(problem.itemId, problem.rule);
        const int number = counts[key]++;
        keys.append(number == 0 ? key : Key(key.first, key.second + QLatin1Char(' ') + QString::number(number)));
    }
    return keys;
}

/// Leaves the longest part that rises, and sets all others to -1.
void keepRising(QVector<int> &targets)
{
    QVector<int> ends; // by length: the row that ends the best part of that length
    QVector<int> previous(targets.size(), -1);
    for (int row = 0; row < targets.size(); ++row) {
        if (targets.at(row) < 0)
            continue;
        const auto end = std::lower_bound(ends.begin(), ends.end(), targets.at(row),
                                          [&](int other, int target) { return targets.at(other) < target; });
        if (end != ends.begin())
            previous[row] = *(end - 1);
        if (end == ends.end())
            ends.append(row);
        else
            *end = row;
    }
    QVector<int> kept(targets.size(), -1);
    for (int row = ends.isEmpty() ? -1 : ends.last(); row >= 0; row = previous.at(row))
        kept[row] = targets.at(row);
    targets = kept;
}

/// At how many places rows go or come.
int placesOf(const QVector<int> &targets, int newCount)
{
    int places = 0;
    int next = 0; // the row that would follow
    bool going = false;
    for (const int target : targets) {
        if (target < 0) {
            places += going ? 0 : 1;
            going = true;
            continue;
        }
        places += target != next ? 1 : 0;
        next = target + 1;
        going = false;
    }
    return places + (next != newCount ? 1 : 0);
}

/// Leaves what both lists begin and end with.
void keepEnds(QVector<int> &targets, int newCount)
{
    const int count = targets.size();
    int first = 0;
    while (first < count && targets.at(first) == first)
        ++first;
    int last = count - 1;
    while (last >= first && targets.at(last) == last + newCount - count)
        --last;
    std::fill(targets.begin() + first, targets.begin() + last + 1, -1);
}
} // namespace

QVector<int> ProblemRows::targets(const QVector<Problem> &before, const QVector<Problem> &after)
{
    QHash<Key, int> rows;
    const QVector<Key> newKeys = keysOf(after);
    rows.reserve(newKeys.size());
    for (int row = 0; row < newKeys.size(); ++row)
        rows.insert(newKeys.at(row), row);
    QVector<int> targets;
    targets.reserve(before.size());
    const QVector<Key> oldKeys = keysOf(before);
    for (const Key &key : oldKeys)
        targets.append(rows.value(key, -1));
    keepRising(targets);
    if (placesOf(targets, after.size()) > kFewPlaces)
        keepEnds(targets, after.size());
    return targets;
}
