#include "tool/DataSupport.h"

#include <QtTest>

class tst_DataSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyReplacesSafely();
    void removeFolders();
    void isAbsolutePath();
    void uniqueId();
    void uniqueName_data();
    void uniqueName();

private:
    QString path(const char *name) const { return mDir.filePath(QString::fromUtf8(name)); }
    QByteArray contents(const char *name) const
    {
        QByteArray bytes;
        return DataSupport::readFile(path(name), bytes) ? bytes : QByteArray("unreadable");
    }

    QTemporaryDir mDir;
};

void tst_DataSupport::copyReplacesSafely()
{
    const QByteArray binary("a\0b\r\n\xff", 6);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to copy.*from.*to\\.tmp")));
    QVERIFY(DataSupport::writeFile(path("to"), "old"));
    QVERIFY(!DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), QByteArray("old"));

    // A folder of the backup's name can be neither removed as a file nor replaced.
    QVERIFY(DataSupport::writeFile(path("from"), binary));
    QVERIFY(DataSupport::mkdir(path("to.tmp2")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to rename.*to.*to\\.tmp2")));
    QVERIFY(!DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), QByteArray("old"));

    // What a crash has left behind is in the way of nothing.
    QVERIFY(DataSupport::rmdir(path("to.tmp2")));
    QVERIFY(DataSupport::writeFile(path("to.tmp"), "crashed"));
    QVERIFY(DataSupport::writeFile(path("to.tmp2"), "crashed"));
    QVERIFY(DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), binary);
    QCOMPARE(QDir(mDir.path()).entryList(QDir::Files).size(), 2);
}

void tst_DataSupport::removeFolders()
{
    QVERIFY(DataSupport::mkdir(path("kept")));
    QVERIFY(DataSupport::writeFile(path("kept/file"), "x"));
    QVERIFY(DataSupport::mkdir(path("a")));
    QVERIFY(DataSupport::mkdir(path("a/b")));
    QVERIFY(DataSupport::writeFile(path("a/b/protected"), "x"));
    QVERIFY(QFile::setPermissions(path("a/b/protected"), QFile::ReadOwner));
#ifndef Q_OS_WIN
    QVERIFY(QFile::link(path("kept"), path("a/link")));
#endif
    QVERIFY(DataSupport::rmdir(path("a")));
    QVERIFY(!DataSupport::fileExists(path("a")));
    QCOMPARE(contents("kept/file"), QByteArray("x"));
}

void tst_DataSupport::isAbsolutePath()
{
    for (const char *absolute : { "/a/b.js", "z:\\a", "C:" })
        QVERIFY2(DataSupport::isAbsolutePath(QString::fromUtf8(absolute)), absolute);
    for (const char *relative : { "", "c", "1:a.x", "\u00e9:a.x" })
        QVERIFY2(!DataSupport::isAbsolutePath(QString::fromUtf8(relative)), relative);
}

void tst_DataSupport::uniqueId()
{
    QCOMPARE(DataSupport::getUniqueId({}, 1), 1);
    QCOMPARE(DataSupport::getUniqueId({ 4, 1, 2 }, 1), 3);
    QCOMPARE(DataSupport::getUniqueId({ -5, 0, 1, 1 }, 1), 2);
    QCOMPARE(DataSupport::getUniqueId({ INT_MAX, INT_MIN, 5 }, 5), 6);
}

void tst_DataSupport::uniqueName_data()
{
    QTest::addColumn<QString>("names"); // separated by blanks
    QTest::addColumn<QString>("base");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *names, const char *base, int digits, const char *name) {
        QTest::addRow("%s to %s, %d", names, base, digits)
            << QString::fromUtf8(names) << QString::fromUtf8(base) << digits << QString::fromUtf8(name);
    };
    row("", "item", 3, "item001");
    row("item7 item+8 item9a xitem9 item1.5 item-8", "item", 2, "item08");
    row("item999", "item", 2, "item1000");
    row("item2147483647 item2147483648", "item", 0, "item2147483649");
    row("item\u0663", "item", 0, "item1");
    row("abc abc(1) abc(3)", "abc", -1, "abc(4)");
    row("abc abc(1) abc(3)", "xyz", -1, "xyz");
    row("abc abc(1) abc(3)", "xyz", -2, "xyz(1)");
    row("abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1, "abc(1)");
    row("a(1) a(1)(6)", "a(1)", -1, "a(1)(7)");
}

void tst_DataSupport::uniqueName()
{
    QFETCH(QString, names);
    QFETCH(QString, base);
    QFETCH(int, digits);
    QTEST(DataSupport::getUniqueName(names.split(QLatin1Char(' ')), base, digits), "name");
}

QTEST_GUILESS_MAIN(tst_DataSupport)
#include "tst_DataSupport.moc"
