#pragma once

#include "Tutorial/translation/DocumentTranslator.h"
#include "Tutorial/translation/HintMerge.h"
#include "Tutorial/translation/StaleHints.h"
#include "Tutorial/translation/TranslatableText.h"

#include <QDomDocument>
#include <QHash>
#include <QObject>
#include <QStringList>

class QTranslator;

/// The two languages of a tutorial: the installed translators, from which every lookup is answered, and in the
/// authoring mode the translation sources of both languages, which hold the hints that the writer edits.
class TutorialTranslation : public QObject
{
    Q_OBJECT

public:
    /// By locale.
    using Hints = QHash<QString, TranslationSource::Messages>;
    using StaleKeys = QHash<QString, QSet<QString>>;

    /// The translators that are installed become children of `translatorOwner`, which may be null. The document must
    /// outlive this object.
    TutorialTranslation(bool authoring, QObject *translatorOwner, HintMerge::Document &document);

    /// The text in the installed translators; the text itself when none knows it.
    QString applyTranslation(const QString &context, const QString &sourceText) const;
    /// The same under the context of the tutorial.
    QString translate(const QString &key) const;
    /// A scenario with its translation calls replaced, under the context of the tutorial.
    QString applyTranslationToText(const QString &text, QStringList &errors) const;
    /// The list of tutorials with its translation calls replaced.
    QString applyTranslationToList(const QString &text, QStringList &errors) const;
    QString parseStringExpression(const QString &text, const QString &context, QString &rest,
                                  QStringList &errors) const;

    QString locale() const { return mLocale; }
    QString locale2() const { return mLocale2; }
    /// Stores the locale, derives the second one from it and installs its catalog.
    void setLocale(const QString &locale);
    void setLocale2(const QString &locale);
    /// Installs the catalog of a locale, which is asked before all that were installed earlier.
    void installTranslator(const QString &locale);

    /// To be called before a tutorial of that name is read into the document: sets the context, and in the authoring
    /// mode reads the sources that its hints come from.
    void beginLoad(const QString &tutorialName);
    /// To be called when it was read: gives the items their second hints, in the authoring mode.
    void endLoad();
    /// To be called instead for items that were taken up as they were before: gives them these hints, where they are of
    /// a language of now. `loaded` is what the files had said when they were read or saved, and `stale` are the keys of
    /// the stale translations.
    void endLoad(const Hints &hints, const Hints &loaded, const StaleKeys &stale);
    /// To be called instead where no item was read and those before stay: their hints change places if the language has
    /// changed since.
    void keepItems();
    /// Which hints of the items are those of a language, by locale.
    QHash<QString, HintMerge::Hint> hintsOfItems() const;
    /// Learns what translations were made from, which has to be done after each change of the document.
    void followDocument();
    /// The same, once for all changes of a turn of the event loop.
    void scheduleFollowing();
    /// What was scheduled and not done yet.
    Q_INVOKABLE void followIfDue();
    /// The items whose second hint was made from another first hint than that of now.
    QSet<int> staleIds();
    /// What is known of the second hints, up to the last following, and the language that they are of.
    const StaleHints &staleHints() const { return mStaleHints; }
    QString staleLocale() const { return mHintLocale == mLocale2 ? mLocale : mLocale2; }
    /// The second hint of the item suits the first one of now. False if it did so before.
    bool confirmTranslation(int id);
    /// The second hints of items suit the first ones of now, or none.
    void setStale(const QHash<int, bool> &staleById);
    /// The second hint of the item was made from that first one.
    void setMadeFrom(int id, const QString &hint);
    /// What the files had said of this tutorial when they were read or saved.
    const Hints &loadedHints() const { return mLoadedHints; }
    /// What they say now of the tutorial of that name, and the keys that they mark as stale.
    Hints storedHints(const QString &tutorialName, StaleKeys &stale) const;
    /// The folder of the files, as an absolute path.
    QString folder() const;

    /// Reads the translation sources of both locales; false with a warning when one can't be read.
    bool loadTranslation();
    /// The sources that can't be read, so that a save would be refused.
    QStringList unreadableSources() const;
    /// Writes both.
    bool saveTranslation();
    /// Reads both again and hands the hints of all items to them. An item that was not edited takes over what others
    /// have written for it since the load. False with a warning when a file can't be read.
    bool feedbackTranslation();

Q_SIGNALS:
    void localeChanged();
    void locale2Changed();
    /// Items have taken over what others have written.
    void hintsTaken();

private:
    Q_DISABLE_COPY(TutorialTranslation)

    TranslatableText::Translate lookup() const;
    void updateLocale2(const QString &locale);
    void updateDocumentTranslator();
    /// Which hints of the items are those of the first language, and of the second one.
    HintMerge::Hint firstHint() const;
    HintMerge::Hint secondHint() const;
    TranslationSource::Messages hintsOf(const QDomDocument &document) const;
    QSet<QString> staleKeysOf(const QDomDocument &document) const;
    bool refresh(const QString &locale, QDomDocument &document);
    /// What the file of a language says before the hints of all items are handed to it, and which of them took that
    /// over.
    struct Feedback
    {
        TranslationSource::Messages onDisk;
        QSet<QString> staleOnDisk;
        QSet<QString> taken;
    };
    Feedback feedback(const QString &locale, QDomDocument &document, HintMerge::Hint hint);
    bool feedbackStale(const Feedback &first, const Feedback &second);
    bool write(const QString &locale, const QDomDocument &document);

    const bool mAuthoring;
    QObject *const mTranslatorOwner;
    QHash<QString, QTranslator *> mTranslators; // by catalog; children of the owner
    HintMerge::Document &mDocument;
    QString mTranslationContext; // the name of the last tutorial that was begun to be read
    QString mLocale;
    QString mLocale2;
    QString mHintLocale; // the language of the loaded items' first hints
    Hints mLoadedHints; // as the last load or save left them
    StaleKeys mLoadedStale; // likewise
    StaleHints mStaleHints;
    bool mFollowDue = false;
    QDomDocument mTranslationDocument;
    QDomDocument mTranslationDocument2;
    DocumentTranslator mDocumentTranslator; // answers in the authoring mode only
};
