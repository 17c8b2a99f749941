#include "QmlTypes.h"

#include "quick/DocumentFollower.h"
#include "quick/Gui.h"
#include "quick/HintTableModel.h"
#include "quick/InterfaceLanguage.h"
#include "quick/TreeListItemSelectionModel.h"
#include "quick/TutorialEventListModel.h"
#include "quick/TutorialItemListModel.h"
#include "quick/TutorialProblems.h"
#include "quick/TutorialRaisedHandListModel.h"
#include "SystemService/SystemService.h"
#include "Tutorial/TutorialManager.h"
#include "UndoRedo/UndoRedo.h"

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
    registerSingleton<UndoRedo>("UndoRedo");
    registerSingleton<Gui>("Gui");
    registerSingleton<InterfaceLanguage>("InterfaceLanguage");
    qmlRegisterType<TutorialItemListModel>(kModule, 1, 0, "TutorialItemListModel");
    qmlRegisterType<HintTableModel>(kModule, 1, 0, "HintTableModel");
    qmlRegisterType<TutorialProblems>(kModule, 1, 0, "TutorialProblems");
    qmlRegisterType<DocumentFollower>(kModule, 1, 0, "DocumentFollower");
    qmlRegisterType<TreeListItemSelectionModel>(kModule, 1, 0, "TreeListItemSelectionModel");
    qmlRegisterType<TutorialEventListModel>(kModule, 1, 0, "TutorialEventListModel");
    qmlRegisterType<TutorialRaisedHandListModel>(kModule, 1, 0, "TutorialRaisedHandListModel");
}
