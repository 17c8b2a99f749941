#pragma once

#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QStringList>

/// Finds what a scenario file holds and the document that is read from it doesn't, so that the next
/// save would drop it from the file without anyone having taken it out.
class LoadLosses
{
public:
    /// Looks at the next element of the file's array, as the reader does.
    void inspect(const QJsonValue &element);
    /// The same for an element that the document holds as it is, unless one of the ids of its items
    /// is another's, too.
    void inspectKept(const QJsonValue &element, const QList<int> &ids);

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

    bool addId(int id);
    bool inspect(const QJsonValue &element, const Place *parent, int position);
    void inspectValues(const Place &place);

    QStringList mLines;
    QSet<int> mIds;
    int mCount = 0;
    QString mUnreadable; // the place that makes the reader leave out the whole element
};
