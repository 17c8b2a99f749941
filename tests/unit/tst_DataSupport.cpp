#include "support/FileSizeLimit.h"
#include "tool/DataSupport.h"

#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// Lets no file be made in a folder, not even by root, who becomes somebody else for that.
class ClosedFolder
{
public:
    ClosedFolder(const QString &folder, const QString &file) : mFolder(QFile::encodeName(folder))
    {
        const bool closed = chmod(mFolder.constData(), 0555) == 0;
        const int other = 65534;
        const bool isRoot = mUser == 0;
        QVERIFY(closed && (!isRoot || chown(QFile::encodeName(file).constData(), uid_t(other), gid_t(-1)) == 0));
        QVERIFY(!isRoot || seteuid(uid_t(other)) == 0);
    }
    ~ClosedFolder() { QVERIFY(seteuid(mUser) == 0 && chmod(mFolder.constData(), 0700) == 0); }

private:
    Q_DISABLE_COPY(ClosedFolder)

    const QByteArray mFolder;
    const uid_t mUser = geteuid();
};
} // namespace

class tst_DataSupport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWholeFilesOrNone_data();
    void writesWholeFilesOrNone();
    void copyReplacesSafely();
    void removeFolders();
    void absolutePath();
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

void tst_DataSupport::writesWholeFilesOrNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    QTest::newRow("file") << "a.ts"
                          << "a.ts";
    QTest::newRow("in place") << "b.ts"
                              << "b.ts";
    // Its name has no room for an ending, which shows only when the new file is to be there.
    const QString longest(255, QLatin1Char('n'));
    QTest::newRow("longest name") << longest << longest;
    QTest::newRow("links") << "link"
                           << "a.ts";
}

void tst_DataSupport::writesWholeFilesOrNone()
{
    QFETCH(QString, name);
    QFETCH(QString, target);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QFile file(folder.filePath(target));
    if (name != target)
        QVERIFY(QFile::link(file.fileName(), path + QLatin1Char('2')) && QFile::link(path + QLatin1Char('2'), path));
    QVERIFY(DataSupport::writeFile(path, QByteArray(5000, 'a')));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOther;
    QVERIFY(file.setPermissions(permissions));
    // Where no file may be made beside it, it can only be written in place.
    const bool inPlace = target == QLatin1String("b.ts");
    const std::unique_ptr<ClosedFolder> closed(inPlace ? new ClosedFolder(folder.path(), path) : nullptr);
    {
        // Less than the old file has.
        const FileSizeLimit limit(4096);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("write bytes differs 4096 10000")));
        QVERIFY(!DataSupport::writeFile(path, QByteArray(10000, 'b')));
    }
    QByteArray bytes;
    QVERIFY(DataSupport::readFile(file.fileName(), bytes));
    QCOMPARE(bytes, QByteArray(5000, 'a'));
    QVERIFY(file.open(QFile::ReadOnly | QFile::Unbuffered));
    QVERIFY(DataSupport::writeFile(path, "short"));
    // The old file stays whole, unless there is no place beside it.
    QCOMPARE(file.readAll().size(), inPlace || target.size() == 255 ? 5 : 5000);
    QVERIFY(DataSupport::readFile(file.fileName(), bytes));
    QCOMPARE(bytes, QByteArray("short"));
    QCOMPARE(file.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser), permissions);
    QCOMPARE(QFileInfo(path).isSymLink(), name != target);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), name == target ? 1 : 3);
}

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

void tst_DataSupport::absolutePath()
{
    for (const char *absolute : { "/", "A:", "z:\\a" })
        QVERIFY2(DataSupport::isAbsolutePath(QString::fromUtf8(absolute)), absolute);
    for (const char *relative : { "", ":", "a", "1:", "@:", "[:", "\u212a:", "\u00e9:" })
        QVERIFY2(!DataSupport::isAbsolutePath(QString::fromUtf8(relative)), relative);
}

void tst_DataSupport::uniqueName()
{
    struct Row
    {
        const char *names; // separated by blanks
        const char *base;
        int digits;
        const char *expected;
    };
    const Row rows[] = {
        { "", "item", 3, "item001" },
        { "item7 item+8 item9a xitem9 item1.5 item-8", "item", 2, "item08" },
        { "item999", "item", 2, "item1000" },
        { "item2147483647 item2147483648", "item", 0, "item2147483649" },
        { "abc abc(1) abc(3)", "abc", -1, "abc(4)" },
        { "abc abc(1) abc(3)", "xyz", -2, "xyz(1)" },
        { "abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1, "abc(1)" },
    };
    for (const Row &row : rows) {
        const QStringList names = QString::fromLatin1(row.names).split(QLatin1Char(' '));
        QCOMPARE(DataSupport::getUniqueName(names, QLatin1String(row.base), row.digits), QLatin1String(row.expected));
    }
}

QTEST_GUILESS_MAIN(tst_DataSupport)
#include "tst_DataSupport.moc"
