#pragma once

#include <QList>
#include <QSet>

/// The ids of a list, for asking many times whether one is among them.
inline QSet<int> idSet(const QList<int> &idList)
{
    QSet<int> ids;
    ids.reserve(idList.size());
    for (const int id : idList)
        ids.insert(id);
    return ids;
}
