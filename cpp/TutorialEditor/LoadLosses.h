#pragma once

#include <QSet>
#include <QStringList>

class QJsonObject;
class QJsonValue;

/// Finds what a scenario file holds and the document that is read from it doesn't, so that the next
/// save would drop it from the file without anyone having taken it out.
class LoadLosses
{
public:
    /// Looks at the next element of the file's array, as the reader does.
    void inspect(const QJsonValue &element);

    /// A line for each loss, for the user.
    const QStringList &lines() const { return mLines; }

private:
    bool inspect(const QJsonValue &element, const QString &parentPath, int position);
    void inspectValues(const QJsonObject &item, const QString &path);

    QStringList mLines;
    QSet<int> mIds;
    int mCount = 0;
    QString mUnreadable; // the place that makes the reader leave out the whole element
};
