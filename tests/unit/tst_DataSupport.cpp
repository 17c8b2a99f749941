#include "support/FileBytes.h"
#include "support/FileSizeLimit.h"
#include "SystemService/SystemService.h"
#include "tool/DataSupport.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

class tst_DataSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(seteuid(getuid()) == 0); }

    void writesWholeFilesOrNone_data();
    void writesWholeFilesOrNone();
    void removesNoMoreThanTheFolder();
    void readsForPages();
    void uniqueName();
};

void tst_DataSupport::writesWholeFilesOrNone_data()
{
    QTest::addColumn<QString>("name");
    // Where no file may be made beside it, it can only be written in place. The longest name has no room
    // for an ending, which shows only when the new file is to be there.
    for (const QString &name : { QStringLiteral("replaced"), QStringLiteral("in place"), QStringLiteral("link"),
                                 QString(255, QLatin1Char('n')) })
        QTest::newRow(qPrintable(name.left(10))) << name;
}

void tst_DataSupport::writesWholeFilesOrNone()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const bool linked = name == QLatin1String("link");
    const bool inPlace = name == QLatin1String("in place");
    QFile file(linked ? folder.filePath(QStringLiteral("target")) : path);
    if (linked)
        QVERIFY(QFile::link(file.fileName(), path + QLatin1Char('2')) && QFile::link(path + QLatin1Char('2'), path));
    QVERIFY(DataSupport::writeFile(path, QByteArray(5000, 'a')));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOther;
    QVERIFY(file.setPermissions(permissions));
    const QByteArray folderName = QFile::encodeName(folder.path());
    if (inPlace) {
        // Root could make a file in any folder, and becomes somebody else for that.
        const uid_t other = getuid() == 0 ? 65534 : getuid();
        QVERIFY(chown(QFile::encodeName(path).constData(), other, gid_t(-1)) == 0);
        QVERIFY(chmod(folderName.constData(), 0555) == 0 && seteuid(other) == 0);
    }
    {
        // Less than the old file has.
        const FileSizeLimit limit(4096);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("write bytes differs 4096 10000")));
        QVERIFY(!DataSupport::writeFile(path, QByteArray(10000, 'b')));
    }
    QCOMPARE(readAll(file.fileName()), QByteArray(5000, 'a'));
    QVERIFY(file.open(QFile::ReadOnly | QFile::Unbuffered));
    QVERIFY(DataSupport::writeFile(path, "short"));
    // The old file stays whole, unless there is no place beside it.
    QCOMPARE(file.readAll().size(), inPlace || name.size() == 255 ? 5 : 5000);
    QCOMPARE(readAll(file.fileName()), QByteArray("short"));
    QCOMPARE(file.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser), permissions);
    QCOMPARE(QFileInfo(path).isSymLink(), linked);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), linked ? 3 : 1);
    QVERIFY(seteuid(getuid()) == 0 && chmod(folderName.constData(), 0700) == 0);
}

void tst_DataSupport::removesNoMoreThanTheFolder()
{
    const QTemporaryDir folder;
    const QString kept = folder.filePath(QStringLiteral("kept"));
    const QString gone = folder.filePath(QStringLiteral("gone"));
    QVERIFY(QDir().mkpath(kept + QLatin1String("/deep")) && QDir().mkpath(gone + QLatin1String("/deep")));
    writeAll(gone + QLatin1String("/deep/file"), "x");
    QVERIFY(QFile::link(kept, gone + QLatin1String("/link")));
    QVERIFY(DataSupport::rmdir(gone));
    QVERIFY(!QFile::exists(gone) && QFile::exists(kept + QLatin1String("/deep")));
}

void tst_DataSupport::readsForPages()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    writeAll(file.fileName(), QByteArray("\xe3\x81\x82\r\n\0z", 7));
    QCOMPARE(SystemService::loadFile(file.fileName()), QStringLiteral("\u3042\r\n\0z"));
    QCOMPARE(SystemService::getBase64FromFile(file.fileName()), QStringLiteral("44GCDQoAeg=="));
    // A larger one than its text has room for is not cut.
    QVERIFY(file.resize((qint64(1) << 32) + 3));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("file too large.*4294967299")));
    QCOMPARE(SystemService::getBase64FromFile(file.fileName()), QString());
}

void tst_DataSupport::uniqueName()
{
    const auto name = [](const char *names, const char *base, int digits) {
        return DataSupport::getUniqueName(QString::fromLatin1(names).split(QLatin1Char(' ')), QLatin1String(base),
                                          digits);
    };
    QCOMPARE(name("", "item", 3), QStringLiteral("item001"));
    QCOMPARE(name("item7 item+8 item9a xitem9 item1.5 item-8", "item", 2), QStringLiteral("item08"));
    QCOMPARE(name("item999", "item", 2), QStringLiteral("item1000"));
    QCOMPARE(name("item2147483647 item2147483648", "item", 0), QStringLiteral("item2147483649"));
    QCOMPARE(name("abc abc(1) abc(3)", "abc", -1), QStringLiteral("abc(4)"));
    QCOMPARE(name("abc abc(1) abc(3)", "xyz", -2), QStringLiteral("xyz(1)"));
    QCOMPARE(name("abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1), QStringLiteral("abc(1)"));
}

QTEST_GUILESS_MAIN(tst_DataSupport)
#include "tst_DataSupport.moc"
