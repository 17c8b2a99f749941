#include "MainWindowFixture.h"

#include "QmlTypes.h"
#include "Tutorial/ProcessGlobals.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml>

namespace
{
const QString kTutorialPath = QStringLiteral("tutorial-win/qml/Tutorial/");
const QString kTranslationPath = QStringLiteral("tutorial-win/translations/");
} // namespace

QString MainWindowFixture::linkSuffix()
{
    return QStringLiteral("-screens-%1").arg(QCoreApplication::applicationPid());
}

MainWindowFixture::MainWindowFixture()
{
    connect(&mServer, &QLocalServer::newConnection, this, [this] { mSocket = mServer.nextPendingConnection(); });
    connect(&mAlive, &QTimer::timeout, this, [this] {
        if (mSocket != nullptr)
            mSocket->write(QByteArray("0\x02"
                                      "alive\0",
                                      8));
    });
    mAlive.start(1000);
}

bool MainWindowFixture::load()
{
    const QString serverName = QStringLiteral("qelm") + linkSuffix();
    QLocalServer::removeServer(serverName);
    if (!mServer.listen(serverName))
        return false;
    QDir folder(mFolder.path());
    folder.mkpath(kTutorialPath);
    folder.mkpath(kTranslationPath);
    for (const QString &locale : { QStringLiteral("en_US"), QStringLiteral("ja_JP") }) {
        QFile file(folder.filePath(kTranslationPath + locale + QStringLiteral(".ts")));
        if (!file.open(QIODevice::WriteOnly))
            return false;
        file.write(QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n"
                                  "<TS version=\"2.1\" language=\"%1\"></TS>\n")
                       .arg(locale)
                       .toUtf8());
    }
    QDir::setCurrent(mFolder.path());

    registerQmlTypes();
    applicationObject = qobject_cast<QApplication *>(QCoreApplication::instance());
    mEngine.rootContext()->setContextProperty(QStringLiteral("recorder"), &mRecorder);
    mEngine.load(QUrl(QStringLiteral("qrc:/qml/main.qml")));
    mWindow = qobject_cast<QQuickWindow *>(mEngine.rootObjects().value(0));
    if (mWindow == nullptr)
        return false;
    mManager = evaluate(QStringLiteral("TutorialManager")).value<QObject *>();
    mWindow->setPosition(100, 100);
    mWindow->requestActivate();
    return mManager != nullptr && QTest::qWaitForWindowActive(mWindow);
}

QVariant MainWindowFixture::evaluate(const QString &script) const
{
    QQmlExpression expression(qmlContext(mWindow), mWindow, script);
    const QVariant result = expression.evaluate();
    if (expression.hasError())
        qWarning().noquote() << expression.error().toString();
    return result;
}

QString MainWindowFixture::tutorialFile() const
{
    return QDir(mFolder.path()).filePath(kTutorialPath + QStringLiteral("Sample.js"));
}

void MainWindowFixture::loadTutorial()
{
    QFile::remove(tutorialFile());
    QFile::copy(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep1.js"), tutorialFile());
    QFile::setPermissions(tutorialFile(), QFile::ReadOwner | QFile::WriteOwner);
    evaluate(QStringLiteral("TutorialManager.loadTutorial(\"%1\")").arg(tutorialFile()));
}

QQuickWindow *MainWindowFixture::visibleWindow(const QString &objectName) const
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (window->objectName() == objectName && window->isVisible())
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

void MainWindowFixture::click(QQuickWindow *window, const QString &nameOrText)
{
    QQuickItem *item = find(window->contentItem(), nameOrText);
    QVERIFY2(item != nullptr, qPrintable(nameOrText));
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseMove(window, centre.toPoint());
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
}

QWidget *MainWindowFixture::visibleDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QDialog *>(widget) != nullptr && widget->isVisible())
            return widget;
    }
    return nullptr;
}

QQuickWindow *MainWindowFixture::openMenu(Qt::Key mnemonic) const
{
    const QWindowList before = QGuiApplication::allWindows();
    QTest::keyClick(mWindow, mnemonic, Qt::AltModifier);
    QQuickWindow *menu = nullptr;
    const auto opened = [&] {
        for (QWindow *window : QGuiApplication::allWindows()) {
            if (!before.contains(window) && window->isVisible())
                menu = qobject_cast<QQuickWindow *>(window);
        }
        return menu != nullptr;
    };
    return QTest::qWaitFor(opened) ? menu : nullptr;
}
