#include "SystemService/SystemService.h"

#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

class tst_SystemService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings();
    void readFiles();
    void urls();
};

void tst_SystemService::settings()
{
    const QTemporaryDir folder;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    QCoreApplication::setOrganizationName(QStringLiteral("test"));
    QCOMPARE(SystemService::getDebugLocale(), QStringLiteral("ja_JP"));
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
}

void tst_SystemService::readFiles()
{
    const QByteArray bytes("\xe3\x81\x82\r\n\0z", 7);
    QTemporaryFile file;
    QVERIFY(file.open());
    QCOMPARE(file.write(bytes), bytes.size());
    QVERIFY(file.flush());
    QCOMPARE(SystemService::loadFile(file.fileName()), QStringLiteral("\u3042\r\n\0z"));
    QCOMPARE(SystemService::getBase64FromFile(file.fileName()), QStringLiteral("44GCDQoAeg=="));
    // A larger one than its text has room for is not cut.
    QVERIFY(file.resize((qint64(1) << 32) + 3));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("file too large.*4294967299")));
    QCOMPARE(SystemService::getBase64FromFile(file.fileName()), QString());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("failed to read.*missing")));
    QCOMPARE(SystemService::loadFile(QStringLiteral("/missing/file")), QString());
}

void tst_SystemService::urls()
{
    const QString file = QStringLiteral("/a b/\u3042#1.js");
    QCOMPARE(SystemService::getLocalFileFromUrl(SystemService::getUrlFromLocalFile(file)), file);
    QCOMPARE(SystemService::getLocalFileFromUrl(QStringLiteral("http://host/a")), QString());
}

QTEST_MAIN(tst_SystemService)
#include "tst_SystemService.moc"
