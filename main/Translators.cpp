#include "Translators.h"

#include "SystemService/InterfaceTranslator.h"
#include "SystemService/SystemService.h"
#include "SystemService/ToolkitTranslators.h"
#include "tool/Log.h"

#include <QApplication>
#include <QTranslator>

namespace
{
void installStandardTranslator(QApplication &application)
{
    const QString folder = QStringLiteral(":/translations");
    const QString locale = SystemService::getDefaultLocale();
    auto *translator = new QTranslator(&application);
    const bool loaded = translator->load(locale, folder, QString(), QString());
    Log::debug("main", "main", __LINE__) << QString(folder + QLatin1Char('/') + locale) << loaded;
    QCoreApplication::installTranslator(translator);
}
} // namespace

void installTranslators(QApplication &application, const QString &language)
{
    // What is installed later is asked first.
    auto *toolkit = new ToolkitTranslators(InterfaceTranslator::standardLanguage(), &application);
    installStandardTranslator(application);
    if (!language.isEmpty())
        (new InterfaceTranslator(toolkit, &application))->setLanguage(language);
}
