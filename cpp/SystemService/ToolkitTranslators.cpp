#include "SystemService/ToolkitTranslators.h"

#include "tool/Log.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace
{
constexpr const char *kCatalogs[] = { "qtbase", "qtdeclarative", "qtquickcontrols" };
constexpr int kCatalogCount = sizeof(kCatalogs) / sizeof(*kCatalogs);
} // namespace

ToolkitTranslators::ToolkitTranslators(const QString &language, QObject *parent) : QObject(parent)
{
    for (int i = 0; i < kCatalogCount; ++i) {
        mTranslators.append(new QTranslator(this));
        QCoreApplication::installTranslator(mTranslators.last());
    }
    setLanguage(language);
}

void ToolkitTranslators::setLanguage(const QString &language)
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    for (int i = 0; i < kCatalogCount; ++i) {
        const QString name = QString::fromLatin1(kCatalogs[i]);
        const bool loaded = mTranslators.at(i)->load(QLocale(language), name, QStringLiteral("_"), folder);
        Log::debug("cpp/SystemService", "ToolkitTranslators::setLanguage", __LINE__)
            << QString(folder + QLatin1Char('/') + name) << language << loaded;
    }
}
