#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QRegularExpression>

/// Short texts for documents: "1 2[3 4[]] 5" is item 1, folder 2 with item 3 and the empty folder 4, and item 5.
namespace Shape
{
/// The scenario, with the names "name1" to "name5". Each item also has the fields, in which "\1" is its id.
inline QString scenario(QString shape, const QString &fields = QString())
{
    const QString item = QStringLiteral("{\"id\":\\1,\"name\":\"name\\1\"");
    shape.replace(QRegularExpression(QStringLiteral("(\\d+)(?![\\d[])")), item + fields + QLatin1Char('}'));
    shape.replace(QRegularExpression(QStringLiteral("(\\d+)\\[")),
                  item + QLatin1String(",\"folder\":true,\"children\":["));
    shape.replace(QLatin1Char(']'), QLatin1String("]}")).replace(QLatin1Char(' '), QLatin1Char(','));
    return QLatin1Char('[') + shape + QLatin1Char(']');
}

inline QString of(const TreeItem<TutorialItemData> &parent)
{
    QStringList texts;
    for (const auto &item : parent.mChildren) {
        const bool isOpen = item.mFolder || !item.mChildren.isEmpty();
        texts.append(QString::number(item.mId) + (isOpen ? QStringLiteral("[%1]").arg(of(item)) : QString()));
    }
    return texts.join(QLatin1Char(' '));
}
} // namespace Shape
