#include "SettingScreenTest.h"

#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TutorialManager.h"

#include <QFileInfo>
#include <QtTest>

void SettingScreenTest::load()
{
    mFixture = std::make_unique<MainWindowFixture>();
    QVERIFY(mFixture->load());
    mWindow = mFixture->window();
}

void SettingScreenTest::loadScenario(const QByteArray &items)
{
    MainWindowFixture::writeFile(scenarioPath(), "var scenario = [" + items + "];");
    QCOMPARE(managerInstance->loadTutorial(QFileInfo(scenarioPath()).absoluteFilePath()), QString());
    QMetaObject::invokeMethod(mWindow, "reloadTutorial");
    QVERIFY(mFixture->activate());
    // The screen goes to the first item by itself.
    QTRY_VERIFY(currentId() >= 0);
    settle();
}

QByteArray SettingScreenTest::itemText(int id, const QString &name, const QString &condition)
{
    return QStringLiteral("{\"id\":%1,\"name\":\"%2\",\"folder\":false,\"x\":10,\"y\":20,\"windowKey\":\"MainWindow\","
                          "\"condition\":\"%3\",\"hint\":qsTr(\"#%1\"),\"icon\":\"eye\",\"jump\":-1,\"jumpNo\":-1,"
                          "\"command\":\"\",\"showArrow\":true,\"prohibited\":false}")
        .arg(QString::number(id), name, condition)
        .toUtf8();
}

QString SettingScreenTest::scenarioPath()
{
    return QStringLiteral("tutorial-win/qml/Tutorial/TutorialSideViewStep0.js");
}

void SettingScreenTest::settle()
{
    QTRY_VERIFY([this] {
        for (const QObject *each : tree()->findChildren<QObject *>()) {
            if (each->inherits("QQmlTimer") && each->property("running").toBool())
                return false;
        }
        return true;
    }());
}

void SettingScreenTest::select(int id)
{
    tree()->setProperty("focusId", id);
    QMetaObject::invokeMethod(tree(), "focusOn");
    QTRY_COMPARE(currentId(), id);
    settle();
}

void SettingScreenTest::click(QQuickItem *target)
{
    // On a small screen the form has to be scrolled.
    for (QQuickItem *each = target; each; each = each->parentItem()) {
        if (each->metaObject()->indexOfMethod("scrollTo(QVariant)") >= 0 && each->property("focusItem").isValid())
            QMetaObject::invokeMethod(each, "scrollTo", Q_ARG(QVariant, QVariant::fromValue(target)));
    }
    MainWindowFixture::click(target);
}

void SettingScreenTest::press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(mWindow, Qt::Key(key), modifiers);
}

void SettingScreenTest::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(mWindow, character.toLatin1());
}

void SettingScreenTest::typeInto(const char *name, const QString &text)
{
    click(find(name));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
}
