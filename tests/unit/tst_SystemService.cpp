#include "SystemService/SystemService.h"

#include <QtTest>

class tst_SystemService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readFiles();
};

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

QTEST_GUILESS_MAIN(tst_SystemService)
#include "tst_SystemService.moc"
