#include "quick/Gui.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QLocale>
#include <QtQml>
#include <QtQuickTest>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <imm.h>
#endif

class Setup : public QObject
{
    Q_OBJECT

public:
    /// What Qt's input method gets to hear, asked in the way in which it asks; on Windows what the system knows.
    Q_INVOKABLE static bool acceptsInputMethod()
    {
#ifdef Q_OS_WIN
        const auto window = reinterpret_cast<HWND>(QGuiApplication::focusWindow()->winId());
        const HIMC context = ::ImmGetContext(window);
        ::ImmReleaseContext(window, context);
        return context != nullptr;
#else
        QInputMethodQueryEvent query(Qt::ImEnabled);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
        return query.value(Qt::ImEnabled).toBool();
#endif
    }

public Q_SLOTS:
    void applicationAvailable()
    {
        QLocale::setDefault(QLocale::c());
        qmlRegisterSingletonType<Gui>("Morvi.kess", 1, 0, "Gui", Gui::create);
    }

    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->rootContext()->setContextProperty(QStringLiteral("setup"), this);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(kit, Setup)

#include "tst_Kit.moc"
