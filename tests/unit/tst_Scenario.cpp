#include "support/DocumentFakes.h"
#include "support/WarningGuard.h"
#include "TutorialEditor/Manager.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using TutorialEditor::Manager;

namespace
{
QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The stored form of a folder with one step, both at their defaults.
const QByteArray kCanonical = "var scenario = [\n"
                              "    {\n"
                              "\"id\":1,\n"
                              "\"name\":\"folder1\",\n"
                              "\"folder\":true,\n"
                              "\"children\":[\n"
                              "        {\n"
                              "\"id\":2,\n"
                              "\"name\":\"item001\",\n"
                              "\"folder\":false,\n"
                              "\"x\":-9999,\n"
                              "\"y\":-9999,\n"
                              "\"windowKey\":\"\",\n"
                              "\"condition\":\"\",\n"
                              "\"hint\":qsTr(\"#2\"),\n"
                              "\"icon\":\"click\",\n"
                              "\"jump\":-1,\n"
                              "\"jumpNo\":-1,\n"
                              "\"command\":\"\",\n"
                              "\"showArrow\":true,\n"
                              "\"prohibited\":false        \n"
                              "        }\n"
                              "]    \n"
                              "    }\n"
                              "];";

/// Ids in the order of the tree, folders with their contents in brackets.
QString shape(const TreeItem<TutorialItemData> &item)
{
    QStringList parts;
    for (const TreeItem<TutorialItemData> &child : item.mChildren) {
        const QString children = child.mFolder || !child.mChildren.isEmpty() ? shape(child) : QString();
        parts.append(QString::number(child.mId) + children);
    }
    return QLatin1Char('(') + parts.join(QLatin1Char(' ')) + QLatin1Char(')');
}
} // namespace

class tst_Scenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void writesTheCanonicalText();
    void writesEmptyDocuments_data();
    void writesEmptyDocuments();
    void writesHintsForTheHost();
    void leavesOutNodesWithoutARecord();
    void writesTextsAsTheyStand_data();
    void writesTextsAsTheyStand();
    void accepts_data();
    void accepts();
    void rejects_data();
    void rejects();
    void readsFields();
    void reportsTranslationErrors();
    void leavesOutWhatIsNoItem();
    void fillsInNames_data();
    void fillsInNames();
    void keepsTheDocumentWhenTheFileCannotBeOpened();
    void savesNothingThatWasNotLoaded();
    void reportsAFailedWrite();
    void marksTheHistoryCleanAfterASave();
    void storesAGivenArray();
    void clears();
    void keepsReplacedRecordsForTheHistory();
    void writesTheSameAfterARead_data();
    void writesTheSameAfterARead();
    void namesTheIcons_data();
    void namesTheIcons();

private:
    QString write(const QByteArray &bytes, const char *name = "a.js")
    {
        const QString path = mFolder->filePath(QLatin1String(name));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }
    TutorialItemData *add(TreeItem<TutorialItemData> &parent, int id, bool folder = false)
    {
        auto *record = new TutorialItemData;
        record->mId = id;
        mManager->mData.mDataList.append(record);
        parent.mChildren.append(TreeItem<TutorialItemData>(id, folder));
        return record;
    }
    TreeItem<TutorialItemData> &root() { return mManager->mData.mRoot; }

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<FakeContext> mContext;
    std::unique_ptr<FakeHistory> mHistory;
    std::unique_ptr<Manager> mManager;
    WarningGuard mWarnings;
};

void tst_Scenario::init()
{
    mWarnings.begin();
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mContext = std::make_unique<FakeContext>();
    mHistory = std::make_unique<FakeHistory>();
    mManager = std::make_unique<Manager>();
    QCOMPARE(Manager::instance(), mManager.get());
}

void tst_Scenario::cleanup()
{
    mManager.reset();
    mHistory.reset();
    mContext.reset();
    mFolder.reset();
    mWarnings.end();
}

void tst_Scenario::writesTheCanonicalText()
{
    add(root(), 1, true)->mName = QStringLiteral("folder1");
    add(root().mChildren[0], 2)->mName = QStringLiteral("item001");
    QCOMPARE(mManager->getScenario(true).toUtf8(), kCanonical);

    const QString path = write(kCanonical);
    QCOMPARE(mManager->setContents(path), QStringList());
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(readAll(path), kCanonical);
}

void tst_Scenario::writesEmptyDocuments_data()
{
    QTest::addColumn<bool>("folder");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("no item") << false << QByteArray("var scenario = [\n\n];");
    QTest::newRow("folder without items") << true
                                          << QByteArray("var scenario = [\n    {\n\"id\":7,\n\"name\":\"f\",\n"
                                                        "\"folder\":true,\n\"children\":[\n\n]    \n    }\n];");
}

void tst_Scenario::writesEmptyDocuments()
{
    QFETCH(bool, folder);
    QFETCH(QByteArray, expected);
    if (folder)
        add(root(), 7, true)->mName = QStringLiteral("f");
    QCOMPARE(mManager->getScenario(true).toUtf8(), expected);
    const QString path = write(expected);
    QCOMPARE(mManager->setContents(path), QStringList());
    QCOMPARE(mManager->getScenario(true).toUtf8(), expected);
}

void tst_Scenario::writesHintsForTheHost()
{
    add(root(), 3)->mHint = QStringLiteral("say \"次\"\n\\n %1");
    QVERIFY(mManager->getScenario(false).contains(QStringLiteral("\n\"hint\":\"say \\\"次\\\"\\n\\\\n %1\",\n")));
    QVERIFY(mManager->getScenario(true).contains(QStringLiteral("\n\"hint\":qsTr(\"#3\"),\n")));
}

void tst_Scenario::leavesOutNodesWithoutARecord()
{
    add(root(), 1)->mName = QStringLiteral("a");
    add(root(), 2)->mName = QStringLiteral("b");
    const QString both = mManager->getScenario(true);
    root().mChildren.insert(0, TreeItem<TutorialItemData>(8, false));
    root().mChildren.insert(2, TreeItem<TutorialItemData>(9, true));
    mWarnings.expect(QStringLiteral("data not found 8"));
    mWarnings.expect(QStringLiteral("data not found 9"));
    QCOMPARE(mManager->getScenario(true), both);
}

void tst_Scenario::writesTextsAsTheyStand_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("json");

    QTest::newRow("place markers") << QStringLiteral("%1 %2 %3 %L1") << QStringLiteral("%1 %2 %3 %L1");
    QTest::newRow("quote and backslash") << QStringLiteral("a\"b\\c") << QStringLiteral("a\\\"b\\\\c");
    QTest::newRow("line feed and tab") << QStringLiteral("a\nb\tc") << QStringLiteral("a\\nb\\tc");
    QTest::newRow("non-ASCII") << QString::fromUtf8("次😀\xd7\xa9") << QString::fromUtf8("次😀\xd7\xa9");
    QTest::newRow("control character") << QString(QChar(1)) << QStringLiteral("\\u0001");
}

void tst_Scenario::writesTextsAsTheyStand()
{
    QFETCH(QString, name);
    QFETCH(QString, json);
    add(root(), 1)->mName = name;
    const QString text = mManager->getScenario(true);
    QVERIFY2(text.contains(QString(QLatin1String("\n\"name\":\"") + json + QLatin1String("\",\n"))), qPrintable(text));
    QVERIFY(text.endsWith(QLatin1String("\n\"prohibited\":false    \n    }\n];")));
}

void tst_Scenario::accepts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *tag, const QByteArray &bytes, const char *expected) {
        QTest::newRow(tag) << bytes << QString::fromLatin1(expected);
    };
    row("array alone", "[{\"id\":1},{\"id\":2}]", "(1 2)");
    row("one line", "var scenario = [{\"id\":1}];", "(1)");
    row("byte order mark", "\xef\xbb\xbfvar scenario = [{\"id\":1}];", "(1)");
    row("carriage returns", "var scenario = [\r\n// x\r\n{\"id\":1}\r\n];\r\n", "(1)");
    row("line ends behind it", "var scenario = [{\"id\":1}];\n\n", "(1)");
    row("comments", "/* a\n */\n  // b ];\n\t// \"\nvar scenario = [\n{\"id\":/* c */1}\n];", "(1)");
    row("comment marks in a string", "[{\"name\":\"a/*b\",\"id\":1,\"hint\":\"c*/d\"},{\"id\":2}]", "(0 2)");
    row("address in a string", "[\n{\"id\":1,\"name\":\"http://x\"}\n]\n", "(1)");
    row("any order, unknown keys", "[{\"z\":[{}],\"children\":[{\"id\":2}],\"folder\":true,\"id\":1}]", "(1(2))");
    row("missing id", "[{\"name\":\"x\"}]", "(0)");
    row("duplicate ids", "[{\"id\":4},{\"id\":4}]", "(4 4)");
    row("children without folder", "[{\"id\":1,\"children\":[{\"id\":2}]}]", "(1(2))");
    row("folder without children", "[{\"id\":1,\"folder\":true}]", "(1())");
    row("folder is no flag", "[{\"id\":1,\"folder\":1}]", "(1)");
    row("nested",
        "[{\"id\":3,\"folder\":true,\"children\":[{\"id\":9},{\"id\":1,\"folder\":true,\"children\":[{\"id\":2}]}]},"
        "{\"id\":5}]",
        "(3(9 1(2)) 5)");
    row("empty", "var scenario = [];", "()");
}

void tst_Scenario::accepts()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    QCOMPARE(mManager->setContents(write(bytes)), QStringList());
    QCOMPARE(shape(root()), expected);
    QVERIFY(mManager->isLoaded());
    QCOMPARE(root().mId, -1);
    QVERIFY(root().mFolder);
}

void tst_Scenario::rejects_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("warning");

    const QString parseError = QStringLiteral("Json parse error");
    QTest::newRow("empty file") << QByteArray() << QStringLiteral("jsonStr is empty.");
    QTest::newRow("comment alone") << QByteArray("// a\n") << QStringLiteral("jsonStr is empty.");
    QTest::newRow("unclosed") << QByteArray("var scenario = [{\"id\":1}") << parseError;
    QTest::newRow("trailing comma") << QByteArray("[{\"id\":1},]") << parseError;
    QTest::newRow("comment in a line") << QByteArray("[{\"id\":1} // a\n]") << parseError;
    QTest::newRow("unclosed comment") << QByteArray("[{\"id\":1}] /* a") << parseError;
    QTest::newRow("other spacing") << QByteArray("var scenario=[{\"id\":1}];") << parseError;
    QTest::newRow("end of the array in a value") << QByteArray("var scenario = [{\"name\":\"a];b\"}];") << parseError;
    QTest::newRow("last line is a comment") << QByteArray("[{\"id\":1}]\n// a") << parseError;
    QTest::newRow("object") << QByteArray("{\"id\":1}") << QString();
    QTest::newRow("number") << QByteArray("12") << QString();
    QTest::newRow("string") << QByteArray("\"a\"") << QString();
    QTest::newRow("binary") << QByteArray("\xff\x01\x80", 3) << parseError;
}

void tst_Scenario::rejects()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, warning);
    QCOMPARE(mManager->setContents(write(kCanonical, "before.js")), QStringList());
    if (!warning.isEmpty())
        mWarnings.expect(warning);
    const QString path = write(bytes);
    QCOMPARE(mManager->setContents(path), QStringList{ QStringLiteral("json is not array") });
    QCOMPARE(shape(root()), QStringLiteral("()"));
    QVERIFY(mManager->mData.mDataList.isEmpty());
    QCOMPARE(mManager->mFilename, path);
    QVERIFY(!mManager->isLoaded());

    QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    QCOMPARE(readAll(path), bytes);
    QCOMPARE(mHistory->mCleanCount, 0);
}

void tst_Scenario::readsFields()
{
    mContext->mTranslations = { { QStringLiteral("#5"), QString::fromUtf8("次\n\"へ\"") },
                                { QStringLiteral("own"), QStringLiteral("Own text") } };
    const QByteArray bytes = "var scenario = ["
                             "{\"id\":5,\"name\":\"a\",\"x\":-3,\"y\":4,\"followWindow\":\"Old\",\"condition\":\"c\","
                             "\"hint\":qsTr(\"#5\"),\"hint2\":\"no\",\"icon\":\"eye\",\"jump\":6,\"jumpNo\":7,"
                             "\"command\":\"d\",\"showArrow\":false,\"prohibited\":true},"
                             "{\"id\":6,\"name\":\"b\",\"hint\":qsTr(\"own\"),\"windowKey\":\"New\","
                             "\"followWindow\":\"Old\"},"
                             "{\"id\":7,\"name\":\"c\",\"hint\":\"plain\"},"
                             "{\"id\":8,\"name\":\"d\",\"folder\":true,\"prohibited\":true,\"x\":1}"
                             "];";
    const QString path = write(bytes);
    QCOMPARE(mManager->setContents(path), QStringList());
    const auto value = [this](int id, const char *property) {
        return mManager->mData.getData(id)->getValue(QLatin1String(property));
    };
    QCOMPARE(value(5, "x").toInt(), -3);
    QCOMPARE(value(5, "y").toInt(), 4);
    QCOMPARE(value(5, "windowKey").toString(), QStringLiteral("Old"));
    QCOMPARE(value(5, "hint").toString(), QString::fromUtf8("次\n\"へ\""));
    QCOMPARE(value(5, "hint2").toString(), QString::fromUtf8("次\n\"へ\""));
    QCOMPARE(value(5, "jumpNo").toInt(), 7);
    QCOMPARE(value(6, "hint").toString(), QStringLiteral("Own text"));
    QCOMPARE(value(6, "hint2").toString(), QStringLiteral("#6"));
    QCOMPARE(value(6, "windowKey").toString(), QStringLiteral("New"));
    QCOMPARE(value(7, "hint").toString(), QStringLiteral("plain"));
    QCOMPARE(value(8, "prohibited").toBool(), true);
    QCOMPARE(value(8, "x").toInt(), -9999);
    QCOMPARE(value(8, "hint2").toString(), QString());

    QCOMPARE(mManager->save(), QString());
    const QByteArray saved = readAll(path);
    for (const char *part :
         { "\"windowKey\":\"Old\"", "\"hint\":qsTr(\"#6\")", "\"hint\":qsTr(\"#7\")", "\"x\":-3", "\"condition\":\"c\"",
           "\"icon\":\"eye\"", "\"jump\":6", "\"jumpNo\":7", "\"command\":\"d\"", "\"showArrow\":false" })
        QVERIFY2(saved.contains(part), part);
    QCOMPARE(saved.count("\"prohibited\":true"), 1);
    QVERIFY(!saved.contains("followWindow") && !saved.contains("hint2") && !saved.contains("plain"));
}

void tst_Scenario::reportsTranslationErrors()
{
    // A text that can't be read ends the translation, and here the array with it.
    mWarnings.expect(QStringLiteral("Json parse error"));
    const QStringList errors = mManager->setContents(write("[{\"id\":1,\"hint\":qsTr(\"a\" )}]"));
    QCOMPARE(errors.size(), 2);
    QVERIFY2(errors.first().startsWith(QLatin1String("not matched qsTr(\"...\"): qsTr(\"a\" )")),
             qPrintable(errors.first()));
    QCOMPARE(errors.last(), QStringLiteral("json is not array"));
}

void tst_Scenario::leavesOutWhatIsNoItem()
{
    for (int i = 0; i < 4; ++i)
        mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    QCOMPARE(mManager->setContents(write("[7,{\"id\":1},\"x\",null,[]]")), QStringList());
    QCOMPARE(shape(root()), QStringLiteral("(1)"));
    QCOMPARE(mManager->mData.getIdList(), QList<int>{ 1 });

    // A bad element takes the whole top element with it.
    mWarnings.expect(QStringLiteral("TutorialItemData::fromJson"));
    mWarnings.expect(QStringLiteral("TreeItem<class TutorialItemData>::createFromJson"));
    const QByteArray bytes = "[{\"id\":1,\"folder\":true,\"children\":[{\"id\":2},3]},"
                             "{\"id\":4,\"folder\":true,\"children\":5},{\"id\":6}]";
    QCOMPARE(mManager->setContents(write(bytes)), QStringList());
    QCOMPARE(shape(root()), QStringLiteral("(6)"));
}

void tst_Scenario::fillsInNames_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("steps and folders, parents first")
        << QByteArray("[{\"id\":1,\"folder\":true,\"children\":[{\"id\":2},{\"id\":3,\"folder\":true}]},{\"id\":4}]")
        << QStringList{ QStringLiteral("folder001"), QStringLiteral("item001"), QStringLiteral("folder002"),
                        QStringLiteral("item002") };
    QTest::newRow("behind the highest name anywhere")
        << QByteArray("[{\"id\":1},{\"id\":2,\"name\":\"item007\"},{\"id\":3}]")
        << QStringList{ QStringLiteral("item008"), QStringLiteral("item007"), QStringLiteral("item009") };
    QTest::newRow("no number") << QByteArray("[{\"id\":1,\"name\":5},{\"id\":2,\"name\":\"item\"}]")
                               << QStringList{ QStringLiteral("item001"), QStringLiteral("item") };
    QTest::newRow("past the numbers that count")
        << QByteArray("[{\"id\":1},{\"id\":2},{\"id\":3,\"name\":\"item2147483647\"},{\"id\":4,\"name\":\"item001\"}]")
        << QStringList{ QStringLiteral("item2147483648"), QStringLiteral("item2147483649"),
                        QStringLiteral("item2147483647"), QStringLiteral("item001") };
    QTest::newRow("negative ids stay without")
        << QByteArray("[{\"id\":-5},{\"id\":0}]") << QStringList{ QString(), QStringLiteral("item001") };
}

void tst_Scenario::fillsInNames()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, names);
    QCOMPARE(mManager->setContents(write(bytes)), QStringList());
    QCOMPARE(mManager->mData.getNameList(), names);
    QVERIFY(mHistory->mChanges.isEmpty());
}

void tst_Scenario::keepsTheDocumentWhenTheFileCannotBeOpened()
{
    const QString path = write(kCanonical);
    QCOMPARE(mManager->setContents(path), QStringList());
    const QString missing = mFolder->filePath(QStringLiteral("missing.js"));
    for (const QString &unreadable : { missing, mFolder->path() }) {
        QCOMPARE(mManager->setContents(unreadable), QStringList());
        QCOMPARE(shape(root()), QStringLiteral("(1(2))"));
        QCOMPARE(mManager->mFilename, unreadable);
        // The document is not that file's.
        QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    }
    QVERIFY(!QFile::exists(missing));
    QCOMPARE(readAll(path), kCanonical);
}

void tst_Scenario::savesNothingThatWasNotLoaded()
{
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
    QCOMPARE(mHistory->mCleanCount, 0);

    const QString path = write(kCanonical);
    QCOMPARE(mManager->setContents(path), QStringList());
    mManager->clear();
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
    QCOMPARE(readAll(path), kCanonical);
}

void tst_Scenario::reportsAFailedWrite()
{
    const QString path = write(kCanonical);
    QCOMPARE(mManager->setContents(path), QStringList());
    mManager->mFilename = mFolder->path();
    mWarnings.expect(QStringLiteral("Failed to open"));
    QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    mManager->mFilename = path + QLatin1String("/below.js");
    mWarnings.expect(QStringLiteral("Failed to open"));
    QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    QCOMPARE(mHistory->mCleanCount, 0);
    QCOMPARE(readAll(path), kCanonical);
}

void tst_Scenario::marksTheHistoryCleanAfterASave()
{
    QCOMPARE(mManager->setContents(write(kCanonical)), QStringList());
    QCOMPARE(mHistory->mCleanCount, 0);
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(mHistory->mCleanCount, 1);
}

void tst_Scenario::storesAGivenArray()
{
    mManager->save(QStringLiteral("[]"));
    const QString path = write("a longer text than the new one");
    mManager->mFilename = path;
    mManager->save(QString::fromUtf8("[\"次\"]\r\n\n"));
    QCOMPARE(readAll(path), QByteArray("var scenario = [\"次\"];"));
    mManager->mFilename = mFolder->path();
    mManager->save(QStringLiteral("[]"));
    QCOMPARE(mHistory->mCleanCount, 0);
}

void tst_Scenario::clears()
{
    mManager->clear();
    QCOMPARE(root().mId, -1);
    QVERIFY(root().mFolder);
    QCOMPARE(mManager->setContents(write(kCanonical)), QStringList());
    root().mId = 5;
    root().mFolder = false;
    QPointer<TutorialItemData> record = mManager->mData.getData(2);
    mManager->clear();
    QCOMPARE(mHistory->mClearCount, 2);
    QCOMPARE(root().mId, -1);
    QVERIFY(root().mFolder && root().mChildren.isEmpty());
    QVERIFY(mManager->mData.mDataList.isEmpty() && !record);
}

void tst_Scenario::keepsReplacedRecordsForTheHistory()
{
    const QString path = write(kCanonical);
    mManager->setContents(path);
    QPointer<TutorialItemData> first = mManager->mData.getData(1);
    mHistory->mEmpty = false;
    mManager->setContents(path);
    QVERIFY(first);
    QVERIFY(!mManager->mData.mDataList.contains(first));
    mManager->clear();
    QVERIFY(!first);

    mManager->setContents(path);
    QPointer<TutorialItemData> second = mManager->mData.getData(1);
    mManager->setContents(path);
    QVERIFY(!second);
}

void tst_Scenario::writesTheSameAfterARead_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 40; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_Scenario::writesTheSameAfterARead()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    // What the reader's text steps take for a comment, for the end of the array or for a translation
    // call is left out of the fields that stand in the file as they are.
    const QStringList parts = { QStringLiteral("\""),     QStringLiteral("\\"),
                                QStringLiteral("%1"),     QStringLiteral("\n"),
                                QStringLiteral("\r"),     QStringLiteral("\t"),
                                QString::fromUtf8("😀"),   QString::fromUtf8("שלום"),
                                QString(QChar(0x2028)),   QString(QChar(0x1)),
                                QString(QChar(0x7f)),     QStringLiteral("*/"),
                                QStringLiteral("//"),     QStringLiteral("]"),
                                QStringLiteral("; "),     QStringLiteral("var scenario = "),
                                QStringLiteral("qsTr( "), QStringLiteral("#2"),
                                QStringLiteral("次"),     QStringLiteral("'"),
                                QStringLiteral("a "),     QStringLiteral("</x>&amp;"),
                                QStringLiteral("\\\"") };
    const auto text = [&] {
        QString result;
        const int count = random.bounded(6);
        for (int i = 0; i < count; ++i)
            result += parts.at(random.bounded(parts.size()));
        return result.replace(QLatin1String("];"), QString()).replace(QLatin1String("/*"), QString());
    };
    int id = 0;
    std::function<void(TreeItem<TutorialItemData> &, int)> grow = [&](TreeItem<TutorialItemData> &parent, int depth) {
        const int count = random.bounded(depth == 0 ? 8 : 4);
        for (int i = 0; i < count; ++i) {
            const bool folder = depth < 6 && random.bounded(3) == 0;
            id += 1 + random.bounded(3);
            TutorialItemData *record = add(parent, id, folder);
            record->mName = QString::number(id) + text();
            if (folder) {
                grow(parent.mChildren.last(), depth + 1);
                continue;
            }
            record->mX = random.bounded(20000) - 10000;
            record->mWindowKey = text();
            record->mCondition = text();
            record->mIcon = text();
            record->mCommand = text();
            record->mHint = text() + QStringLiteral("];/*");
            record->mJump = random.bounded(100) - 1;
            record->mShowArrow = random.bounded(2);
            record->mProhibited = random.bounded(2);
            mContext->mTranslations.insert(QStringLiteral("#%1").arg(id), record->mHint);
        }
    };
    grow(root(), 0);
    const QString stored = mManager->getScenario(true);
    const QString sent = mManager->getScenario(false);
    const QString path = write(stored.toUtf8());

    QCOMPARE(mManager->setContents(path), QStringList());
    QCOMPARE(mManager->getScenario(true), stored);
    QCOMPARE(mManager->getScenario(false), sent);
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(readAll(path), stored.toUtf8());
}

void tst_Scenario::namesTheIcons_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("path");

    QTest::newRow("below") << -1 << QString();
    QTest::newRow("first") << 0 << QStringLiteral(":/resource/png/click.png");
    QTest::newRow("double click") << 1 << QStringLiteral(":/resource/png/double_click.png");
    QTest::newRow("last") << 5 << QStringLiteral(":/resource/png/keyboard.png");
    QTest::newRow("above") << 6 << QString();
}

void tst_Scenario::namesTheIcons()
{
    QFETCH(int, index);
    QFETCH(QString, path);
    QCOMPARE(Manager::getStepIconPath(index), path);
    if (!path.isEmpty())
        QVERIFY(QFile::exists(path));
}

QTEST_GUILESS_MAIN(tst_Scenario)
#include "tst_Scenario.moc"
