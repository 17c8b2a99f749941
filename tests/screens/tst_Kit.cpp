#include <QLocale>
#include <QObject>
#include <QQuickWindow>
#include <QtQml>
#include <QtQuickTest>

/// Stands in for the input methods of windows, and counts the open requests.
class FakeGui : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int openRequests MEMBER mOpenRequests NOTIFY openRequestsChanged)

public:
    Q_INVOKABLE void setIme(const QVariant &window, bool enabled)
    {
        QVERIFY(qobject_cast<QWindow *>(window.value<QObject *>()) != nullptr);
        mOpenRequests += enabled ? -1 : 1;
        Q_EMIT openRequestsChanged();
    }

Q_SIGNALS:
    void openRequestsChanged();

private:
    int mOpenRequests = 0;
};

class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable()
    {
        QLocale::setDefault(QLocale::c());
        qmlRegisterSingletonType<FakeGui>("Morvi.kess", 1, 0, "Gui",
                                          [](QQmlEngine *, QJSEngine *) -> QObject * { return new FakeGui; });
    }
};

QUICK_TEST_MAIN_WITH_SETUP(kit, Setup)

#include "tst_Kit.moc"
