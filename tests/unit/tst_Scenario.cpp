#include "support/EditingSession.h"
#include "support/FileBytes.h"
#include "support/WarningGuard.h"
#include "SystemService/InterfaceTranslator.h"
#include "SystemService/ToolkitTranslators.h"

class tst_Scenario : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mSession = std::make_unique<EditingSession>();
        mManager = &mSession->manager();
        mWarnings.begin();
    }
    void cleanup()
    {
        mSession.reset();
        mWarnings.end();
    }

    void reads();
    void fillsInNames();
    void keepsTheFilesOfTheProgram();
    void savesOnlyWhatWasLoaded();
    void keepsReplacedRecordsForTheHistory();

private:
    QString write(const QByteArray &bytes)
    {
        const QString path = mFolder.filePath(QStringLiteral("a.js"));
        writeAll(path, bytes);
        return path;
    }

    const QTemporaryDir mFolder;
    std::unique_ptr<EditingSession> mSession;
    TutorialEditor::Manager *mManager = nullptr;
    WarningGuard mWarnings;
};

void tst_Scenario::reads()
{
    const auto row = [this](const char *bytes, const char *shape, const char *leftOut = "") {
        mWarnings.expect(QStringLiteral(" for kValue"), QByteArray(leftOut).count("can't be read"));
        QVERIFY2(mManager->setContents(write(bytes)).isEmpty(), bytes);
        QCOMPARE(mSession->shape(), QString::fromLatin1(shape));
        QCOMPARE(mManager->leftOut().join(QLatin1Char('|')), QString::fromLatin1(leftOut));
        // Once it is saved there is nothing more to lose.
        QCOMPARE(mManager->save(), QString());
        QCOMPARE(mManager->leftOut(), QStringList());
    };
    row("\xef\xbb\xbfvar scenario = [\r\n// x\r\n{\"id\":1}\r\n];\r\n", "1");
    row("/* a\n */\n  // b ];\n\t// \"\nvar scenario = [\n{\"id\":/* c */1}\n];\n\n", "1");
    row("[{\"name\":\"a/*b\",\"id\":1,\"hint\":\"c*/d\"},{\"id\":2}]", "0 2");
    row("[{\"id\":1,\"followWindow\":\"a\",\"z\":[{}],\"hint\":qsTr(\"#1\"),\"x\":1e2},{\"id\":2,\"folder\":true,"
        "\"x\":\"1\",\"children\":[{\"name\":\"\xef\xbf\xbd\"}]}]",
        "1 2[0]");
    // A comment that appears where one was cut out.
    row("[{\"id\":1}//* a */* b */\n]", "1");
    // A bad element takes the whole top element with it.
    row("[{\"id\":4,\"name\":\"%2\",\"folder\":true,\"children\":[{\"id\":5,\"children\":[{\"x\":true},7]}]},{\"id\":6}"
        "]",
        "6", "%2 (#4), with all in it: %2 (#4) / #5 / entry 2 can't be read");
    row("[7,{\"id\":1},null,{\"id\":3,\"children\":{}}]", "1",
        "entry 1 can't be read|entry 3 can't be read|#3, with all in it: #3 / children can't be read");
    row("[{\"id\":1,\"children\":[{}]},{\"name\":\"a\"},{\"x\":1.5,\"hint\":7,\"showArrow\":\"true\",\"id\":2}]",
        "1[0] 0 2",
        "#1: what stands in it, for it is no folder|a (#0): another item has the same id|#2: the value of \"x\"|"
        "#2: the value of \"hint\"|#2: the value of \"showArrow\"");
    row("[{\"id\":1,\"windowKey\":\"a\",\"followWindow\":7},{\"folder\":1,\"id\":2,\"jump\":1}]", "1 2",
        "#1: the value of \"followWindow\"|#2: the value of \"folder\"");
    row("[{\"id\":1,\"name\":\"caf\xe9\"}]", "1", "Characters that are not UTF-8");
    row("[{\"id\":1}],[{\"id\":2}]", "1", "What follows the steps");
}

void tst_Scenario::fillsInNames()
{
    const QByteArray stored = "[{\"id\":1,\"folder\":true,\"children\":[{\"id\":2},{\"id\":3,\"folder\":true}]},"
                              "{\"id\":4,\"name\":\"item007\"},{\"id\":5}]";
    QCOMPARE(mManager->setContents(write(stored)), QStringList());
    QCOMPARE(mManager->mData.getNameList().join(QLatin1Char(' ')),
             QStringLiteral("folder001 item008 folder002 item007 item009"));

    QTranslator standard;
    QVERIFY(standard.load(QStringLiteral(":/translations/ja_JP")));
    QCoreApplication::installTranslator(&standard);
    ToolkitTranslators toolkit(QStringLiteral("ja"), nullptr);
    InterfaceTranslator screens(&toolkit, nullptr);
    screens.setLanguage(QStringLiteral("en"));
    QCOMPARE(mManager->setContents(write("[{\"id\":1,\"folder\":true},{\"id\":2}]")), QStringList());
    QCOMPARE(mManager->mData.getNameList().join(QLatin1Char(' ')), QStringLiteral("フォルダー001 項目001"));
}

void tst_Scenario::keepsTheFilesOfTheProgram()
{
    const QFileInfoList scripts = QDir(QStringLiteral(":/qml/Tutorial")).entryInfoList({ QStringLiteral("*Step*.js") });
    QVERIFY(!scripts.isEmpty());
    for (const QFileInfo &script : scripts) {
        const QByteArray bytes = readAll(script.filePath());
        const QString path = write(bytes);
        QCOMPARE(mManager->setContents(path), QStringList());
        QCOMPARE(mManager->save(), QString());
        QCOMPARE(readAll(path), bytes);
    }
}

void tst_Scenario::savesOnlyWhatWasLoaded()
{
    const QString path = write("[{\"id\":1}]");
    QCOMPARE(mManager->setContents(path), QStringList());
    // One that is there and can't be read is not replaced, and the document stays.
    QCOMPARE(mManager->setContents(mFolder.path()), QStringList());
    QCOMPARE(mSession->shape(), QStringLiteral("1"));
    QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    mManager->clear();
    // Where there is nothing, or nothing but blanks, a new one begins.
    const QString missing = mFolder.filePath(QStringLiteral("x/y/new.js"));
    QCOMPARE(mManager->setContents(missing), QStringList());
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(readAll(missing), QByteArray("var scenario = [\n\n];"));
    mWarnings.expect(QStringLiteral("jsonStr is empty."));
    for (const char *blank : { "\xef\xbb\xbf", "\r\n \t\n" }) {
        QCOMPARE(mManager->setContents(write(blank)), QStringList{ QStringLiteral("json is not array") });
        QCOMPARE(mManager->save(), QString());
        QCOMPARE(readAll(path), readAll(missing));
    }
}

void tst_Scenario::keepsReplacedRecordsForTheHistory()
{
    const QString path = write("[{\"id\":1}]");
    mManager->setContents(path);
    const QPointer<TutorialItemData> record = mManager->mData.getData(1);
    mSession->sequence(QString(), [&] { record->setValue(QStringLiteral("x"), 5); });
    mManager->setContents(path);
    QVERIFY(record && record != mManager->mData.getData(1));
    mManager->clear();
    QVERIFY(!record && mManager->mData.mDataList.isEmpty() && mSession->shape().isEmpty());
}

QTEST_MAIN(tst_Scenario)
#include "tst_Scenario.moc"
