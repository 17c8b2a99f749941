#include "quick/Gui.h"

#include "quick/ModalGuard.h"
#include "quick/WindowPlace.h"
#include "tool/Log.h"
#include "Tutorial/guidance/HintText.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSignalBlocker>

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

void Gui::finishComposition()
{
    mComposition.finish();
}

void Gui::bringIntoSight(QWindow *window)
{
    QVector<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens.append(screen->availableGeometry());
    const QRect place = WindowPlace::inSight(window->geometry(), screens);
    if (place != window->geometry())
        window->setGeometry(place);
}

void Gui::present(QWindow *window)
{
    if (window->isVisible()) {
        // Showing it would also end that it is maximized.
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    } else {
        bringIntoSight(window);
        window->show();
    }
    window->raise();
    window->requestActivate();
}

bool Gui::isBlocked(QWindow *window)
{
    return ModalGuard::isBlocked(window);
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
