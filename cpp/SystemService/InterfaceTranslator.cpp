#include "SystemService/InterfaceTranslator.h"

#include "SystemService/SystemService.h"
#include "SystemService/ToolkitTranslators.h"
#include "tool/Log.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>

namespace
{
constexpr char kFolder[] = "cpp/SystemService";
const QLatin1String kLanguageKey("interfaceLanguage");

InterfaceTranslator *interfaceTranslatorInstance = nullptr;
thread_local bool isSilent = false;

QString catalogOf(const QString &language)
{
    return language == InterfaceTranslator::standardLanguage()
        ? QStringLiteral(":/translations/") + SystemService::getDefaultLocale()
        : QStringLiteral(":/translations/interface/") + language;
}
} // namespace

QStringList InterfaceTranslator::languages()
{
    return { standardLanguage(), QStringLiteral("en") };
}

QString InterfaceTranslator::standardLanguage()
{
    return SystemService::getDefaultLocale().section(QLatin1Char('_'), 0, 0);
}

QString InterfaceTranslator::languageOf(const QString &name)
{
    for (const QString &language : languages()) {
        const QString locale = QLocale(language).name(); // as "en_US"
        if (name == language || name == locale)
            return language;
    }
    return QString();
}

QString InterfaceTranslator::storedLanguage()
{
    const QString language = languageOf(QSettings().value(kLanguageKey).toString());
    return language.isEmpty() ? standardLanguage() : language;
}

bool InterfaceTranslator::storeLanguage(const QString &language)
{
    if (!languages().contains(language))
        return false;
    QSettings settings;
    settings.setValue(kLanguageKey, language);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

QString InterfaceTranslator::textIn(const QString &language, const char *context, const char *sourceText)
{
    QTranslator translator;
    const QString text = translator.load(catalogOf(language)) ? translator.translate(context, sourceText) : QString();
    return text.isEmpty() ? QString::fromUtf8(sourceText) : text;
}

InterfaceTranslator::InterfaceTranslator(ToolkitTranslators *toolkit, QObject *parent)
    : QTranslator(parent)
    , mToolkit(toolkit)
    , mLanguage(standardLanguage())
{
    interfaceTranslatorInstance = this;
    QCoreApplication::installTranslator(this);
}

InterfaceTranslator::~InterfaceTranslator()
{
    if (interfaceTranslatorInstance == this)
        interfaceTranslatorInstance = nullptr;
}

InterfaceTranslator *InterfaceTranslator::instance()
{
    return interfaceTranslatorInstance;
}

void InterfaceTranslator::setLanguage(const QString &language)
{
    if (language == mLanguage || !languages().contains(language))
        return;
    mLanguage = language;
    // The standard language is in the catalog of its locale, which is installed in any case.
    const bool loaded = load(language == standardLanguage() ? QString() : catalogOf(language));
    Log::debug(kFolder, "InterfaceTranslator::setLanguage", __LINE__) << language << loaded;
    mToolkit->setLanguage(language);
}

void InterfaceTranslator::comeFirst()
{
    QCoreApplication::removeTranslator(this);
    QCoreApplication::installTranslator(this);
}

QString InterfaceTranslator::translate(const char *context, const char *sourceText, const char *disambiguation,
                                       int n) const
{
    return isSilent ? QString() : QTranslator::translate(context, sourceText, disambiguation, n);
}

InterfaceTranslator::Silence::Silence() : mFormer(isSilent)
{
    isSilent = true;
}

InterfaceTranslator::Silence::~Silence()
{
    isSilent = mFormer;
}
