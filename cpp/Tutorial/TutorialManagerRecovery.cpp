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

namespace
{
/// The array as a save writes it, but with the hints in place of their translation calls.
QString arrayOf(const TreeDataTemplate<TutorialItemData> &document)
{
    // Not by way of the whole scenario, which goes into the log.
    QString array;
    TutorialEditor::Manager::instance()->getJsonText(0, document.mRoot, document, array, false);
    return array;
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

RecoveryCopy TutorialManager::unsavedWork(const QList<TypedValue> &typed) const
{
    // Past the history, and back again.
    struct Former
    {
        const TutorialItemField *field;
        TutorialItemData *record;
        QVariant value;
    };
    std::vector<Former> formers;
    for (const TypedValue &value : typed) {
        const TutorialItemField *field = TutorialItemField::find(value.field);
        TutorialItemData *record = mEditorManager->mData.getData(value.itemId);
        if (!field || !record || !ScenarioText::findUnreadable(value.value.toString()).isEmpty())
            continue;
        formers.push_back({ field, record, field->read(*record) });
        field->write(*record, value.value);
    }
    RecoveryCopy copy;
    copy.path = QFileInfo(mEditorManager->mFilename).absoluteFilePath();
    copy.state.array = arrayOf(mEditorManager->mData);
    copy.state.hints = mTranslation->hints();
    copy.loadedHints = mTranslation->loadedHints();
    copy.stale = mTranslation->staleKeys();
    copy.fileHash = mEditorManager->fileHash();
    copy.leftOut = mEditorManager->leftOut();
    for (const Former &former : formers)
        former.field->write(*former.record, former.value);
    return copy;
}

TutorialState TutorialManager::storedState(const QString &path) const
{
    const QString name = baseName(path);
    const TutorialTranslation::Hints hints = mTranslation->storedHints(name);
    const TranslationSource::Messages messages = hints.value(locale());
    QByteArray bytes;
    if (DataSupport::fileExists(path))
        DataSupport::readFile(path, bytes);
    // As it is loaded, but without the loaded tutorial's knowledge.
    QStringList errors;
    const QString array = TranslatableText::applyToScenario(
        ScenarioReader::arrayOf(ScenarioReader::decoded(bytes)), name,
        [&messages](const QString &, const QString &source) { return messages.value(source, source); }, errors);
    TreeDataTemplate<TutorialItemData> document;
    QStringList leftOut;
    // A new tutorial's file may be missing or blank.
    if (!array.isEmpty())
        ScenarioReader::read(array, document, leftOut);
    HintMerge::readHints(document, &TutorialItemData::mHint2, hints.value(locale2()));
    TutorialState state{ arrayOf(document),
                         { { locale(), HintMerge::hints(document, &TutorialItemData::mHint) },
                           { locale2(), HintMerge::hints(document, &TutorialItemData::mHint2) } } };
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
    mTranslation->endLoad(copy.state.hints, copy.loadedHints, copy.stale);
    setTutorialName(name);
    if (history)
        history->markUnsaved();
    followHistory();
    Q_EMIT documentReplaced();
    return true;
}
