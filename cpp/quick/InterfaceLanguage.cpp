#include "quick/InterfaceLanguage.h"

#include "SystemService/InterfaceTranslator.h"

#include <QSettings>

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

InterfaceLanguage::InterfaceLanguage() : mChosen(InterfaceTranslator::storedLanguage()) { }

QString InterfaceLanguage::choose(const QString &language)
{
    if (!InterfaceTranslator::languages().contains(language))
        return QString();
    if (!InterfaceTranslator::storeLanguage(language))
        return tr("The language could not be stored: %1 can't be written.").arg(QSettings().fileName());
    const bool wasChosen = mChosen == language;
    mChosen = language;
    Q_EMIT chosenChanged();
    if (wasChosen && language == shownLanguage())
        return QString();
    // Each catalog says it of its own language.
    return InterfaceTranslator::textIn(
        language, "InterfaceLanguage",
        QT_TRANSLATE_NOOP("InterfaceLanguage", "The screens are in English from the next start on."));
}
