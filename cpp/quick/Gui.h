#pragma once

#include "SystemService/Composition.h"
#include "SystemService/InputMethod.h"

#include <QJSEngine>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QVariant>
#include <QWindow>

/// The QML singleton for what a screen asks of its window.
class Gui : public QQuickItem
{
    Q_OBJECT

public:
    /// The provider of the singleton. The caller owns the object.
    static QObject *create(QQmlEngine *engine, QJSEngine *scriptEngine);
    ~Gui() override;

    /// Asks for the window's input method to be off (enabled false), or takes such a request back.
    /// A variant that holds no window is a warning in the log.
    Q_INVOKABLE void setIme(const QVariant &window, bool enabled);
    /// What an input method is composing becomes text of the field that has the focus.
    Q_INVOKABLE void finishComposition();
    /// Moves a window that is remembered where no screen is any more, or larger than the screens, to where it can be
    /// seen and moved. To be called before the window is shown.
    Q_INVOKABLE static void bringIntoSight(QWindow *window);
    /// Shows the window where it can be seen, above the others and with the keys.
    Q_INVOKABLE static void present(QWindow *window);
    /// Whether a modal window keeps the user from that one.
    Q_INVOKABLE static bool isBlocked(QWindow *window);
    /// The rich text as it may be shown: where it would load files or pages, its plain text stands for it.
    Q_INVOKABLE static QString withoutLoading(const QString &richText);
    /// Calls the function while the object emits nothing. Who calls tells of what has changed.
    Q_INVOKABLE void quietly(QObject *object, const QJSValue &function);

private:
    Gui(QQmlEngine *engine, QJSEngine *scriptEngine);

    QPointer<QQmlEngine> mEngine;
    QPointer<QJSEngine> mScriptEngine;
    InputMethod mInputMethod;
    Composition mComposition;
};
