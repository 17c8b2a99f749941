#pragma once

#include <QJsonObject>
#include <QSet>
#include <QStringList>

/// Finds what a scenario file holds and the document that is read from it doesn't, so that the next
/// save would drop it from the file without anyone having taken it out.
class LoadLosses
{
public:
    /// Looks at the next element of the file's array, as the reader does; at the values of its items
    /// only where the reader has not kept them all.
    void inspect(const QJsonValue &element, bool valuesKept);

    /// A line for each loss, for the user.
    const QStringList &lines() const { return mLines; }

private:
    /// An item of the file and the one that it stands in, if any. A path is made of it only when it is told.
    struct Place
    {
        QJsonObject item;
        const Place *parent;
    };
    static QString path(const Place *place);

    bool inspect(const QJsonValue &element, const Place *parent, int position);
    void inspectValues(const Place &place);

    QStringList mLines;
    QSet<int> mIds;
    int mCount = 0;
    bool mValuesKept = false;
    QString mUnreadable; // the place that makes the reader leave out the whole element
};
