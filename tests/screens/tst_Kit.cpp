#include "quick/Gui.h"

#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QtQml>
#include <QtQuickTest>

class Setup : public QObject
{
    Q_OBJECT

public:
    /// What Qt's input method gets to hear, asked in the way in which it asks.
    Q_INVOKABLE static bool acceptsInputMethod()
    {
        QInputMethodQueryEvent query(Qt::ImEnabled);
        QCoreApplication::sendEvent(QGuiApplication::focusObject(), &query);
        return query.value(Qt::ImEnabled).toBool();
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
