#pragma once

#include "model/TreeItem.h"
#include "model/TutorialItemData.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

/// Knows for each item which first hints its second hint, the translation, stands for. A translation is stale when the
/// first hint of now is none of them.
///
/// It is kept by the text of the translation, so that steps back and forth through the history need no more than that
/// their texts are recognised.
class StaleHints
{
public:
    using Document = TreeDataTemplate<TutorialItemData>;

    /// Begins with the items as they were read: each translation stands for the hint beside it, but those of these keys
    /// are stale.
    void begin(const Document &document, const QSet<QString> &staleKeys);
    /// Looks at the items after a change: a translation that was not seen before stands for the hint beside it.
    void follow(const Document &document);

    /// Neither an empty translation nor a key is stale: it is missing. Nor is one that was never followed.
    bool isStale(const TutorialItemData &record) const;
    QSet<int> staleIds(const Document &document) const;
    /// Lets the translation stand for the hint beside it, or for none.
    void setStale(const TutorialItemData &record, bool stale);
    /// It was made from that hint, and from no other.
    void setMadeFrom(const TutorialItemData &record, const QString &hint);
    /// Lets a stale translation stand for the hint beside it, too. False if it does so already.
    bool confirm(const TutorialItemData &record);

    /// The key of an item's hints in a translation source.
    static QString key(int id) { return QStringLiteral("#%1").arg(id); }
    /// Whether a hint of an item is empty or its key.
    static bool isMissing(int id, const QString &hint) { return hint.isEmpty() || hint == key(id); }

private:
    struct Made
    {
        QString translation;
        QStringList hints; // that it stands for
    };

    void see(const TutorialItemData &record);

    QHash<int, QVector<Made>> mMade; // by item; what it has now stands at the end
};
