#include "support/FileBytes.h"
#include "support/FileSizeLimit.h"
#include "support/ManagerFixture.h"
#include "support/WarningGuard.h"
#include "Tutorial/translation/TranslationXml.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>

namespace
{
const QString kJapanese = QStringLiteral("ja_JP");
const QString kEnglish = QStringLiteral("en_US");
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/T.js");
const QString kNotSaved = QStringLiteral("Failed to save translation.");

QString sourcePath(const QString &locale)
{
    return QStringLiteral("tutorial-win/translations/%1.ts").arg(locale);
}

QByteArray message(const QByteArray &source, const QByteArray &translation)
{
    return "<message><source>" + source + "</source><translation>" + translation + "</translation></message>";
}

/// A translation source in the form in which the program writes it.
QByteArray sourceFile(const QByteArray &messages)
{
    QDomDocument document;
    TranslationXml::parse(
        "<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\"><context><name>T</name>" + messages
            + "</context><context><name>U</name>" + message("#1", "other") + "</context></TS>",
        document);
    return document.toByteArray(4);
}
} // namespace

class tst_Authoring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void changesNothingWithoutAnEdit();
    void savesEditedHints();
    void savesIntoTheRightFilesBeforeAReload();
    void refusesToSaveWhatWasNotLoaded();
    void savesTheTranslationsFirst();
    void mergesWhatOthersWrote();
    void keepsTheFilesOfAFullDisk_data();
    void keepsTheFilesOfAFullDisk();
    void movesPlainHintsIntoTheSources();

private:
    QString load() { return mManager->loadTutorial(kScenario); }
    TutorialItemData *item(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    QString hints(int id) { return item(id)->getHint() + QLatin1Char('/') + item(id)->getHint2(); }
    QList<QByteArray> files()
    {
        return { readAll(kScenario), readAll(sourcePath(kJapanese)), readAll(sourcePath(kEnglish)) };
    }

    const QString mFormerFolder = QDir::currentPath();
    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<ManagerFixture::Manager> mManager;
    QList<QByteArray> mFiles;
    WarningGuard mWarnings;
};

void tst_Authoring::init()
{
    mWarnings.begin();
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder->path());
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/qml/Tutorial")));
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/translations")));
    writeAll(kScenario,
             "[{\"id\":1,\"folder\":true,\"children\":[{\"id\":2,\"hint\":qsTr(\"#2\")},{\"id\":3,\"hint\":"
             "qsTr(\"#3\")},{\"id\":4,\"hint\":qsTr(\"#4\")},{\"id\":5,\"hint\":qsTr(\"#5\")}]}]");
    writeAll(sourcePath(kJapanese),
             sourceFile(message("#2", "二") + message("#3", "") + message("#4", "四 \"\\\n&lt;b&gt;")));
    writeAll(sourcePath(kEnglish), sourceFile(message("#2", "two") + message("#3", "") + message("#5", "five")));
    mFiles = files();
    mManager = std::make_unique<ManagerFixture::Manager>();
    QCOMPARE(load(), QString());
    QCOMPARE(mManager->save(), QString());
    mFiles[0] = readAll(kScenario); // in its stored form
}

void tst_Authoring::cleanup()
{
    mManager.reset();
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QSettings().clear();
    QDir::setCurrent(mFormerFolder);
    mFolder.reset();
    mWarnings.end();
}

void tst_Authoring::changesNothingWithoutAnEdit()
{
    QCOMPARE(files(), mFiles);
    // A folder has no hint of its own; a missing translation shows its key.
    QCOMPARE(hints(1) + hints(3), QStringLiteral("//"));
    QCOMPARE(hints(4), QString::fromUtf8("四 \"\\\n<b>/#4"));
    for (const bool reload : { false, true }) {
        for (const QString &locale : { kEnglish, kJapanese, kEnglish }) {
            mManager->setLocale(locale);
            if (reload)
                QCOMPARE(load(), QString());
            QCOMPARE(mManager->save(), QString());
            QCOMPARE(files(), mFiles);
        }
    }
    QCOMPARE(hints(4), QString::fromUtf8("#4/四 \"\\\n<b>"));

    // With a language that has no source the second one changes, and each goes to its own file still.
    mWarnings.expect(QStringLiteral("translation file not found"));
    mManager->setLocale(QStringLiteral("Raw"));
    QCOMPARE(mManager->locale2(), kJapanese);
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(files(), mFiles);
}

void tst_Authoring::savesEditedHints()
{
    const QString nasty = QString::fromUtf8(" \"#2\" \\ ];/* %1 <b>&amp;\n😀\t\r ");
    item(2)->setHint(nasty);
    item(2)->setHint2(QString());
    item(4)->setHint2(QStringLiteral(" "));
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString(nasty + QLatin1Char('/')));
    mManager->setLocale(kEnglish);
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString(QLatin1Char('/') + nasty));
    QVERIFY(hints(4).startsWith(QLatin1String(" /")));
    // The scenario holds keys alone, and other contexts are as they were.
    QCOMPARE(readAll(kScenario), mFiles.at(0));
    QVERIFY(files().at(1).contains(">other<") && files().at(2).contains(">other<"));
}

void tst_Authoring::savesIntoTheRightFilesBeforeAReload()
{
    item(2)->setHint(QString::fromUtf8("新"));
    item(2)->setHint2(QStringLiteral("new"));
    // The items still show the languages of their load.
    mManager->setLocale(kEnglish);
    QCOMPARE(mManager->save(), QString());
    QVERIFY(files().at(1).contains("新") && files().at(2).contains("new"));
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("new/新"));
}

void tst_Authoring::refusesToSaveWhatWasNotLoaded()
{
    const QByteArray broken = "var scenario = [{\"id\":2,";
    writeAll(kScenario, broken);
    mWarnings.expect(QStringLiteral("Json parse error"));
    QCOMPARE(load(), QStringLiteral("json is not array"));
    QVERIFY(!mManager->save().isEmpty());
    QCOMPARE(files(), (QList<QByteArray>{ broken, mFiles.at(1), mFiles.at(2) }));

    writeAll(kScenario, mFiles.at(0));
    writeAll(sourcePath(kEnglish), broken);
    mWarnings.expect(QStringLiteral("Failed to setContents"), 2);
    QCOMPARE(load(), QString());
    item(2)->setHint(QStringLiteral("edited"));
    mWarnings.expect(QStringLiteral("Failed to save"));
    QCOMPARE(mManager->save(), kNotSaved);
    QCOMPARE(readAll(sourcePath(kEnglish)), broken);
    QCOMPARE(readAll(kScenario), mFiles.at(0));
}

void tst_Authoring::savesTheTranslationsFirst()
{
    item(2)->setHint(QStringLiteral("edited"));
    item(2)->mWindowKey = QStringLiteral("edited");
    // A folder of the file's name can't be written.
    QVERIFY(QFile::remove(sourcePath(kEnglish)) && QDir().mkpath(sourcePath(kEnglish)));
    mWarnings.expect(QStringLiteral("Failed to open"));
    mWarnings.expect(QStringLiteral("Failed to save"));
    QCOMPARE(mManager->save(), kNotSaved);
    QCOMPARE(readAll(kScenario), mFiles.at(0));
    QVERIFY(QDir().rmdir(sourcePath(kEnglish)));
    QCOMPARE(mManager->save(), QString());
    QVERIFY(readAll(kScenario).contains("\"windowKey\":\"edited\""));
    QCOMPARE(files().at(2), mFiles.at(2));
}

void tst_Authoring::mergesWhatOthersWrote()
{
    item(2)->setHint(QStringLiteral("mine"));
    item(5)->setHint2(QStringLiteral("my five"));
    const QByteArray others = message("#3", "三") + message("#9", "nine");
    writeAll(sourcePath(kJapanese), sourceFile(message("#2", "二") + others).replace("other<", "another<"));
    writeAll(sourcePath(kEnglish), sourceFile(message("#2", " ") + message("#5", "their five")));
    mWarnings.expect(QStringLiteral("\"#5\" \"their five\""));
    QSignalSpy shown(mManager.get(), &TutorialManager::documentReplaced);
    QCOMPARE(mManager->save(), QString());
    // What others wrote is on the screen at once, and no edit for the save after that.
    QCOMPARE(shown.size(), 1);
    QCOMPARE(mManager->save(), QString());
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(hints(2) + hints(3) + hints(5), QString::fromUtf8("mine/ 三/#5/my five"));
        QCOMPARE(load(), QString());
    }
    // A text that is gone from the file is still the item's.
    QCOMPARE(hints(4), QString::fromUtf8("四 \"\\\n<b>/#4"));
    QVERIFY(files().at(1).contains(">another<") && files().at(1).contains(">nine<"));

    // Nor does a broken or emptied file cost a word.
    const QByteArray whole = files().at(1);
    writeAll(sourcePath(kJapanese), "<<<<<<<" + whole);
    mWarnings.expect(QStringLiteral("Failed to setContents"));
    mWarnings.expect(QStringLiteral("Failed to save"));
    QCOMPARE(mManager->save(), kNotSaved);
    QVERIFY(files().at(1).startsWith("<<<<<<<"));
    writeAll(sourcePath(kJapanese), "\n");
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(files().at(1), whole);
}

void tst_Authoring::keepsTheFilesOfAFullDisk_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("command") << QStringLiteral("Failed to save.");
    QTest::newRow("hint") << kNotSaved;
    QTest::newRow("hint2") << kNotSaved;
}

void tst_Authoring::keepsTheFilesOfAFullDisk()
{
    const QByteArray text(10000, 'x');
    mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
    const std::unique_ptr<QObject> history(UndoRedo::create(nullptr, nullptr));
    UndoRedo::instance()->beginSequence(QString());
    item(2)->setValue(QString::fromLatin1(QTest::currentDataTag()), QString::fromLatin1(text));
    UndoRedo::instance()->endSequence();
    {
        const FileSizeLimit limit(8192);
        mWarnings.expect(QStringLiteral("write bytes differs"), 2);
        if (QTest::currentDataTag() != QByteArray("command"))
            mWarnings.expect(QStringLiteral("Failed to save"));
        QTEST(mManager->save(), "message");
        TutorialEditor::Manager::instance()->save(QString::fromLatin1(text));
    }
    QCOMPARE(files(), mFiles);
    QVERIFY(mManager->isModified());
    QCOMPARE(mManager->save(), QString());
    QVERIFY(files().join().contains(text));
    QVERIFY(!mManager->isModified());
}

void tst_Authoring::movesPlainHintsIntoTheSources()
{
    writeAll(kScenario, "[{\"id\":2,\"name\":\"a\",\"hint\":\"plain\"},{\"id\":9,\"name\":\"b\",\"hint\":\"nine\"}]");
    QCOMPARE(load(), QString());
    QCOMPARE(mManager->save(), QString());
    QVERIFY(readAll(kScenario).contains("\"hint\":qsTr(\"#9\")"));
    QCOMPARE(files().at(2), mFiles.at(2));
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QStringLiteral("plain/two"));
    QCOMPARE(hints(9), QStringLiteral("nine/#9"));
}

int main(int argc, char *argv[])
{
    const ManagerFixture::Application application(argv[0]);
    tst_Authoring test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Authoring.moc"
