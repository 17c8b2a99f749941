#include "Tutorial/translation/StaleHints.h"

#include <algorithm>
#include <functional>

namespace
{
// More than the steps of the history can bring back.
constexpr int kMostTranslations = 40;

void forEachStep(const StaleHints::Document &document, const std::function<void(const TutorialItemData &)> &visit)
{
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        const TutorialItemData *record = item.mFolder ? nullptr : document.getData(item.mId);
        if (record)
            visit(*record);
    });
}
} // namespace

void StaleHints::begin(const Document &document, const QSet<QString> &staleKeys)
{
    mMade.clear();
    forEachStep(document, [&](const TutorialItemData &record) {
        see(record);
        if (staleKeys.contains(key(record.mId)))
            setStale(record, true);
    });
}

void StaleHints::follow(const Document &document)
{
    forEachStep(document, [this](const TutorialItemData &record) { see(record); });
}

void StaleHints::see(const TutorialItemData &record)
{
    QVector<Made> &made = mMade[record.mId];
    if (!made.isEmpty() && made.constLast().translation == record.mHint2)
        return;
    const auto known =
        std::find_if(made.begin(), made.end(), [&](const Made &entry) { return entry.translation == record.mHint2; });
    if (known != made.end()) {
        std::rotate(known, known + 1, made.end());
        return;
    }
    if (made.size() >= kMostTranslations)
        made.removeFirst();
    made.append({ record.mHint2, { record.mHint } });
}

bool StaleHints::isStale(const TutorialItemData &record) const
{
    const auto made = mMade.constFind(record.mId);
    if (made == mMade.constEnd() || isMissing(record.mId, record.mHint2))
        return false;
    // Mostly it is the last one.
    const auto now = std::find_if(made->crbegin(), made->crend(),
                                  [&](const Made &entry) { return entry.translation == record.mHint2; });
    return now != made->crend() && !now->hints.contains(record.mHint);
}

QSet<int> StaleHints::staleIds(const Document &document) const
{
    QSet<int> ids;
    forEachStep(document, [&](const TutorialItemData &record) {
        if (isStale(record))
            ids.insert(record.mId);
    });
    return ids;
}

void StaleHints::setMadeFrom(const TutorialItemData &record, const QString &hint)
{
    see(record);
    mMade[record.mId].last().hints = QStringList(hint);
}

bool StaleHints::confirm(const TutorialItemData &record)
{
    see(record);
    const bool stale = isStale(record);
    if (stale)
        setStale(record, false);
    return stale;
}

void StaleHints::setStale(const TutorialItemData &record, bool stale)
{
    see(record);
    QStringList &hints = mMade[record.mId].last().hints;
    if (stale)
        hints.clear();
    else if (!hints.contains(record.mHint))
        hints.append(record.mHint);
}
