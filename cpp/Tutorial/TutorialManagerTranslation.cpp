// The two languages: installed translators, and the translation sources that the authoring mode
// edits.

#include "SystemService/SystemService.h"
#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TranslatableText.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

QString hintKey(int id)
{
    return QStringLiteral("#%1").arg(id);
}
} // namespace

QString TutorialManager::applyTranslation(const QString &context, const QString &sourceText) const
{
    Log::debug(kFolder, "TutorialManager::applyTranslation", __LINE__) << context << sourceText;
    return QCoreApplication::translate(context.toUtf8().constData(), sourceText.toUtf8().constData());
}

QString TutorialManager::translate(const QString &key) const
{
    return applyTranslation(mTranslationContext, key);
}

QString TutorialManager::applyTranslationToText(const QString &text, QStringList &errors) const
{
    return TranslatableText::applyToScenario(
        text, mTranslationContext,
        [this](const QString &context, const QString &source) { return applyTranslation(context, source); }, errors);
}

QString TutorialManager::parseStringExpression(const QString &text, const QString &context, QString &rest,
                                               QStringList &errors) const
{
    return TranslatableText::parseStringExpression(
        text, context,
        [this](const QString &callContext, const QString &source) { return applyTranslation(callContext, source); },
        rest, errors);
}

void TutorialManager::setLocale(const QString &locale)
{
    if (locale == mLocale)
        return;
    Log::debug(kFolder, "TutorialManager::setLocale", __LINE__) << locale;
    SystemService::setDebugLocale(locale);
    mLocale = locale;
    updateLocale2(mLocale);
    installTranslator(locale);
    if (isMakingSupported()) {
        loadTranslation();
        updateDocumentTranslator();
    }
    Q_EMIT localeChanged();
}

void TutorialManager::setLocale2(const QString &locale)
{
    if (locale == mLocale2)
        return;
    Log::debug(kFolder, "TutorialManager::setLocale2", __LINE__) << locale;
    mLocale2 = locale;
    Q_EMIT locale2Changed();
}

void TutorialManager::updateLocale2(const QString &locale)
{
    const QString japanese = QStringLiteral("ja_JP");
    setLocale2(locale == japanese ? QStringLiteral("en_US") : japanese);
}

void TutorialManager::installTranslator(const QString &locale)
{
    const QString folder = QStringLiteral(":/translations");
    auto *translator = new QTranslator(applicationObject);
    const bool loaded = translator->load(locale, folder);
    Log::debug(kFolder, "TutorialManager::installTranslator", __LINE__)
        << QString(folder + QLatin1Char('/') + locale) << loaded;
    // Whatever the result is: the earlier translators go on answering for what this one lacks.
    QCoreApplication::installTranslator(translator);
    if (isMakingSupported()) {
        // What the writer edits stays in front.
        QCoreApplication::removeTranslator(&mDocumentTranslator);
        QCoreApplication::installTranslator(&mDocumentTranslator);
    }
}

QString TutorialManager::translationPath(const QString &locale) const
{
    const QString path = QStringLiteral("translations/%1.ts").arg(locale);
    return isMakingSupported() ? QString(QLatin1String("tutorial-win/") + path) : getExistsFilename(path);
}

bool TutorialManager::readTranslation(const QString &locale, QDomDocument &document) const
{
    document = QDomDocument();
    const QString path = translationPath(locale);
    if (!DataSupport::fileExists(path)) {
        Log::warning(kFolder, "TutorialManager::loadTranslation", __LINE__) << "translation file not found" << path;
        return false;
    }
    QByteArray bytes;
    if (!DataSupport::readFile(path, bytes))
        return false;
    if (!TranslationSource::parse(bytes, document)) {
        Log::warning(kFolder, "TutorialManager::loadTranslation", __LINE__) << "Failed to setContents";
        return false;
    }
    Log::debug(kFolder, "TutorialManager::loadTranslation", __LINE__) << document.toString(1);
    return true;
}

bool TutorialManager::loadTranslation()
{
    // Both are read in any case: a document of the languages before must not be taken for this one's.
    const bool first = readTranslation(mLocale, mTranslationDocument);
    const bool second = readTranslation(mLocale2, mTranslationDocument2);
    return first && second;
}

void TutorialManager::keepLoadedHints(const QString &locale, const QDomDocument &document)
{
    mLoadedHints.insert(locale, TranslationSource::readMessages(document).value(mTranslationContext));
}

bool TutorialManager::refreshTranslation(const QString &locale, QDomDocument &document) const
{
    const QString path = translationPath(locale);
    QByteArray bytes;
    if (DataSupport::fileExists(path) && !DataSupport::readFile(path, bytes))
        return false;
    if (bytes.trimmed().isEmpty()) {
        // Where there is nothing, nothing can be lost by making a file.
        if (document.isNull())
            document = TranslationSource::emptyDocument(locale);
        return true;
    }
    if (TranslationSource::parse(bytes, document))
        return true;
    Log::warning(kFolder, "TutorialManager::feedbackTranslation", __LINE__) << "Failed to setContents" << path;
    return false;
}

void TutorialManager::mergeHints(const QString &locale, QDomDocument &document, QString TutorialItemData::*hint)
{
    const TranslationSource::Messages loaded = mLoadedHints.value(locale);
    const TranslationSource::Messages onDisk = TranslationSource::readMessages(document).value(mTranslationContext);
    QVector<TranslationSource::Entry> entries;
    bool taken = false;
    mEditorManager->mData.mRoot.visitAll([&](const TreeItem<TutorialItemData> &item) {
        TutorialItemData *record = item.mFolder ? nullptr : mEditorManager->mData.getData(item.mId);
        if (!record)
            return;
        const QString key = hintKey(item.mId);
        const QString before = loaded.value(key, key);
        // A text that is gone from the file is still the item's.
        const QString theirs = onDisk.value(key, before);
        QString &own = record->*hint;
        if (theirs != before && own == before) {
            // Past the history: this is no edit of the writer's.
            own = theirs;
            taken = true;
        } else if (theirs != before && own != theirs) {
            Log::warning(kFolder, "TutorialManager::feedbackTranslation", __LINE__)
                << "changed here and in the file" << locale << key << theirs;
        }
        entries.append({ key, own });
    });
    TranslationSource::writeMessages(document, mTranslationContext, entries);
    if (taken)
        Q_EMIT documentReplaced();
}

bool TutorialManager::feedbackTranslation()
{
    const auto feedback = [this](const QString &locale, QDomDocument &document, QString TutorialItemData::*hint) {
        if (!refreshTranslation(locale, document)) {
            Log::warning(kFolder, "TutorialManager::feedbackTranslation", __LINE__)
                << "Failed to save" << translationPath(locale);
            return false;
        }
        mergeHints(locale, document, hint);
        return true;
    };
    // After a change of the language the items are still in the old one until they are loaded again.
    const bool exchanged = mHintLocale == mLocale2;
    const auto first = exchanged ? &TutorialItemData::mHint2 : &TutorialItemData::mHint;
    const auto second = exchanged ? &TutorialItemData::mHint : &TutorialItemData::mHint2;
    const bool merged =
        feedback(mLocale, mTranslationDocument, first) && feedback(mLocale2, mTranslationDocument2, second);
    updateDocumentTranslator();
    return merged;
}

bool TutorialManager::writeTranslation(const QString &locale, const QDomDocument &document)
{
    const QString path = translationPath(locale);
    // The first save of a writer may be the one that makes the folder.
    QDir().mkpath(QFileInfo(path).path());
    // A document that was never read writes out as nothing.
    if (document.isNull() || !DataSupport::writeFile(path, document.toByteArray(4))) {
        Log::warning(kFolder, "TutorialManager::saveTranslation", __LINE__) << "Failed to save" << path;
        return false;
    }
    keepLoadedHints(locale, document);
    return true;
}

bool TutorialManager::saveTranslation()
{
    return writeTranslation(mLocale, mTranslationDocument) && writeTranslation(mLocale2, mTranslationDocument2);
}

void TutorialManager::updateDocumentTranslator()
{
    mDocumentTranslator.setMessages(TranslationSource::readMessages(mTranslationDocument));
    mDocumentTranslator.setOwnContext(mTranslationContext);
}

void TutorialManager::readSecondHints()
{
    QSet<int> folders;
    mEditorManager->mData.mRoot.visitAll([&folders](const TreeItem<TutorialItemData> &item) {
        if (item.mFolder)
            folders.insert(item.mId);
    });
    const TranslationSource::Messages messages =
        TranslationSource::readMessages(mTranslationDocument2).value(mTranslationContext);
    for (TutorialItemData *record : mEditorManager->mData.mDataList) {
        if (folders.contains(record->mId))
            continue;
        const QString key = hintKey(record->mId);
        record->mHint2 = messages.value(key, key);
    }
}
