#include "Translators.h"

#include "SystemService/SystemService.h"
#include "tool/Log.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace
{
void installToolkitTranslators(QApplication &application)
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    const QLocale locale(SystemService::getDefaultLocale());
    for (const char *catalog : { "qtbase", "qtdeclarative", "qtquickcontrols" }) {
        auto *translator = new QTranslator(&application);
        const QString name = QString::fromLatin1(catalog);
        const bool loaded = translator->load(locale, name, QStringLiteral("_"), folder);
        Log::debug("main", "installToolkitTranslators", __LINE__)
            << QString(folder + QLatin1Char('/') + name) << locale.name() << loaded;
        QCoreApplication::installTranslator(translator);
    }
}

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

void installTranslators(QApplication &application)
{
    // What is installed later is asked first.
    installToolkitTranslators(application);
    installStandardTranslator(application);
}
