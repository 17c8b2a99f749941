#include "Tutorial/recovery/RecoveryDifferences.h"

#include "Tutorial/recovery/Recovery.h"
#include "TutorialEditor/ScenarioReader.h"

#include <QSet>

#include <algorithm>

namespace
{
/// The items of a state by their ids.
class Items
{
public:
    struct Place
    {
        int parentId;
        int position; // among all items
        bool folder;
    };

    explicit Items(const TutorialState &state) : mHints(state.hints), mStale(state.stale)
    {
        QStringList leftOut;
        ScenarioReader::read(state.array, mDocument, leftOut);
        mDocument.mRoot.visitAll([this](const TreeItem<TutorialItemData> &item) {
            for (const TreeItem<TutorialItemData> &child : item.mChildren)
                mPlaces.insert(child.mId, { item.mId, 0, child.mFolder });
            if (item.mId >= 0) {
                mPlaces[item.mId].position = mIds.size();
                mIds.append(item.mId);
            }
        });
    }
    ~Items() { qDeleteAll(mDocument.mDataList); }

    const QVector<int> &ids() const { return mIds; }
    Place place(int id) const { return mPlaces.value(id); }
    const TutorialItemData &record(int id) const { return *mDocument.getData(id); }
    bool isLike(int id, const Items &other) const
    {
        const auto found = other.mPlaces.constFind(id);
        return found != other.mPlaces.cend() && found->folder == mPlaces.value(id).folder;
    }
    /// A hint that no file has is shown as its key.
    QString hint(const QString &locale, int id) const
    {
        const QString key = QLatin1Char('#') + QString::number(id);
        return mHints.value(locale).value(key, key);
    }
    QStringList locales() const { return mHints.keys(); }
    bool knowsStale(const QString &locale) const { return mStale.contains(locale); }
    bool isStale(const QString &locale, int id) const
    {
        const auto keys = mStale.constFind(locale);
        return keys != mStale.cend() && keys->contains(QLatin1Char('#') + QString::number(id));
    }
    bool hasSharedIds() const { return mPlaces.size() < mIds.size(); }

private:
    Q_DISABLE_COPY(Items)

    const TutorialState::Hints mHints;
    const TutorialState::StaleKeys mStale;
    TreeDataTemplate<TutorialItemData> mDocument;
    QHash<int, Place> mPlaces;
    QVector<int> mIds;
};

QString label(const TutorialItemData &record)
{
    return QStringLiteral("%1 (#%2)").arg(record.mName, QString::number(record.mId));
}

/// The fewest items of a folder that have to go elsewhere to get the new order: all but a longest run of those that
/// follow each other in the old one, too.
QSet<int> reordered(const QVector<int> &ids, const Items &before)
{
    QVector<int> ends; // of the best run of each length: the item whose old position is the lowest
    QHash<int, int> previous;
    const auto isBefore = [&before](int one, int other) {
        return before.place(one).position < before.place(other).position;
    };
    for (const int id : ids) {
        const auto end = std::lower_bound(ends.begin(), ends.end(), id, isBefore);
        previous.insert(id, end == ends.begin() ? -1 : *(end - 1));
        if (end == ends.end())
            ends.append(id);
        else
            *end = id;
    }
    QSet<int> moved;
    for (const int id : ids)
        moved.insert(id);
    for (int id = ends.isEmpty() ? -1 : ends.last(); id >= 0; id = previous.value(id, -1))
        moved.remove(id);
    return moved;
}

QSet<int> movedIds(const Items &before, const Items &after)
{
    QSet<int> moved;
    QHash<int, QVector<int>> stayed; // by the folder that they stand in before and after
    for (const int id : after.ids()) {
        if (!after.isLike(id, before))
            continue;
        const int parentId = after.place(id).parentId;
        if (before.place(id).parentId == parentId)
            stayed[parentId].append(id);
        else
            moved.insert(id);
    }
    for (const QVector<int> &ids : qAsConst(stayed))
        moved += reordered(ids, before);
    return moved;
}

QString shown(const QString &json)
{
    constexpr int kLength = 60;
    return json.size() <= kLength ? json : json.left(kLength) + QChar(0x2026);
}

QString changeOf(const QString &item, const QString &field, const QString &before, const QString &after)
{
    return Recovery::tr("Changed: %1, %2: %3 -> %4").arg(item, field, shown(before), shown(after));
}

QString quoted(const QString &text)
{
    QString json;
    JsonWrapper::appendJson(json, text);
    return json;
}

void appendChanges(QStringList &lines, int id, const Items &before, const Items &after)
{
    const bool folder = after.place(id).folder;
    const QString item = label(after.record(id));
    for (const TutorialItemField &field : TutorialItemField::all()) {
        const bool stored =
            field.form == TutorialItemField::Form::Value && (!folder || field.owner == TutorialItemField::Owner::Item);
        if (!stored || field.read(before.record(id)) == field.read(after.record(id)))
            continue;
        QString old;
        QString recent;
        field.appendJson(old, before.record(id));
        field.appendJson(recent, after.record(id));
        lines.append(changeOf(item, field.name, old, recent));
    }
    QStringList locales = after.locales();
    std::sort(locales.begin(), locales.end());
    for (const QString &locale : qAsConst(locales)) {
        const QString old = before.hint(locale, id);
        const QString recent = after.hint(locale, id);
        if (folder)
            continue;
        if (old != recent)
            lines.append(changeOf(item, QStringLiteral("hint (%1)").arg(locale), quoted(old), quoted(recent)));
        else if (before.knowsStale(locale) && after.knowsStale(locale)
                 && before.isStale(locale, id) != after.isStale(locale, id))
            lines.append(
                (after.isStale(locale, id) ? Recovery::tr("Stale: %1") : Recovery::tr("Translation stands: %1"))
                    .arg(item));
    }
}
} // namespace

TutorialState RecoveryDifferences::merged(const RecoveryCopy &copy, const TutorialState &stored)
{
    TutorialState state = copy.state;
    for (auto language = state.hints.begin(); language != state.hints.end(); ++language) {
        const QHash<QString, QString> loaded = copy.loadedHints.value(language.key());
        const QHash<QString, QString> onDisk = stored.hints.value(language.key());
        for (auto hint = language->begin(); hint != language->end(); ++hint) {
            if (hint.value() == loaded.value(hint.key(), hint.key()))
                hint.value() = onDisk.value(hint.key(), hint.value());
        }
    }
    for (auto language = state.stale.begin(); language != state.stale.end(); ++language) {
        const QHash<QString, QString> own = copy.state.hints.value(language.key());
        const QHash<QString, QString> merged = state.hints.value(language.key());
        const QSet<QString> onDisk = stored.stale.value(language.key());
        for (auto hint = merged.cbegin(); hint != merged.cend(); ++hint) {
            // What the copy knows is of its own text.
            if (hint.value() == own.value(hint.key()))
                continue;
            if (onDisk.contains(hint.key()))
                language->insert(hint.key());
            else
                language->remove(hint.key());
        }
    }
    return state;
}

QStringList RecoveryDifferences::lines(const TutorialState &before, const TutorialState &after)
{
    const Items old(before);
    const Items recent(after);
    QStringList lines;
    for (const int id : recent.ids()) {
        if (!recent.isLike(id, old))
            lines.append(Recovery::tr("Added: %1").arg(label(recent.record(id))));
    }
    for (const int id : old.ids()) {
        if (!old.isLike(id, recent))
            lines.append(Recovery::tr("Removed: %1").arg(label(old.record(id))));
    }
    const QSet<int> moved = movedIds(old, recent);
    for (const int id : recent.ids()) {
        if (!recent.isLike(id, old))
            continue;
        if (moved.contains(id))
            lines.append(Recovery::tr("Moved: %1").arg(label(recent.record(id))));
        appendChanges(lines, id, old, recent);
    }
    if (lines.isEmpty() && recent.hasSharedIds() && before.array != after.array)
        lines.append(Recovery::tr("Changed: items that share an id"));
    return lines;
}
