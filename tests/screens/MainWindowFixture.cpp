#include "MainWindowFixture.h"

#include "QmlTypes.h"
#include "quick/ModalGuard.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TranslationSource.h"

#include <QApplication>
#include <QPushButton>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml>
#include <QtTest>

std::unique_ptr<QApplication> MainWindowFixture::makeApplication(char *program)
{
    static const QTemporaryDir home;
    static QByteArray suffix = QByteArrayLiteral("-screens-") + QByteArray::number(qHash(home.path()));
    static int count = 2;
    static char *arguments[] = { program, suffix.data(), nullptr };
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    auto application = std::make_unique<QApplication>(count, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Trelvane"));
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QLocale::setDefault(QLocale::c());
    new ModalGuard(application.get());
    applicationObject = application.get();
    registerQmlTypes();
    return application;
}

bool MainWindowFixture::load()
{
    if (!mHost.listen(QCoreApplication::arguments().value(1)).isEmpty())
        return false;
    QDir folder(mFolder.path());
    folder.mkpath(QStringLiteral("tutorial-win/qml/Tutorial"));
    folder.mkpath(QStringLiteral("tutorial-win/translations"));
    QDir::setCurrent(mFolder.path());
    for (const QString &locale : { QStringLiteral("en_US"), QStringLiteral("ja_JP") }) {
        writeFile(QStringLiteral("tutorial-win/translations/%1.ts").arg(locale),
                  TranslationSource::emptyDocument(locale).toByteArray());
    }
    mEngine.rootContext()->setContextProperty(QStringLiteral("answers"), QVariant::fromValue(mEngine.newArray()));
    mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
    return mWindow != nullptr && activate();
}

bool MainWindowFixture::activate() const
{
    mWindow->requestActivate();
    return QTest::qWaitForWindowActive(mWindow)
        && QTest::qWaitFor([this] { return QGuiApplication::focusWindow() == mWindow; });
}

QVariant MainWindowFixture::evaluate(const QString &script) const
{
    QQmlExpression expression(qmlContext(mWindow), mWindow, script);
    const QVariant result = expression.evaluate();
    if (expression.hasError())
        qWarning().noquote() << expression.error().toString();
    return result;
}

void MainWindowFixture::writeFile(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(contents);
}

QQuickWindow *MainWindowFixture::visibleWindow(const char *objectName)
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (window->objectName() == QLatin1String(objectName) && window->isVisible())
            return qobject_cast<QQuickWindow *>(window);
    }
    return nullptr;
}

QQuickItem *MainWindowFixture::find(QQuickItem *item, const QString &nameOrText)
{
    if (!item->isVisible())
        return nullptr;
    if (item->objectName() == nameOrText || item->property("text").toString() == nameOrText)
        return item;
    for (QQuickItem *child : item->childItems()) {
        if (QQuickItem *found = find(child, nameOrText))
            return found;
    }
    return nullptr;
}

void MainWindowFixture::click(QQuickItem *item, bool twice)
{
    QVERIFY(item != nullptr);
    const QPoint centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    QTest::mouseMove(item->window(), centre);
    QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, centre);
    if (twice)
        QTest::mouseDClick(item->window(), Qt::LeftButton, Qt::NoModifier, centre);
}

QWidget *MainWindowFixture::dialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QDialog *>(widget) != nullptr && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QString MainWindowFixture::answer(QMessageBox::StandardButton button)
{
    // A box that goes before the window manager has given it the focus leaves the focus nowhere.
    if (!QTest::qWaitFor([] { return messageBox() != nullptr; }) || !QTest::qWaitForWindowActive(messageBox()))
        return QStringLiteral("no message box");
    const QString text = messageBox()->text();
    if (QAbstractButton *shown = messageBox()->button(button))
        QTest::mouseClick(shown, Qt::LeftButton);
    return QTest::qWaitFor([] { return messageBox() == nullptr; }) ? text : QStringLiteral("still open");
}
