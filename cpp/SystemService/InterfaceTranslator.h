#pragma once

#include <QStringList>
#include <QTranslator>

class ToolkitTranslators;

/// The language of the program's own texts: Japanese, the standard one, or English. The toolkit's catalogs go
/// with it. Texts that learners see are in neither: tutorials, their list and the guidance are in the language that the
/// host editor names.
///
/// Other translators come and go as the host editor and the writer ask for them. This one answers before all of them.
class InterfaceTranslator : public QTranslator
{
    Q_OBJECT

public:
    /// "ja" and "en".
    static QStringList languages();
    static QString standardLanguage();
    /// One of languages() by the name that a user may give it, as a locale too; empty for any other.
    static QString languageOf(const QString &name);
    /// The language that the user has chosen for all starts. Any other name is not stored.
    static QString storedLanguage();
    /// Whether it is in the settings' file now.
    static bool storeLanguage(const QString &language);
    /// A text of the program in one of languages(), whatever the others are in.
    static QString textIn(const QString &language, const char *context, const char *sourceText);

    /// Installs this translator for good, in the standard language.
    /// \param toolkit is in that language, and outlives this
    InterfaceTranslator(ToolkitTranslators *toolkit, QObject *parent);
    ~InterfaceTranslator() override;
    /// Null while there is none, and all texts are left to others.
    static InterfaceTranslator *instance();

    QString language() const { return mLanguage; }
    /// One of languages(). Texts are in it from the next look-up on, what a screen shows is not looked up again.
    void setLanguage(const QString &language);
    /// To be called after another translator was installed.
    void comeFirst();

    /// Null for a text that is left to the other translators.
    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;

    /// While it lives, texts are looked up as if the language was the standard one: those of a tutorial are no texts
    /// of the program, whatever their context is called.
    class Silence
    {
    public:
        Silence();
        ~Silence();

    private:
        Q_DISABLE_COPY(Silence)
        const bool mFormer;
    };

private:
    Q_DISABLE_COPY(InterfaceTranslator)

    ToolkitTranslators *const mToolkit;
    QString mLanguage;
};
