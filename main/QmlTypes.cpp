#include "QmlTypes.h"

#include "quick/Gui.h"
#include "SystemService/SystemService.h"
#include "Tutorial/TutorialManager.h"

#include <QtQml>

namespace
{
constexpr char kModule[] = "Morvi.kess";

template <typename T>
void registerSingleton(const char *name)
{
    qmlRegisterSingletonType<T>(kModule, 1, 0, name, [](QQmlEngine *engine, QJSEngine *scriptEngine) -> QObject * {
        return T::create(engine, scriptEngine);
    });
}
} // namespace

void registerQmlTypes()
{
    registerSingleton<SystemService>("SystemService");
    registerSingleton<TutorialManager>("TutorialManager");
    registerSingleton<Gui>("Gui");
}
