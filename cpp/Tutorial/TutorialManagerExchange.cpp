// The hints' way to a translator and back.

#include "tool/DataSupport.h"
#include "Tutorial/recovery/Recovery.h"
#include "Tutorial/translation/HintExchange.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QFileInfo>

namespace
{
QString listOf(const QStringList &keys)
{
    constexpr int shown = 10;
    const QString text = QStringList(keys.mid(0, shown)).join(QLatin1String(", "));
    return keys.size() > shown ? text + QStringLiteral(", ...") : text;
}

/// What came of the entries of a file.
struct Outcome
{
    int taken = 0;
    int confirmed = 0;
    int untranslated = 0;
    QStringList overwritten;
    QStringList outdated;
    QStringList unknown;
};

/// The second hint of an item as a file holds it.
QString translationOf(int id, const QString &hint)
{
    return StaleHints::isMissing(id, hint) ? QString() : HintExchange::cleaned(hint);
}
} // namespace

QString TutorialManager::exportTranslation(const QString &path) const
{
    const bool named = !QFileInfo(path).suffix().isEmpty();
    const QString file = named ? path : path + QLatin1String(".xlf");
    // Who chose a name without a suffix was not asked about this one.
    if (!named && DataSupport::fileExists(file))
        return tr("%1 is there already.").arg(file);
    const TreeDataTemplate<TutorialItemData> &document = mEditorManager->mData;
    const QSet<int> stale = mTranslation->staleIds();
    QVector<HintExchange::Entry> entries;
    document.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        const TutorialItemData *record = item.mFolder ? nullptr : document.getData(item.mId);
        if (!record || StaleHints::isMissing(item.mId, record->mHint))
            return;
        const QString translation = translationOf(item.mId, record->mHint2);
        entries.append({ item.mId, record->mName, record->mHint, translation,
                         !translation.isEmpty() && !stale.contains(item.mId), QString() });
    });
    return HintExchange::write(file, { mTutorialName, locale(), locale2() }, entries);
}

QVariantMap TutorialManager::importTranslation(const QString &path)
{
    UndoRedo *history = UndoRedo::instance();
    QVector<HintExchange::Entry> entries;
    const QString error = HintExchange::read(path, { mTutorialName, locale(), locale2() }, entries);
    if (!error.isEmpty() || !history)
        return { { QStringLiteral("error"), error } };
    TreeDataTemplate<TutorialItemData> &document = mEditorManager->mData;
    mTranslation->followDocument();
    const QSet<int> stale = mTranslation->staleIds();
    Outcome outcome;
    QHash<int, QString> madeFrom; // of those that are taken
    history->beginSequence(QStringLiteral("importTranslation"));
    for (const HintExchange::Entry &entry : qAsConst(entries)) {
        const TreeItem<TutorialItemData> *item = document.findItem(entry.id);
        TutorialItemData *record = item && !item->mFolder ? document.getData(entry.id) : nullptr;
        if (!record) {
            outcome.unknown.append(entry.id < 0 ? entry.source.left(20) : StaleHints::key(entry.id));
            continue;
        }
        const QString current = translationOf(entry.id, record->mHint2);
        const bool isOfCurrentHint = entry.source == HintExchange::cleaned(record->mHint);
        if (!entry.translation.isEmpty() && entry.translation == current) {
            if (!entry.finished && stale.contains(entry.id))
                ++outcome.untranslated;
            else if (entry.finished && isOfCurrentHint && mTranslation->confirmTranslation(entry.id))
                ++outcome.confirmed;
        } else if (entry.translation.isEmpty() || HintExchange::isAsWritten(entry, entry.translation)) {
            ++outcome.untranslated;
        } else {
            if (!entry.mark.isEmpty() && !HintExchange::isAsWritten(entry, current))
                outcome.overwritten.append(StaleHints::key(entry.id));
            record->setValue(QStringLiteral("hint2"), entry.translation);
            madeFrom.insert(entry.id, isOfCurrentHint ? record->mHint : entry.source);
            ++outcome.taken;
            if (!isOfCurrentHint)
                outcome.outdated.append(StaleHints::key(entry.id));
        }
    }
    history->endSequence();
    for (auto made = madeFrom.cbegin(); made != madeFrom.cend(); ++made)
        mTranslation->setMadeFrom(made.key(), made.value());
    if (outcome.confirmed > 0)
        history->markUnsaved();
    mRecovery->noteChange();
    Q_EMIT staleIdsChanged();

    QStringList lines = { tr("Taken: %1").arg(outcome.taken) };
    if (outcome.confirmed > 0)
        lines.append(tr("Not stale any more: %1").arg(outcome.confirmed));
    if (outcome.untranslated > 0)
        lines.append(tr("Not translated: %1").arg(outcome.untranslated));
    if (!outcome.overwritten.isEmpty())
        lines.append(tr("Taken over changes of yours: %1").arg(listOf(outcome.overwritten)));
    if (!outcome.outdated.isEmpty())
        lines.append(tr("Stale, for the text to be translated has changed: %1").arg(listOf(outcome.outdated)));
    if (!outcome.unknown.isEmpty())
        lines.append(tr("Skipped, for there is no such item: %1").arg(listOf(outcome.unknown)));
    return { { QStringLiteral("report"), lines.join(QLatin1Char('\n')) } };
}
