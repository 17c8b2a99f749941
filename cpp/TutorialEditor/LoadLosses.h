#pragma once

#include <QJsonObject>
#include <QList>
#include <QSet>
#include <QStringList>
#include <QVector>

/// Finds what a scenario file holds and the document that is read from it doesn't, so that the next
/// save would drop it from the file without anyone having taken it out.
class LoadLosses
{
public:
    /// What is lost, and where it stands in the file.
    struct Loss
    {
        enum class Kind {
            Characters, ///< that are not UTF-8; no item
            Trailing, ///< what follows the steps; no item
            Element, ///< an element at the top, since something in it, at the place, can't be read
            Id, ///< which another item has
            Children, ///< of an item that is no folder
            Value, ///< of a key
        };
        Kind kind = Kind::Element;
        int element = 0; ///< the position of the element at the top
        int item = 0; ///< in the element: the number of items before it, in the order of the file
        int id = -1; ///< of the item, or of the element at the top where the item has none
        QString name = {};
        QString key = {};
    };

    /// Looks at the next element of the file's array, as the reader does.
    void inspect(const QJsonValue &element);
    /// The same for an element that the document holds as it is, unless one of the ids of its items
    /// is another's, too.
    void inspectKept(const QJsonValue &element, const QList<int> &ids);

    /// A line for each loss, for the user.
    const QStringList &lines() const { return mLines; }
    /// The same for who looks into the file.
    const QVector<Loss> &losses() const { return mLosses; }

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
    void add(Loss::Kind kind, const QJsonObject &item, const QString &key = QString());

    QStringList mLines;
    QVector<Loss> mLosses;
    QSet<int> mIds;
    int mCount = 0;
    int mItem = 0; // the number of items of the present element that were looked at before the present one
    QString mUnreadable; // the place that makes the reader leave out the whole element
};
