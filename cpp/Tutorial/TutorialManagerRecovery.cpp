// What the recovery needs to know of the loaded tutorial, and how it brings one back.

#include "tool/DataSupport.h"
#include "Tutorial/recovery/Recovery.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "TutorialEditor/ScenarioReader.h"
#include "TutorialEditor/ScenarioText.h"
#include "UndoRedo/UndoRedo.h"

#include <QFileInfo>

using Document = TreeDataTemplate<TutorialItemData>;

namespace
{
TreeItem<TutorialItemData> copyOf(const TreeItem<TutorialItemData> &item)
{
    TreeItem<TutorialItemData> copy(item.mId, item.mFolder);
    copy.mChildren.reserve(item.mChildren.size());
    for (const TreeItem<TutorialItemData> &child : item.mChildren)
        copy.mChildren.append(copyOf(child));
    return copy;
}

/// A document that shares nothing but its texts' characters, which are never changed in place: another thread may have
/// it.
std::shared_ptr<Document> copyOf(const Document &document)
{
    std::shared_ptr<Document> copy(new Document, [](Document *own) {
        qDeleteAll(own->mDataList);
        delete own;
    });
    copy->mRoot = copyOf(document.mRoot);
    copy->mDataList.reserve(document.mDataList.size());
    for (const TutorialItemData *record : document.mDataList)
        copy->mDataList.append(new TutorialItemData(*record));
    return copy;
}

/// The array as a save writes it, but with the hints in place of their translation calls.
QString arrayOf(const Document &document)
{
    // Not by way of the whole scenario, which goes into the log.
    QString array;
    TutorialEditor::Manager::getJsonText(0, document.mRoot, document, array, false);
    return array;
}

QSet<QString> staleKeys(const StaleHints &known, const Document &document)
{
    QSet<QString> keys;
    for (const int id : known.staleIds(document))
        keys.insert(StaleHints::key(id));
    return keys;
}
} // namespace

QObject *TutorialManager::recovery() const
{
    return mRecovery.get();
}

QString TutorialManager::project() const
{
    return mTranslation->folder();
}

bool TutorialManager::isKeepable() const
{
    return mEditorManager->isSaveable() && !mEditorManager->mFilename.isEmpty();
}

UnsavedWork TutorialManager::unsavedWork(const QList<TypedValue> &typed) const
{
    // What is being typed teaches nothing about what a translation was made from.
    mTranslation->followIfDue();
    const std::shared_ptr<Document> document = copyOf(mEditorManager->mData);
    for (const TypedValue &value : typed) {
        const TutorialItemField *field = TutorialItemField::find(value.field);
        TutorialItemData *record = document->mDataList.value(mEditorManager->mData.getDataIndex(value.itemId));
        if (field && record && ScenarioText::findUnreadable(value.value.toString()).isEmpty())
            field->write(*record, value.value);
    }
    RecoveryCopy copy;
    copy.path = QFileInfo(mEditorManager->mFilename).absoluteFilePath();
    copy.loadedHints = mTranslation->loadedHints();
    copy.fileHash = mEditorManager->fileHash();
    copy.leftOut = mEditorManager->leftOut();
    return [document, copy, hints = mTranslation->hintsOfItems(), stale = mTranslation->staleHints(),
            staleLocale = mTranslation->staleLocale()] {
        RecoveryCopy whole = copy;
        whole.state.array = arrayOf(*document);
        for (auto language = hints.cbegin(); language != hints.cend(); ++language)
            whole.state.hints.insert(language.key(), HintMerge::hints(*document, language.value()));
        whole.state.stale.insert(staleLocale, staleKeys(stale, *document));
        return whole;
    };
}

TutorialState TutorialManager::storedState(const QString &path) const
{
    const QString name = baseName(path);
    TutorialTranslation::StaleKeys marked;
    const TutorialTranslation::Hints hints = mTranslation->storedHints(name, marked);
    const TranslationSource::Messages messages = hints.value(locale());
    QByteArray bytes;
    if (DataSupport::fileExists(path))
        DataSupport::readFile(path, bytes);
    // As it is loaded, but without the loaded tutorial's knowledge.
    QStringList errors;
    const QString array = TranslatableText::applyToScenario(
        ScenarioReader::arrayOf(ScenarioReader::decoded(bytes)), name,
        [&messages](const QString &, const QString &source) { return messages.value(source, source); }, errors);
    Document document;
    QStringList leftOut;
    // A new tutorial's file may be missing or blank.
    if (!array.isEmpty())
        ScenarioReader::read(array, document, leftOut);
    HintMerge::readHints(document, &TutorialItemData::mHint2, hints.value(locale2()));
    StaleHints known;
    known.begin(document, marked.value(locale2()));
    TutorialState state{ arrayOf(document),
                         { { locale(), HintMerge::hints(document, &TutorialItemData::mHint) },
                           { locale2(), HintMerge::hints(document, &TutorialItemData::mHint2) } },
                         { { locale2(), staleKeys(known, document) } } };
    qDeleteAll(document.mDataList);
    return state;
}

bool TutorialManager::takeUp(const RecoveryCopy &copy)
{
    if (!mEditorManager->restore(copy.path, copy.state.array, copy.fileHash, copy.leftOut))
        return false;
    UndoRedo *history = UndoRedo::instance();
    if (history)
        history->clear();
    const QString name = baseName(copy.path);
    mTranslation->beginLoad(name);
    mTranslation->endLoad(copy.state.hints, copy.loadedHints, copy.state.stale);
    setTutorialName(name);
    if (history)
        history->markUnsaved();
    followHistory();
    Q_EMIT documentReplaced();
    return true;
}
