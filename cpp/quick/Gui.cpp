#include "quick/Gui.h"

#include "tool/Log.h"
#include "Tutorial/guidance/HintText.h"

#include <QSignalBlocker>
#include <QWindow>

QObject *Gui::create(QQmlEngine *engine, QJSEngine *scriptEngine)
{
    return new Gui(engine, scriptEngine);
}

Gui::Gui(QQmlEngine *engine, QJSEngine *scriptEngine) : mEngine(engine), mScriptEngine(scriptEngine) { }

Gui::~Gui()
{
    Log::debug("cpp/quick", "Gui::~Gui", __LINE__);
}

void Gui::setIme(const QVariant &window, bool enabled)
{
    auto *target = window.value<QWindow *>();
    if (!target) {
        Log::warning("cpp/quick", "Gui::setIme", __LINE__) << "no window" << window;
        return;
    }
    mInputMethod.setEnabled(target, enabled);
}

QString Gui::withoutLoading(const QString &richText)
{
    return HintText::withoutLoading(richText);
}

void Gui::quietly(QObject *object, const QJSValue &function)
{
    const QSignalBlocker blocker(object);
    const QJSValue result = QJSValue(function).call();
    if (result.isError())
        Log::warning("cpp/quick", "Gui::quietly", __LINE__) << result.toString();
}
