#include "quick/InterfaceLanguage.h"

#include "SystemService/InterfaceTranslator.h"

namespace
{
QString shownLanguage()
{
    const auto *translator = InterfaceTranslator::instance();
    return translator ? translator->language() : InterfaceTranslator::standardLanguage();
}
} // namespace

QObject *InterfaceLanguage::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    Q_UNUSED(engine)
    Q_UNUSED(scriptEngine)
    return new InterfaceLanguage;
}

InterfaceLanguage::InterfaceLanguage() : mChosen(shownLanguage()) { }

QString InterfaceLanguage::choose(const QString &language)
{
    if (!InterfaceTranslator::languages().contains(language))
        return QString();
    // Also where it is the one of now: the command line may have chosen that for once.
    InterfaceTranslator::storeLanguage(language);
    mChosen = language;
    Q_EMIT chosenChanged();
    if (language == shownLanguage())
        return QString();
    // Each catalog says it of its own language.
    return InterfaceTranslator::textIn(
        language, "InterfaceLanguage",
        QT_TRANSLATE_NOOP("InterfaceLanguage", "The screens are in English from the next start on."));
}
