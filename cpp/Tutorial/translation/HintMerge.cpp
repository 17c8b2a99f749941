#include "Tutorial/translation/HintMerge.h"

namespace
{
QString hintKey(int id)
{
    return QStringLiteral("#%1").arg(id);
}
} // namespace

HintMerge::Result HintMerge::merge(Document &document, Hint hint, const TranslationSource::Messages &before,
                                   const TranslationSource::Messages &onDisk)
{
    Result result;
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        TutorialItemData *record = item.mFolder ? nullptr : document.getData(item.mId);
        if (!record)
            return;
        const QString key = hintKey(item.mId);
        const QString former = before.value(key, key);
        // A text that is gone from the file is still the item's.
        const QString theirs = onDisk.value(key, former);
        QString &own = record->*hint;
        if (theirs != former && own == former) {
            // Past the history: this is no edit of the writer's.
            own = theirs;
            result.taken.insert(key);
        } else if (theirs != former && own != theirs) {
            result.conflicts.append({ key, theirs });
        }
        result.entries.append({ key, own });
    });
    return result;
}

TranslationSource::Messages HintMerge::hints(const Document &document, Hint hint)
{
    TranslationSource::Messages hints;
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        const TutorialItemData *record = item.mFolder ? nullptr : document.getData(item.mId);
        if (record)
            hints.insert(hintKey(item.mId), record->*hint);
    });
    return hints;
}

void HintMerge::readHints(Document &document, Hint hint, const TranslationSource::Messages &messages)
{
    QSet<int> folders;
    document.mRoot.visitAll([&folders](const TreeItem<TutorialItemData> &item) {
        if (item.mFolder)
            folders.insert(item.mId);
    });
    for (TutorialItemData *record : qAsConst(document.mDataList)) {
        const QString key = hintKey(record->mId);
        if (!folders.contains(record->mId))
            record->*hint = messages.value(key, key);
    }
}
