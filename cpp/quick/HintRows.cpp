#include "quick/HintRows.h"

#include "Tutorial/translation/StaleHints.h"

namespace
{
HintRow::State stateOf(const TutorialItemData &record, const QSet<int> &staleIds)
{
    if (StaleHints::isMissing(record.mId, record.mHint) || StaleHints::isMissing(record.mId, record.mHint2))
        return HintRow::State::Missing;
    if (staleIds.contains(record.mId))
        return HintRow::State::Stale;
    return record.mHint == record.mHint2 ? HintRow::State::Same : HintRow::State::Complete;
}
} // namespace

QVector<HintRow> HintRows::read(const TreeDataTemplate<TutorialItemData> &document, const QSet<int> &staleIds)
{
    QVector<HintRow> rows;
    rows.reserve(document.mDataList.size());
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        const TutorialItemData *record = item.mFolder ? nullptr : document.getData(item.mId);
        if (record)
            rows.append({ item.mId, record->mName, record->mHint, record->mHint2, stateOf(*record, staleIds) });
    });
    return rows;
}

bool HintRows::holdsText(const HintRow &row, const QString &text)
{
    return text.isEmpty() || row.first.contains(text, Qt::CaseInsensitive)
        || row.second.contains(text, Qt::CaseInsensitive);
}
