#include "Tutorial/translation/TutorialTranslation.h"

#include "SystemService/InterfaceTranslator.h"
#include "SystemService/SystemService.h"
#include "tool/DataSupport.h"
#include "tool/Log.h"
#include "Tutorial/translation/TranslationFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial/translation";

/// What the translator has loaded: many names lead to the same file.
QString catalogOf(const QTranslator &translator, const QString &locale)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    Q_UNUSED(locale)
    return translator.filePath();
#else
    Q_UNUSED(translator)
    return locale;
#endif
}

/// The documents and catalogs of tutorials may hold texts of the program, too.
void giveWayToInterface()
{
    if (InterfaceTranslator *translator = InterfaceTranslator::instance())
        translator->comeFirst();
}
} // namespace

TutorialTranslation::TutorialTranslation(bool authoring, QObject *translatorOwner, HintMerge::Document &document)
    : mAuthoring(authoring)
    , mTranslatorOwner(translatorOwner)
    , mDocument(document)
    , mLocale(SystemService::getDebugLocale())
{
    updateLocale2(mLocale);
    if (mAuthoring) {
        QCoreApplication::installTranslator(&mDocumentTranslator);
        giveWayToInterface();
    }
}

QString TutorialTranslation::applyTranslation(const QString &context, const QString &sourceText) const
{
    Log::debugEachText(kFolder, "TutorialTranslation::applyTranslation", __LINE__, { context, sourceText });
    const InterfaceTranslator::Silence silence;
    return QCoreApplication::translate(context.toUtf8().constData(), sourceText.toUtf8().constData());
}

TranslatableText::Translate TutorialTranslation::lookup() const
{
    return [this](const QString &context, const QString &source) { return applyTranslation(context, source); };
}

QString TutorialTranslation::translate(const QString &key) const
{
    return applyTranslation(mTranslationContext, key);
}

QString TutorialTranslation::applyTranslationToText(const QString &text, QStringList &errors) const
{
    return TranslatableText::applyToScenario(text, mTranslationContext, lookup(), errors);
}

QString TutorialTranslation::applyTranslationToList(const QString &text, QStringList &errors) const
{
    return TranslatableText::applyToList(text, QStringLiteral("TutorialList"), lookup(), errors);
}

QString TutorialTranslation::parseStringExpression(const QString &text, const QString &context, QString &rest,
                                                   QStringList &errors) const
{
    return TranslatableText::parseStringExpression(text, context, lookup(), rest, errors);
}

void TutorialTranslation::setLocale(const QString &locale)
{
    if (locale == mLocale)
        return;
    Log::debug(kFolder, "TutorialTranslation::setLocale", __LINE__) << locale;
    SystemService::setDebugLocale(locale);
    mLocale = locale;
    updateLocale2(mLocale);
    installTranslator(locale);
    if (mAuthoring)
        loadTranslation();
    Q_EMIT localeChanged();
}

void TutorialTranslation::setLocale2(const QString &locale)
{
    if (locale == mLocale2)
        return;
    Log::debug(kFolder, "TutorialTranslation::setLocale2", __LINE__) << locale;
    mLocale2 = locale;
    Q_EMIT locale2Changed();
}

void TutorialTranslation::updateLocale2(const QString &locale)
{
    const QString japanese = QStringLiteral("ja_JP");
    setLocale2(locale == japanese ? QStringLiteral("en_US") : japanese);
}

void TutorialTranslation::installTranslator(const QString &locale)
{
    const QString folder = QStringLiteral(":/translations");
    auto *translator = new QTranslator(mTranslatorOwner);
    // One that leads out of the folder, as an absolute path does, would be followed.
    const bool loaded = DataSupport::isFileName(locale) && translator->load(locale, folder);
    Log::debug(kFolder, "TutorialTranslation::installTranslator", __LINE__)
        << QString(folder + QLatin1Char('/') + locale) << loaded;
    // The earlier translators go on answering for what this one lacks. One without a catalog would lack everything,
    // and one with the same catalog will not be asked any more.
    if (!loaded) {
        delete translator;
        return;
    }
    QCoreApplication::installTranslator(translator);
    const QString catalog = catalogOf(*translator, locale);
    delete mTranslators.value(catalog);
    mTranslators.insert(catalog, translator);
    if (mAuthoring) {
        // What the writer edits takes precedence over all of them.
        QCoreApplication::removeTranslator(&mDocumentTranslator);
        QCoreApplication::installTranslator(&mDocumentTranslator);
        giveWayToInterface();
    }
}

void TutorialTranslation::beginLoad(const QString &tutorialName)
{
    mTranslationContext = tutorialName;
    if (!mAuthoring)
        return;
    loadTranslation();
    mLoadedHints = { { mLocale, hintsOf(mTranslationDocument) }, { mLocale2, hintsOf(mTranslationDocument2) } };
    mLoadedStale = { { mLocale, staleKeysOf(mTranslationDocument) }, { mLocale2, staleKeysOf(mTranslationDocument2) } };
}

void TutorialTranslation::endLoad()
{
    mHintLocale = mLocale;
    if (!mAuthoring)
        return;
    HintMerge::readHints(mDocument, &TutorialItemData::mHint2, mLoadedHints.value(mLocale2));
    mStaleHints.begin(mDocument, mLoadedStale.value(mLocale2));
}

void TutorialTranslation::endLoad(const Hints &hints, const Hints &loaded, const StaleKeys &stale)
{
    mHintLocale = mLocale;
    for (auto language = loaded.cbegin(); language != loaded.cend(); ++language)
        mLoadedHints.insert(language.key(), language.value());
    HintMerge::readHints(mDocument, firstHint(), hints.value(mLocale, mLoadedHints.value(mLocale)));
    HintMerge::readHints(mDocument, secondHint(), hints.value(mLocale2, mLoadedHints.value(mLocale2)));
    mStaleHints.begin(mDocument, stale.value(mLocale2, mLoadedStale.value(mLocale2)));
}

void TutorialTranslation::keepItems()
{
    if (!mAuthoring || mHintLocale != mLocale2)
        return;
    for (TutorialItemData *record : qAsConst(mDocument.mDataList))
        std::swap(record->mHint, record->mHint2);
    mHintLocale = mLocale;
    mStaleHints.begin(mDocument, mLoadedStale.value(mLocale2));
}

QHash<QString, HintMerge::Hint> TutorialTranslation::hintsOfItems() const
{
    return { { mLocale, firstHint() }, { mLocale2, secondHint() } };
}

TutorialTranslation::Hints TutorialTranslation::storedHints(const QString &tutorialName, StaleKeys &stale) const
{
    Hints hints;
    for (const QString &locale : { mLocale, mLocale2 }) {
        const QString path = TranslationFile::path(locale, mAuthoring);
        QDomDocument document;
        if (!DataSupport::fileExists(path) || !TranslationFile::read(path, document))
            continue;
        hints.insert(locale, TranslationSource::readMessages(document).value(tutorialName));
        stale.insert(locale, TranslationSource::staleSources(document, tutorialName));
    }
    return hints;
}

void TutorialTranslation::scheduleFollowing()
{
    if (!mFollowDue)
        QMetaObject::invokeMethod(this, "followIfDue", Qt::QueuedConnection);
    mFollowDue = true;
}

void TutorialTranslation::followIfDue()
{
    if (mFollowDue)
        followDocument();
}

void TutorialTranslation::followDocument()
{
    mFollowDue = false;
    if (mAuthoring)
        mStaleHints.follow(mDocument);
}

QSet<int> TutorialTranslation::staleIds()
{
    followDocument();
    return mStaleHints.staleIds(mDocument);
}

bool TutorialTranslation::confirmTranslation(int id)
{
    const TutorialItemData *record = mDocument.getData(id);
    return mAuthoring && record && mStaleHints.confirm(*record);
}

void TutorialTranslation::setStale(const QHash<int, bool> &staleById)
{
    for (auto stale = staleById.cbegin(); mAuthoring && stale != staleById.cend(); ++stale) {
        if (const TutorialItemData *record = mDocument.getData(stale.key()))
            mStaleHints.setStale(*record, *stale);
    }
}

void TutorialTranslation::setMadeFrom(int id, const QString &hint)
{
    if (const TutorialItemData *record = mDocument.getData(id))
        mStaleHints.setMadeFrom(*record, hint);
}

QString TutorialTranslation::folder() const
{
    return QFileInfo(TranslationFile::path(mLocale, mAuthoring)).absolutePath();
}

HintMerge::Hint TutorialTranslation::firstHint() const
{
    // After a change of the language the items are still in the old one until they are loaded again.
    return mHintLocale == mLocale2 ? &TutorialItemData::mHint2 : &TutorialItemData::mHint;
}

HintMerge::Hint TutorialTranslation::secondHint() const
{
    return mHintLocale == mLocale2 ? &TutorialItemData::mHint : &TutorialItemData::mHint2;
}

bool TutorialTranslation::loadTranslation()
{
    // Both are read in any case: a document of the languages before must not be taken for this one's.
    const bool first = TranslationFile::read(TranslationFile::path(mLocale, mAuthoring), mTranslationDocument);
    const bool second = TranslationFile::read(TranslationFile::path(mLocale2, mAuthoring), mTranslationDocument2);
    updateDocumentTranslator();
    return first && second;
}

QStringList TutorialTranslation::unreadableSources() const
{
    QStringList paths;
    const auto inspect = [&](const QString &locale, QDomDocument document) {
        const QString path = TranslationFile::path(locale, mAuthoring);
        if (document.isNull() && !TranslationFile::refresh(path, locale, document))
            paths.append(path);
    };
    inspect(mLocale, mTranslationDocument);
    inspect(mLocale2, mTranslationDocument2);
    return paths;
}

bool TutorialTranslation::saveTranslation()
{
    return write(mLocale, mTranslationDocument) && write(mLocale2, mTranslationDocument2);
}

bool TutorialTranslation::write(const QString &locale, const QDomDocument &document)
{
    if (!TranslationFile::write(TranslationFile::path(locale, mAuthoring), document))
        return false;
    mLoadedHints.insert(locale, hintsOf(document));
    mLoadedStale.insert(locale, staleKeysOf(document));
    return true;
}

bool TutorialTranslation::feedbackTranslation()
{
    followDocument();
    const bool refreshed = refresh(mLocale, mTranslationDocument) && refresh(mLocale2, mTranslationDocument2);
    bool taken = false;
    if (refreshed) {
        const Feedback one = feedback(mLocale, mTranslationDocument, firstHint());
        const Feedback other = feedback(mLocale2, mTranslationDocument2, secondHint());
        const bool inOrder = staleLocale() == mLocale2;
        const bool marked = mAuthoring && (inOrder ? feedbackStale(one, other) : feedbackStale(other, one));
        taken = marked || !one.taken.isEmpty() || !other.taken.isEmpty();
    }
    updateDocumentTranslator();
    if (taken)
        Q_EMIT hintsTaken();
    return refreshed;
}

bool TutorialTranslation::refresh(const QString &locale, QDomDocument &document)
{
    const QString path = TranslationFile::path(locale, mAuthoring);
    if (TranslationFile::refresh(path, locale, document))
        return true;
    Log::warning(kFolder, "TutorialTranslation::feedbackTranslation", __LINE__) << "Failed to save" << path;
    return false;
}

TutorialTranslation::Feedback TutorialTranslation::feedback(const QString &locale, QDomDocument &document,
                                                            HintMerge::Hint hint)
{
    const TranslationSource::Messages onDisk = hintsOf(document);
    const HintMerge::Result result = HintMerge::merge(mDocument, hint, mLoadedHints.value(locale), onDisk);
    for (const TranslationSource::Entry &theirs : result.conflicts) {
        Log::warning(kFolder, "TutorialTranslation::feedbackTranslation", __LINE__)
            << "changed here and in the file" << locale << theirs.source << theirs.translation;
    }
    Feedback feedback{ onDisk, staleKeysOf(document), result.taken };
    TranslationSource::writeMessages(document, mTranslationContext, result.entries);
    return feedback;
}

bool TutorialTranslation::feedbackStale(const Feedback &first, const Feedback &second)
{
    bool taken = false;
    QHash<QString, bool> marks;
    const TranslationSource::Messages formerFirst = mLoadedHints.value(mHintLocale);
    const QSet<QString> formerStale = mLoadedStale.value(staleLocale());
    for (const TutorialItemData *record : qAsConst(mDocument.mDataList)) {
        const QString key = StaleHints::key(record->mId);
        const bool theirs = second.staleOnDisk.contains(key);
        // They did not know what was edited here, even if it is in the file by a save that was cut short.
        if (second.taken.contains(key))
            mStaleHints.setMadeFrom(*record, first.taken.contains(key) ? record->mHint : formerFirst.value(key, key));
        const bool own = mStaleHints.isStale(*record);
        // As with the texts: what only others have changed is taken over, and so is the mark on a text of theirs.
        const bool markTaken = second.taken.contains(key) ? theirs : formerStale.contains(key) == own;
        if (own != theirs && record->mHint2 == second.onDisk.value(key) && markTaken) {
            mStaleHints.setStale(*record, theirs);
            taken = true;
        }
        if (!StaleHints::isMissing(record->mId, record->mHint2))
            marks.insert(key, mStaleHints.isStale(*record));
    }
    QDomDocument &document = staleLocale() == mLocale2 ? mTranslationDocument2 : mTranslationDocument;
    TranslationSource::markStale(document, mTranslationContext, marks);
    return taken;
}

TranslationSource::Messages TutorialTranslation::hintsOf(const QDomDocument &document) const
{
    return TranslationSource::readMessages(document).value(mTranslationContext);
}

QSet<QString> TutorialTranslation::staleKeysOf(const QDomDocument &document) const
{
    return TranslationSource::staleSources(document, mTranslationContext);
}

void TutorialTranslation::updateDocumentTranslator()
{
    mDocumentTranslator.setMessages(TranslationSource::readMessages(mTranslationDocument));
    mDocumentTranslator.setOwnContext(mTranslationContext);
}
