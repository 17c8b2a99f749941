#include "SystemService/SystemService.h"

#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#include <memory>

class tst_SystemService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void settings();
    void readFiles();
    void dirEmpty();
    void documents();
    void urls();
    void callFromQml();

private:
    QTemporaryDir mDir;
};

void tst_SystemService::initTestCase()
{
    QVERIFY(mDir.isValid());
    QStandardPaths::setTestModeEnabled(true);
    qputenv("HOME", mDir.path().toLocal8Bit());
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, mDir.path());
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_SystemService"));
}

void tst_SystemService::init()
{
    QSettings().clear();
}

void tst_SystemService::settings()
{
    QCOMPARE(SystemService::getDebugLocale(), QStringLiteral("ja_JP"));
    QCOMPARE(SystemService::getPlayerPathname(), QString());
    QCOMPARE(SystemService::getRuntimePathname(), QString());
    QCOMPARE(SystemService::getDevelopPortInfo().toMap(),
             (QVariantMap{ { QStringLiteral("portFixed"), false }, { QStringLiteral("port"), 1234 } }));

    SystemService::setDebugLocale(QStringLiteral("Raw"));
    SystemService::setPlayerPathname(QStringLiteral("/player"));
    SystemService::setRuntimePathname(QStringLiteral("/runtime"));
    SystemService::setDevelopPortInfo(true, 8080);
    QCOMPARE(SystemService::getDebugLocale(), QStringLiteral("Raw"));
    QCOMPARE(SystemService::getPlayerPathname(), QStringLiteral("/player"));
    QCOMPARE(SystemService::getRuntimePathname(), QStringLiteral("/runtime"));
    QCOMPARE(SystemService::getDevelopPortInfo().toMap(),
             (QVariantMap{ { QStringLiteral("portFixed"), true }, { QStringLiteral("port"), 8080 } }));

    // The keys are what other versions of the program find.
    QStringList keys = QSettings().allKeys();
    keys.sort();
    QCOMPARE(
        keys,
        (QStringList{ QStringLiteral("debugLocale"), QStringLiteral("developPort"), QStringLiteral("developPortFixed"),
                      QStringLiteral("playerPathname"), QStringLiteral("runtimePathname") }));
}

void tst_SystemService::readFiles()
{
    const QString path = mDir.filePath(QStringLiteral("text.tar.txt"));
    const QByteArray bytes("\xe3\x81\x82\r\n\0z", 7);
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
    file.close();
    QCOMPARE(SystemService::loadFile(path), QStringLiteral("\u3042\r\n\0z"));
    QCOMPARE(SystemService::getBase64FromFile(path), QStringLiteral("44GCDQoAeg=="));
    QCOMPARE(SystemService::getFilenameBase(path), QStringLiteral("text"));

    const QString missing = mDir.filePath(QStringLiteral("missing"));
    const QRegularExpression warning(QStringLiteral("failed to read.*missing"));
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(SystemService::loadFile(missing), QString());
    QTest::ignoreMessage(QtWarningMsg, warning);
    QCOMPARE(SystemService::getBase64FromFile(missing), QString());
}

void tst_SystemService::dirEmpty()
{
    const QString folder = mDir.filePath(QStringLiteral("folder"));
    QVERIFY(SystemService::dirEmpty(folder));
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(SystemService::dirEmpty(folder));
    QFile file(folder + QStringLiteral("/file"));
    QVERIFY(file.open(QFile::WriteOnly));
    QVERIFY(!SystemService::dirEmpty(folder));
}

void tst_SystemService::documents()
{
    const QString documents = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
    if (!documents.startsWith(mDir.path()))
        QSKIP("the documents folder is the user's own here");
    const QString output = documents + QStringLiteral("/Output");
    QCOMPARE(SystemService::getDefaultOutputPath(), output);
    QVERIFY(!SystemService::fileExists(output)); // only that one folder is made
    QVERIFY(QDir().mkdir(documents));
    QCOMPARE(SystemService::getDefaultOutputPath(), output);
    QVERIFY(SystemService::isDir(output));
    QCOMPARE(SystemService::getDefaultMaterialPath(), mDir.path());
}

void tst_SystemService::urls()
{
    const QString file = QStringLiteral("/a b/\u3042#1.js");
    const QString url = SystemService::getUrlFromLocalFile(file);
    QVERIFY(url.startsWith(QStringLiteral("file:///a b/")));
    QCOMPARE(SystemService::getLocalFileFromUrl(url), file);
    QCOMPARE(SystemService::getLocalFileFromUrl(QStringLiteral("http://host/a")), QString());
}

void tst_SystemService::callFromQml()
{
    QQmlEngine engine;
    qmlRegisterSingletonType<SystemService>("Test", 1, 0, "SystemService", &SystemService::create);
    QVERIFY(!SystemService::instance());
    QQmlComponent component(&engine);
    component.setData("import QtQml 2.2\nimport Test 1.0\n"
                      "QtObject {\n"
                      "  property var locales: SystemService.getDebugLocaleList()\n"
                      "  property int port: SystemService.getDevelopPortInfo().port\n"
                      "  property var debug: SystemService.debug()\n"
                      "}",
                      QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QCOMPARE(object->property("locales").toStringList(), SystemService::getDebugLocaleList());
    QCOMPARE(object->property("port").toInt(), 1234);
    QCOMPARE(object->property("debug").userType(), int(QMetaType::Bool));
    QVERIFY(SystemService::instance());
}

QTEST_MAIN(tst_SystemService)
#include "tst_SystemService.moc"
