#include "tool/DataSupport.h"

#include <QtTest>

class tst_DataSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readAndWrite_data();
    void readAndWrite();
    void readFailures();
    void copy_data();
    void copy();
    void copyFailures();
    void makeAndRemoveFolders();
    void removeStopsAtLinks();
    void paths_data();
    void paths();
    void lists();
    void uniqueId_data();
    void uniqueId();
    void uniqueName_data();
    void uniqueName();

private:
    QString path(const char *name) const { return mDir->filePath(QString::fromUtf8(name)); }
    QStringList filesInFolder() const { return QDir(mDir->path()).entryList(QDir::Files, QDir::Name); }
    QByteArray contents(const char *name) const;
    static void expectWarning(const char *pattern);

    std::unique_ptr<QTemporaryDir> mDir;
};

void tst_DataSupport::init()
{
    mDir = std::make_unique<QTemporaryDir>();
    QVERIFY(mDir->isValid());
}

QByteArray tst_DataSupport::contents(const char *name) const
{
    QByteArray bytes;
    return DataSupport::readFile(path(name), bytes) ? bytes : QByteArray("unreadable");
}

void tst_DataSupport::expectWarning(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(pattern)));
}

void tst_DataSupport::readAndWrite_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("binary") << QByteArray("a\0b\r\n\xff", 6);
    QTest::newRow("large") << QByteArray(3 * 1024 * 1024 + 1, 'x');
}

void tst_DataSupport::readAndWrite()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(DataSupport::writeFile(path("f"), QByteArray("longer than what follows")));
    QVERIFY(DataSupport::writeFile(path("f"), bytes));
    QByteArray read("old");
    QVERIFY(DataSupport::readFile(path("f"), read));
    QCOMPARE(read, bytes);
}

void tst_DataSupport::readFailures()
{
    QByteArray bytes("old");
    expectWarning("Failed to open.*missing");
    QVERIFY(!DataSupport::readFile(path("missing"), bytes));
    QCOMPARE(bytes, QByteArray("old"));
    expectWarning("Failed to open.*no/folder");
    QVERIFY(!DataSupport::writeFile(path("no/folder"), bytes));
}

void tst_DataSupport::copy_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::newRow("new destination") << QStringList();
    QTest::newRow("replaces") << QStringList{ QStringLiteral("to") };
    QTest::newRow("after a crash") << QStringList{ QStringLiteral("to"), QStringLiteral("to.tmp"),
                                                   QStringLiteral("to.tmp2") };
}

void tst_DataSupport::copy()
{
    QFETCH(QStringList, present);
    QVERIFY(DataSupport::writeFile(path("from"), "new"));
    for (const QString &name : qAsConst(present))
        QVERIFY(DataSupport::writeFile(mDir->filePath(name), "old"));
    QVERIFY(DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), QByteArray("new"));
    QCOMPARE(filesInFolder(), (QStringList{ QStringLiteral("from"), QStringLiteral("to") }));
}

void tst_DataSupport::copyFailures()
{
    QVERIFY(DataSupport::writeFile(path("to"), "old"));
    expectWarning("Failed to copy.*from.*to\\.tmp");
    QVERIFY(!DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), QByteArray("old"));

    // A folder of the backup's name can be neither removed as a file nor replaced.
    QVERIFY(DataSupport::writeFile(path("from"), "new"));
    QVERIFY(DataSupport::mkdir(path("to.tmp2")));
    expectWarning("Failed to rename.*to.*to\\.tmp2");
    QVERIFY(!DataSupport::copyFile(path("from"), path("to")));
    QCOMPARE(contents("to"), QByteArray("old"));
    QCOMPARE(filesInFolder(), (QStringList{ QStringLiteral("from"), QStringLiteral("to") }));
}

void tst_DataSupport::makeAndRemoveFolders()
{
    expectWarning("Failed to mkdir.*a/b");
    QVERIFY(!DataSupport::mkdir(path("a/b")));
    QVERIFY(DataSupport::mkdir(path("a")));
    QVERIFY(DataSupport::mkdir(path("a/b")));
    QVERIFY(DataSupport::writeFile(path("a/b/file"), "x"));
    QVERIFY(DataSupport::writeFile(path("a/protected"), "x"));
    QVERIFY(QFile::setPermissions(path("a/protected"), QFile::ReadOwner));
    QVERIFY(DataSupport::rmdir(path("a")));
    QVERIFY(!DataSupport::fileExists(path("a")));
    QVERIFY(DataSupport::rmdir(path("a")));

    // What is hidden isn't listed and keeps its folder.
    QVERIFY(DataSupport::mkdir(path("c")));
    QVERIFY(DataSupport::mkdir(path("c/d")));
    QVERIFY(DataSupport::writeFile(path("c/d/.hidden"), "x"));
    expectWarning("Failed to rmdir.*c/d.*\"d\"");
    expectWarning("Failed to rmdir.*c\" \"d\"");
    QVERIFY(!DataSupport::rmdir(path("c")));
    QVERIFY(DataSupport::fileExists(path("c/d/.hidden")));

    QVERIFY(DataSupport::writeFile(path("file"), "x"));
    QVERIFY(QFile::setPermissions(path("file"), QFile::ReadOwner));
    QVERIFY(DataSupport::removeFile(path("file")));
    QVERIFY(!DataSupport::removeFile(path("file")));
}

void tst_DataSupport::removeStopsAtLinks()
{
#ifdef Q_OS_WIN
    QSKIP("a link is a file of its own here");
#endif
    QVERIFY(DataSupport::mkdir(path("kept")));
    QVERIFY(DataSupport::writeFile(path("kept/file"), "x"));
    QVERIFY(DataSupport::mkdir(path("removed")));
    QVERIFY(QFile::link(path("kept"), path("removed/link")));
    QVERIFY(DataSupport::rmdir(path("removed")));
    QVERIFY(DataSupport::fileExists(path("kept/file")));
}

void tst_DataSupport::paths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<QString>("withSuffix");
    QTest::newRow("slash") << QStringLiteral("/a/b.js") << true << QStringLiteral("/a/b.json");
    QTest::newRow("drive") << QStringLiteral("z:\\a.tar.gz") << true << QStringLiteral("z:\\a.tar.json");
    QTest::newRow("upper drive") << QStringLiteral("C:") << true << QStringLiteral("C:json");
    QTest::newRow("digit") << QStringLiteral("1:a.x") << false << QStringLiteral("1:a.json");
    QTest::newRow("letter alone") << QStringLiteral("c") << false << QStringLiteral("cjson");
    QTest::newRow("foreign letter") << QStringLiteral("\u00e9:a.x") << false << QStringLiteral("\u00e9:a.json");
    QTest::newRow("empty") << QString() << false << QStringLiteral("json");
}

void tst_DataSupport::paths()
{
    QFETCH(QString, path);
    QTEST(DataSupport::isAbsolutePath(path), "absolute");
    QTEST(DataSupport::changeSuffix(path, QStringLiteral("json")), "withSuffix");
}

void tst_DataSupport::lists()
{
    const QList<int> numbers{ -1, 0, 20 };
    const QStringList texts{ QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("20") };
    QCOMPARE(DataSupport::getStringList(numbers), texts);
    QCOMPARE(DataSupport::getIntList(texts), numbers);
    QCOMPARE(DataSupport::getIntList(DataSupport::getVariantList(numbers)), numbers);
    QCOMPARE(DataSupport::getIntList(QStringList{ QStringLiteral("x"), QStringLiteral("010") }), (QList<int>{ 0, 10 }));
    QCOMPARE(DataSupport::join(numbers, QStringLiteral(", ")), QStringLiteral("-1, 0, 20"));
    QCOMPARE(DataSupport::getStringList(QList<double>{ 0.5, 1e7 }),
             (QStringList{ QStringLiteral("0.5"), QStringLiteral("1e+07") }));

    const QVariantMap map{ { QStringLiteral("on"), true }, { QStringLiteral("n"), 0 } };
    QCOMPARE(DataSupport::getBool(map, QStringLiteral("on"), false), true);
    QCOMPARE(DataSupport::getBool(map, QStringLiteral("missing"), true), true);
    QCOMPARE(DataSupport::getInt(map, QStringLiteral("n"), 5), 0);
    QCOMPARE(DataSupport::getInt(map, QStringLiteral("missing"), 5), 5);
    QCOMPARE(getExistsFilename(QStringLiteral("qml/none.js")), QStringLiteral(":/qml/none.js"));
}

void tst_DataSupport::uniqueId_data()
{
    QTest::addColumn<QList<int>>("ids");
    QTest::addColumn<int>("firstId");
    QTest::addColumn<int>("id");
    QTest::newRow("none") << QList<int>() << 1 << 1;
    QTest::newRow("gap") << QList<int>{ 4, 1, 2 } << 1 << 3;
    QTest::newRow("front") << QList<int>{ 2, 3 } << 1 << 1;
    QTest::newRow("end") << QList<int>{ 3, 2, 1 } << 1 << 4;
    QTest::newRow("below first") << QList<int>{ -5, 0, 1 } << 1 << 2;
    QTest::newRow("twice") << QList<int>{ 1, 1, 3 } << 1 << 2;
    QTest::newRow("far apart") << QList<int>{ INT_MAX, INT_MIN, 5 } << 5 << 6;
}

void tst_DataSupport::uniqueId()
{
    QFETCH(QList<int>, ids);
    QFETCH(int, firstId);
    QTEST(DataSupport::getUniqueId(ids, firstId), "id");
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
    row("item001 item002", "item", 3, "item003");
    row("item item", "item", 0, "item1");
    row("folder9", "folder", 0, "folder10");
    row("item7 item+8 item9a xitem9 item1.5 item-8", "item", 2, "item08");
    row("item999", "item", 2, "item1000");
    row("item99999999999 item2", "item", 0, "item3");
    row("item2147483647 item2147483648", "item", 0, "item2147483649");
    row("item\u0663", "item", 0, "item1");
    row("5", "", 0, "6");
    row("abc abc(1) abc(3)", "abc", -1, "abc(4)");
    row("abc abc(1) abc(3)", "xyz", -1, "xyz");
    row("abc abc(1) abc(3)", "xyz", -2, "xyz(1)");
    row("abc(4)", "abc", -1, "abc");
    row("abc(4)", "abc", -2, "abc(5)");
    row("abc abc abc", "abc", -1, "abc(1)");
    row("abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1, "abc(1)");
    row("abc abc5", "abc", -2, "abc(1)");
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
