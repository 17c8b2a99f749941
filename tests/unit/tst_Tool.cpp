#include "support/FileBytes.h"
#include "SystemService/SystemService.h"
#include "tool/DataSupport.h"
#include "tool/JsonWrapper.h"
#include "tool/JsonWrapperException.h"

#include <QtTest>

#include <functional>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace
{
const QString kKey = QStringLiteral("a");

/// The same data in each kind of wrapper that can hold it, and last in none.
QVector<JsonWrapper> eachKind(const char *text)
{
    const QJsonDocument doc = QJsonDocument::fromJson(text);
    const QJsonValue value = doc.isArray() ? QJsonValue(doc.array()) : QJsonValue(doc.object());
    const JsonWrapper held = doc.isArray() ? JsonWrapper(doc.array()) : JsonWrapper(doc.object());
    return { JsonWrapper(doc), held, JsonWrapper(value), JsonWrapper() };
}

#ifdef Q_OS_UNIX
/// Lets only the file be written, and none be made beside it.
bool closeFolder(const QByteArray &folder, const QByteArray &file)
{
    // Root could make a file in any folder, and becomes somebody else for that.
    const uid_t other = getuid() == 0 ? 65534 : getuid();
    return chown(file.constData(), other, gid_t(-1)) == 0 && chmod(folder.constData(), 0555) == 0
        && seteuid(other) == 0;
}

bool becomeOurself()
{
    return seteuid(getuid()) == 0;
}

bool openFolder(const QByteArray &folder)
{
    return becomeOurself() && chmod(folder.constData(), 0700) == 0;
}
#endif
} // namespace

/// What all else stands on: JSON, files and names.
class tst_Tool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
#ifdef Q_OS_UNIX
    void cleanup()
    {
        QVERIFY(becomeOurself());
    }
#endif

    void writesFiles_data();
    void writesFiles();
    void removesNoMoreThanTheFolder();
    void readsForPages();
    void uniqueName();
    void readsJson();
    void raisesJsonErrors();
    void writesJsonText();
};

void tst_Tool::writesFiles_data()
{
    QTest::addColumn<QString>("name");
    // Where no file may be made beside it, it can only be written in place. The longest name has no room
    // for an ending, which shows only when the new file is to be there.
    QStringList names{ QStringLiteral("replaced"), QString(255, QLatin1Char('n')) };
#ifdef Q_OS_UNIX
    names << QStringLiteral("in place") << QStringLiteral("link");
#endif
    for (const QString &name : qAsConst(names))
        QTest::newRow(qPrintable(name.left(10))) << name;
}

void tst_Tool::writesFiles()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    const bool linked = name == QLatin1String("link");
    QFile file(linked ? folder.filePath(QStringLiteral("target")) : path);
    if (linked)
        QVERIFY(QFile::link(file.fileName(), path + QLatin1Char('2')) && QFile::link(path + QLatin1Char('2'), path));
    QVERIFY(DataSupport::writeFile(path, QByteArray(5000, 'a')));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOther;
    QVERIFY(file.setPermissions(permissions));
    const QByteArray folderName = QFile::encodeName(folder.path());
#ifdef Q_OS_UNIX
    const bool inPlace = name == QLatin1String("in place");
    if (inPlace)
        QVERIFY(closeFolder(folderName, QFile::encodeName(path)));
#endif
    QVERIFY(file.open(QFile::ReadOnly | QFile::Unbuffered));
#ifdef Q_OS_UNIX
    const bool keepsOpenFile = !inPlace && name.size() != 255;
    const QFile::Permissions kept = permissions;
#else
    // There nothing may take the place of a file that somebody has open, and permissions are fewer.
    const bool keepsOpenFile = false;
    const QFile::Permissions kept = file.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
#endif
    QVERIFY(DataSupport::writeFile(path, "short"));
    // The old file stays whole, unless there is no place beside it.
    QCOMPARE(file.readAll().size(), keepsOpenFile ? 5000 : 5);
    QCOMPARE(readAll(file.fileName()), QByteArray("short"));
    QCOMPARE(file.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser), kept);
    QCOMPARE(QFileInfo(path).isSymLink(), linked);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), linked ? 3 : 1);
#ifdef Q_OS_UNIX
    if (inPlace)
        QVERIFY(openFolder(folderName));
#endif
}

void tst_Tool::removesNoMoreThanTheFolder()
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

void tst_Tool::readsForPages()
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

void tst_Tool::uniqueName()
{
    const auto name = [](const char *names, const char *base, int digits) {
        return DataSupport::getUniqueName(QString::fromLatin1(names).split(QLatin1Char(' ')), QLatin1String(base),
                                          digits);
    };
    QCOMPARE(name("", "item", 3), QStringLiteral("item001"));
    QCOMPARE(name("item7 item+8 item9a xitem9 item1.5 item-8", "item", 2), QStringLiteral("item08"));
    QCOMPARE(name("item2147483647 item2147483648", "item", 3), QStringLiteral("item2147483649"));
    QCOMPARE(name("abc abc(1) abc(3)", "abc", -1), QStringLiteral("abc(4)"));
    QCOMPARE(name("abc abc(1) abc(3)", "xyz", -2), QStringLiteral("xyz(1)"));
    QCOMPARE(name("abc abc(01) abc(+7) abc(-7) abc() abc(8)x abc[9) abc(", "abc", -1), QStringLiteral("abc(1)"));
}

void tst_Tool::readsJson()
{
    QCOMPARE(JsonWrapper(QStringLiteral("123")).toInt(), 123);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Json parse error")));
    const JsonWrapper bad(QStringLiteral("[1"));
    QVERIFY(bad.isNull() && !bad.isArray() && !bad.isObject());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("jsonStr is empty.")));
    QVERIFY(JsonWrapper(QString()).isUndefined());

    for (const JsonWrapper &json : eachKind("[10,[20]]").mid(0, 3)) {
        QCOMPARE(json[0].toInt(), 10);
        QVERIFY(json[2].isUndefined() && json[-1].isUndefined());
        QCOMPARE(json.toJson(true), QStringLiteral("[\n    10,\n    [\n        20\n    ]\n]\n"));
    }
    for (const JsonWrapper &json : eachKind("{\"a\":2.5,\"b\":null}").mid(0, 3)) {
        QCOMPARE(json[kKey].toDouble(), 2.5);
        QVERIFY(json.contains(QStringLiteral("b")) && json[QStringLiteral("b")].isNull());
    }
}

void tst_Tool::raisesJsonErrors()
{
    struct Row
    {
        const char *json;
        std::function<void(JsonWrapper &)> step;
        // How the message begins, and how it ends for a text, an array or object, a value and nothing.
        const char *said;
    };
    const Row rows[] = {
        { "[1]", [](JsonWrapper &json) { json[kKey]; },
          "[a] is applied for |mDoc which is not Object.|kArray.|kValue.|kMax." },
        // A missing key reads as null, but in an object of its own.
        { "{}", [](JsonWrapper &json) { QVERIFY(json[kKey].isNull()); },
          "|-|mObject doesn't have key: a|-|[a] is applied for kMax." },
        { "{}", [](JsonWrapper &json) { json[0]; }, "[index] is applied for |mDoc which is not Array.|-|-|kMax." },
        { "[1]", [](JsonWrapper &json) { json.toObject(); },
          "toObject(): |mDoc which is not Object.|applied for kArray.|applied for kValue.|applied for kMax." },
        { "{}", [](JsonWrapper &json) { json.toValue(); }, "toValue() is called for |kDoc.|kObject.|-|kMax." },
        { "{}", [](JsonWrapper &json) { json.length(); },
          "length() is called for |mDoc which is not Array.|kObject.|kValue.|kMax." },
        { "[1]", [](JsonWrapper &json) { json.keys(); },
          "keys() is called for |mDoc which is not Object.|kArray|kValue.|kMax." },
    };
    for (const Row &row : rows) {
        QStringList said{ QString::fromUtf8(row.said).section(QLatin1Char('|'), 0, 0) };
        for (JsonWrapper &json : eachKind(row.json)) {
            QString message = QStringLiteral("-");
            try {
                row.step(json);
            } catch (const JsonWrapperException &exception) {
                message = exception.message();
            }
            said.append(message.remove(said.first()));
        }
        QCOMPARE(said.join(QLatin1Char('|')), QString::fromUtf8(row.said));
    }
}

void tst_Tool::writesJsonText()
{
    const QVariantList list = { std::numeric_limits<quint64>::max(), 0.1, QVariantList() };
    QCOMPARE(JsonWrapper::getJsonString(QVariantHash{ { QStringLiteral("\""), list } }),
             QStringLiteral("{ \"\\\"\": [ 18446744073709551615, 0.1, [  ] ] }"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Unknown type")));
    QCOMPARE(JsonWrapper::getJsonString(QVariant()), QStringLiteral("?"));
    // With the escapes of Qt's own writer, for each code unit alone and before the second half of a pair.
    QString units;
    for (int unit = 0; unit <= 0xffff; ++unit)
        (units += QChar(unit)) += unit % 3 ? QStringLiteral("a") : QString(QChar(0xdc00));
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{ units }).toJson(QJsonDocument::Compact));
    QVERIFY(QLatin1Char('[') + JsonWrapper::getJsonString(units) + QLatin1Char(']') == array);
}

QTEST_GUILESS_MAIN(tst_Tool)
#include "tst_Tool.moc"
