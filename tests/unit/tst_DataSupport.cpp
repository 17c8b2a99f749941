#include "support/FileSizeLimit.h"
#include "tool/DataSupport.h"

#include <QtTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
const QString kReplaced = QStringLiteral("replaced");
const QString kInPlace = QStringLiteral("in place");

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
    void removesNoMoreThanTheFolder();
    void absolutePath();
    void uniqueName();

private:
    static QByteArray contents(const QString &path)
    {
        QByteArray bytes;
        return DataSupport::readFile(path, bytes) ? bytes : QByteArray("unreadable");
    }
};

void tst_DataSupport::writesWholeFilesOrNone_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("target");
    // Where no file may be made beside it, it can only be written in place. The longest name has no room
    // for an ending, which shows only when the new file is to be there.
    for (const QString &name : { kReplaced, kInPlace, QString(255, QLatin1Char('n')) })
        QTest::newRow(qPrintable(name.left(10))) << name << name;
    QTest::newRow("symbolic links") << QStringLiteral("link") << kReplaced;
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
    const bool inPlace = target == kInPlace;
    const std::unique_ptr<ClosedFolder> closed(inPlace ? new ClosedFolder(folder.path(), path) : nullptr);
    {
        // Less than the old file has.
        const FileSizeLimit limit(4096);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("write bytes differs 4096 10000")));
        QVERIFY(!DataSupport::writeFile(path, QByteArray(10000, 'b')));
    }
    QCOMPARE(contents(file.fileName()), QByteArray(5000, 'a'));
    QVERIFY(file.open(QFile::ReadOnly | QFile::Unbuffered));
    QVERIFY(DataSupport::writeFile(path, "short"));
    // The old file stays whole, unless there is no place beside it.
    QCOMPARE(file.readAll().size(), inPlace || target.size() == 255 ? 5 : 5000);
    QCOMPARE(contents(file.fileName()), QByteArray("short"));
    QCOMPARE(file.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser), permissions);
    QCOMPARE(QFileInfo(path).isSymLink(), name != target);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), name == target ? 1 : 3);
}

void tst_DataSupport::copyReplacesSafely()
{
    const QTemporaryDir folder;
    const QString from = folder.filePath(QStringLiteral("from"));
    const QString to = folder.filePath(QStringLiteral("to"));
    const QByteArray binary("a\0b\r\n\xff", 6);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to copy.*from.*to\\.tmp")));
    QVERIFY(DataSupport::writeFile(to, "old"));
    QVERIFY(!DataSupport::copyFile(from, to));
    QCOMPARE(contents(to), QByteArray("old"));

    // A folder of the backup's name can be neither removed as a file nor replaced.
    QVERIFY(DataSupport::writeFile(from, binary) && DataSupport::mkdir(to + QLatin1String(".tmp2")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Failed to rename.*to.*to\\.tmp2")));
    QVERIFY(!DataSupport::copyFile(from, to));
    QCOMPARE(contents(to), QByteArray("old"));

    // What a crash has left is in the way of nothing.
    QVERIFY(DataSupport::rmdir(to + QLatin1String(".tmp2")));
    QVERIFY(DataSupport::writeFile(to + QLatin1String(".tmp"), "crashed"));
    QVERIFY(DataSupport::writeFile(to + QLatin1String(".tmp2"), "crashed"));
    QVERIFY(DataSupport::copyFile(from, to));
    QCOMPARE(contents(to), binary);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 2);
}

void tst_DataSupport::removesNoMoreThanTheFolder()
{
    const QTemporaryDir folder;
    const QString kept = folder.filePath(QStringLiteral("kept/file"));
    const QString gone = folder.filePath(QStringLiteral("gone"));
    QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("kept")) && QDir(gone).mkpath(QStringLiteral("deep")));
    QVERIFY(DataSupport::writeFile(kept, "x") && DataSupport::writeFile(gone + QLatin1String("/deep/file"), "x"));
    QVERIFY(QFile::link(QFileInfo(kept).path(), gone + QLatin1String("/link")));
    QVERIFY(DataSupport::rmdir(gone));
    QVERIFY(!DataSupport::fileExists(gone));
    QCOMPARE(contents(kept), QByteArray("x"));
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
    const auto name = [](const char *names, const char *base, int digits) {
        return DataSupport::getUniqueName(QString::fromLatin1(names).split(QLatin1Char(' ')), QLatin1String(base),
                                          digits);
    };
    QCOMPARE(name("", "item", 3), QStringLiteral("item001"));
    QCOMPARE(name("item7 item+8 item9a xitem9 item1.5 item-8", "item", 2), QStringLiteral("item08"));
    QCOMPARE(name("item999", "item", 2), QStringLiteral("item1000"));
    QCOMPARE(name("item2147483647 item2147483648", "item", 0), QStringLiteral("item2147483649"));
    QCOMPARE(name("abc abc(1) abc(3)", "abc", -1), QStringLiteral("abc(4)"));
    QCOMPARE(name("abc abc(1) abc(3)", "xyz", -1), QStringLiteral("xyz"));
    QCOMPARE(name("abc abc(1) abc(3)", "xyz", -2), QStringLiteral("xyz(1)"));
    QCOMPARE(name("abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1), QStringLiteral("abc(1)"));
}

QTEST_GUILESS_MAIN(tst_DataSupport)
#include "tst_DataSupport.moc"
