#include "AboutOptions.h"
#include "LanguageOption.h"
#include "ProcessLog.h"
#include "QmlTypes.h"
#include "Translators.h"
#include "WebEngine.h"

#include "quick/ItemAccessible.h"
#include "quick/ModalGuard.h"
#include "SystemService/InterfaceTranslator.h"
#include "tool/Log.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QApplication>
#include <QLocale>
#include <QQmlApplicationEngine>

#include <cstdio>
#include <memory>

namespace
{
// Qt::AA_X11InitThreads by its number: Qt 5.15 warns of the name, and older releases need the value.
constexpr auto kX11InitThreads = static_cast<Qt::ApplicationAttribute>(10);
constexpr int kBadArguments = 2;

QString interfaceLanguage(const LanguageOption &option)
{
    // The guidance has no texts but those in the host editor's language.
    if (!TutorialManager::isMakingSupported())
        return QString();
    return option.language.isEmpty() ? InterfaceTranslator::storedLanguage() : option.language;
}
} // namespace

int main(int argc, char *argv[])
{
    // For the guidance the first argument is the link's suffix, whatever it looks like.
    if (TutorialManager::isMakingSupported() && answersAboutOption(argc, argv))
        return 0;
    const LanguageOption languageOption =
        TutorialManager::isMakingSupported() ? takeLanguageOption(argc, argv) : LanguageOption();
    if (!languageOption.error.isEmpty()) {
        std::fprintf(stderr, "trelvane-author: %s\n", qPrintable(languageOption.error));
        return kBadArguments;
    }
    // Attributes of a translation source are saved in the order of a hash: one order for all saves.
    if (TutorialManager::isMakingSupported())
        qSetGlobalQHashSeed(0);
    // The authoring mode has no page.
    WebEngine::prepare(!TutorialManager::isMakingSupported());
    QCoreApplication::setAttribute(kX11InitThreads, true);
    QApplication application(argc, argv);
    // Modal windows, and the menus that they keep the keys from, are the authoring mode's alone, and a filter sees
    // every event.
    const auto modalGuard = TutorialManager::isMakingSupported() ? std::make_unique<ModalGuard>() : nullptr;
    WebEngine::initialize();
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setApplicationVersion(QLatin1String(kVersion));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("harnwick.example"));
    setupMessageHandler();
    closeLogFileHook = closeLogFile;
    installTranslators(application, interfaceLanguage(languageOption));
    applicationObject = &application;
    registerQmlTypes();
    // Numbers are formatted alike whatever the language of the texts is.
    QLocale::setDefault(QLocale::c());

    int result = 0;
    {
        QQmlApplicationEngine engine;
        if (TutorialManager::isMakingSupported())
            ItemAccessible::install(engine);
        engine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
        const QList<QObject *> rootObjects = engine.rootObjects();
        Log::debug("main", "main", __LINE__) << rootObjects;
        rootObject = rootObjects.value(0);
        result = QApplication::exec();
    }
    applicationObject = nullptr;
    return result;
}
