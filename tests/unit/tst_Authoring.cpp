#include "support/WarningGuard.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/TranslationSource.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include <memory>

namespace
{
const QString kJapanese = QStringLiteral("ja_JP");
const QString kEnglish = QStringLiteral("en_US");
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/T.js");

QString sourcePath(const QString &locale)
{
    return QStringLiteral("tutorial-win/translations/%1.ts").arg(locale);
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeAll(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

QByteArray message(const QByteArray &source, const QByteArray &translation)
{
    return "<message><source>" + source + "</source><translation>" + translation + "</translation></message>";
}

/// A translation source in the form in which the program writes it.
QByteArray sourceFile(const QString &locale, const QByteArray &messages)
{
    QDomDocument document;
    document.setContent("<?xml version='1.0' encoding='utf-8'?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\""
                        + locale.toUtf8() + "\"><context><name>main</name>" + message("Exit", "E " + locale.toUtf8())
                        + message("-", "") + "</context><context><name>T</name>" + messages
                        + "</context><context><name>U</name>" + message("#1", "other") + "</context></TS>");
    TranslationSource::keepBytesInLine(document);
    return document.toByteArray(4);
}

QString messageIn(const QString &locale, const char *key)
{
    QDomDocument document;
    document.setContent(readAll(sourcePath(locale)));
    return TranslationSource::readMessages(document)
        .value(QStringLiteral("T"))
        .value(QLatin1String(key), QStringLiteral("none"));
}
} // namespace

class tst_Authoring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void showsBothLanguages();
    void changesNothingWithoutAnEdit_data();
    void changesNothingWithoutAnEdit();
    void savesEditedHints_data();
    void savesEditedHints();
    void savesIntoTheRightFilesBeforeAReload();
    void keepsTheOtherFileWhenALocaleHasNone();
    void makesAMissingFile();
    void refusesToSaveOverABrokenFile();
    void refusesToSaveWhatWasNotLoaded();
    void savesTheTranslationsFirst();
    void warnsOfMissingAndBrokenFiles();
    void keepsTheLabelsOfTheProgram();
    void movesPlainHintsIntoTheSources();
    void keepsTheItemsThatAnUnreadableFileLeaves();
    void reloads();
    void freesTheRecordsOfEarlierLoads();

private:
    QString load() { return mManager->loadTutorial(kScenario); }
    TutorialItemData *item(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    QString hints(int id) { return item(id)->getHint() + QLatin1Char('/') + item(id)->getHint2(); }

    QString mFormerFolder;
    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<TutorialManager> mManager;
    QByteArray mScenario;
    QByteArray mJapaneseSource;
    QByteArray mEnglishSource;
    WarningGuard mWarnings;
};

void tst_Authoring::initTestCase()
{
    mFormerFolder = QDir::currentPath();
    mWarnings.begin();
    // The stored form of a folder with four steps.
    TutorialEditor::Manager writer;
    auto &data = writer.mData;
    for (int id = 1; id <= 5; ++id) {
        data.mDataList.append(new TutorialItemData);
        data.mDataList.last()->mId = id;
        data.mDataList.last()->mName = QStringLiteral("n%1").arg(id);
    }
    data.mRoot.mChildren.append(TreeItem<TutorialItemData>(1, true));
    for (int id = 2; id <= 5; ++id)
        data.mRoot.mChildren[0].mChildren.append(TreeItem<TutorialItemData>(id, false));
    mScenario = writer.getScenario(true).toUtf8();
    mJapaneseSource =
        sourceFile(kJapanese, message("#2", "二") + message("#3", "") + message("#4", "四 \"\\\n&lt;b&gt;"));
    mEnglishSource = sourceFile(kEnglish, message("#2", "two") + message("#3", "") + message("#5", "five"));
    mWarnings.end();
}

void tst_Authoring::init()
{
    mWarnings.begin();
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder->path());
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/qml/Tutorial")));
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/translations")));
    writeAll(kScenario, mScenario);
    writeAll(sourcePath(kJapanese), mJapaneseSource);
    writeAll(sourcePath(kEnglish), mEnglishSource);
    // The program's own catalog, as the entry point installs it.
    auto *standard = new QTranslator(qApp);
    QVERIFY(standard->load(kJapanese, QStringLiteral(":/translations")));
    QCoreApplication::installTranslator(standard);
    mManager = std::make_unique<TutorialManager>(nullptr, nullptr);
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

void tst_Authoring::showsBothLanguages()
{
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("二/two"));
    QCOMPARE(hints(3), QStringLiteral("/"));
    QCOMPARE(hints(4), QString::fromUtf8("四 \"\\\n<b>/#4"));
    QCOMPARE(hints(5), QStringLiteral("#5/five"));
    // A folder has no hint of its own.
    QCOMPARE(hints(1), QStringLiteral("/"));
    mManager->setLocale(kEnglish);
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("two/二"));
    QCOMPARE(hints(4), QString::fromUtf8("#4/四 \"\\\n<b>"));
    QCOMPARE(mManager->getTutorialPath(), QDir::currentPath() + QLatin1String("/tutorial-win/qml/Tutorial"));
}

void tst_Authoring::changesNothingWithoutAnEdit_data()
{
    QTest::addColumn<QStringList>("locales");
    QTest::addColumn<bool>("reload");

    QTest::newRow("as it starts") << QStringList() << true;
    QTest::newRow("English") << QStringList{ kEnglish } << true;
    QTest::newRow("there and back") << QStringList{ kEnglish, kJapanese } << true;
    QTest::newRow("often") << QStringList{ kEnglish, kJapanese, kEnglish, kJapanese, kEnglish } << true;
    QTest::newRow("English without a reload") << QStringList{ kEnglish } << false;
    QTest::newRow("there and back without a reload") << QStringList{ kEnglish, kJapanese } << false;
}

void tst_Authoring::changesNothingWithoutAnEdit()
{
    QFETCH(QStringList, locales);
    QFETCH(bool, reload);
    QCOMPARE(load(), QString());
    QCOMPARE(mManager->save(), QString());
    for (const QString &locale : qAsConst(locales)) {
        mManager->setLocale(locale);
        if (reload)
            QCOMPARE(load(), QString());
        QCOMPARE(mManager->save(), QString());
    }
    QCOMPARE(readAll(kScenario), mScenario);
    QCOMPARE(readAll(sourcePath(kJapanese)), mJapaneseSource);
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
}

void tst_Authoring::savesEditedHints_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("Japanese") << kJapanese;
    QTest::newRow("English") << kEnglish;
}

void tst_Authoring::savesEditedHints()
{
    QFETCH(QString, locale);
    const QString other = locale == kJapanese ? kEnglish : kJapanese;
    mManager->setLocale(locale);
    QCOMPARE(load(), QString());
    const QString nasty = QString::fromUtf8(" \"#2\" \\ ];/* %1 <b>&amp;\n😀\t\r ");
    const QString formerFive = item(5)->getHint2();
    item(2)->setHint(nasty);
    item(2)->setHint2(QString());
    item(3)->setHint(QStringLiteral("was empty"));
    item(4)->setHint2(QStringLiteral(" "));
    item(5)->setHint(QStringLiteral("qsTr(\"#2\")"));
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(messageIn(locale, "#2"), nasty);
    QCOMPARE(messageIn(other, "#2"), QString());
    // The scenario holds keys alone.
    QCOMPARE(readAll(kScenario), mScenario);
    // Other contexts are as they were.
    for (const QString &each : { locale, other })
        QVERIFY(readAll(sourcePath(each)).contains("<translation>other</translation>"));

    const auto check = [&](bool exchanged) {
        const auto pair = [exchanged](const QString &first, const QString &second) {
            return exchanged ? QString(second + QLatin1Char('/') + first) : QString(first + QLatin1Char('/') + second);
        };
        QCOMPARE(hints(2), pair(nasty, QString()));
        QCOMPARE(hints(3), pair(QStringLiteral("was empty"), QString()));
        QCOMPARE(hints(4).endsWith(QLatin1String("/ ")), !exchanged);
        QCOMPARE(hints(5), pair(QStringLiteral("qsTr(\"#2\")"), formerFive));
    };
    QCOMPARE(load(), QString());
    check(false);
    mManager->setLocale(other);
    QCOMPARE(load(), QString());
    check(true);
    const QByteArray saved = readAll(sourcePath(kJapanese)) + readAll(sourcePath(kEnglish));
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(readAll(sourcePath(kJapanese)) + readAll(sourcePath(kEnglish)), saved);
}

void tst_Authoring::savesIntoTheRightFilesBeforeAReload()
{
    QCOMPARE(load(), QString());
    item(2)->setHint(QString::fromUtf8("新"));
    item(2)->setHint2(QStringLiteral("new"));
    // The items still show the languages of their load.
    mManager->setLocale(kEnglish);
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(messageIn(kJapanese, "#2"), QString::fromUtf8("新"));
    QCOMPARE(messageIn(kEnglish, "#2"), QStringLiteral("new"));
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("new/新"));
}

void tst_Authoring::keepsTheOtherFileWhenALocaleHasNone()
{
    QCOMPARE(load(), QString());
    // The second language is Japanese now, and must not be written with the English document.
    mWarnings.expect(QStringLiteral("translation file not found"));
    mManager->setLocale(QStringLiteral("Raw"));
    QCOMPARE(mManager->locale2(), kJapanese);
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(readAll(sourcePath(kJapanese)), mJapaneseSource);
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
}

void tst_Authoring::makesAMissingFile()
{
    QVERIFY(QFile::remove(sourcePath(kEnglish)));
    mWarnings.expect(QStringLiteral("translation file not found"));
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("二/#2"));
    item(2)->setHint2(QStringLiteral("two again"));
    QCOMPARE(mManager->save(), QString());
    QCOMPARE(messageIn(kEnglish, "#2"), QStringLiteral("two again"));
    QCOMPARE(messageIn(kEnglish, "#4"), QStringLiteral("none"));
    QVERIFY(readAll(sourcePath(kEnglish)).contains("language=\"en_US\""));
    QCOMPARE(readAll(sourcePath(kJapanese)), mJapaneseSource);
}

void tst_Authoring::refusesToSaveOverABrokenFile()
{
    const QByteArray broken = "<TS><context>";
    for (const QString &locale : { kEnglish, kJapanese }) {
        writeAll(sourcePath(locale), broken);
        mWarnings.expect(QStringLiteral("Failed to setContents"), locale == kEnglish ? 1 : 2);
        QCOMPARE(load(), QString());
        item(2)->mWindowKey = QStringLiteral("edited");
        mWarnings.expect(QStringLiteral("Failed to save"));
        QCOMPARE(mManager->save(), QString::fromUtf8("翻訳のセーブに失敗しました。"));
        QCOMPARE(readAll(sourcePath(locale)), broken);
        QCOMPARE(readAll(kScenario), mScenario);
    }
}

void tst_Authoring::refusesToSaveWhatWasNotLoaded()
{
    const QByteArray broken = "var scenario = [{\"id\":2,";
    writeAll(kScenario, broken);
    mWarnings.expect(QStringLiteral("Json parse error"));
    QCOMPARE(load(), QStringLiteral("json is not array"));
    QVERIFY(!mManager->save().isEmpty());
    QCOMPARE(readAll(kScenario), broken);

    writeAll(kScenario, mScenario);
    QCOMPARE(load(), QString());
    QCOMPARE(mManager->loadTutorial(QStringLiteral("tutorial-win/qml/Tutorial/Missing.js")), QString());
    QVERIFY(!mManager->save().isEmpty());
    QVERIFY(!QFile::exists(QStringLiteral("tutorial-win/qml/Tutorial/Missing.js")));
    mManager->unload();
    QVERIFY(!mManager->save().isEmpty());
    QCOMPARE(readAll(kScenario), mScenario);
    QCOMPARE(readAll(sourcePath(kJapanese)), mJapaneseSource);
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
}

void tst_Authoring::savesTheTranslationsFirst()
{
    QCOMPARE(load(), QString());
    item(2)->setHint(QStringLiteral("edited"));
    item(2)->mWindowKey = QStringLiteral("edited");
    // A folder of the file's name can't be written.
    QVERIFY(QFile::remove(sourcePath(kEnglish)) && QDir().mkpath(sourcePath(kEnglish)));
    mWarnings.expect(QStringLiteral("Failed to open"));
    mWarnings.expect(QStringLiteral("Failed to save"));
    QCOMPARE(mManager->save(), QString::fromUtf8("翻訳のセーブに失敗しました。"));
    QCOMPARE(readAll(kScenario), mScenario);
    QVERIFY(QDir().rmdir(sourcePath(kEnglish)));
    QCOMPARE(mManager->save(), QString());
    QVERIFY(readAll(kScenario).contains("\"windowKey\":\"edited\""));
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
}

void tst_Authoring::warnsOfMissingAndBrokenFiles()
{
    QVERIFY(mManager->loadTranslation());
    writeAll(sourcePath(kEnglish), "no XML");
    mWarnings.expect(QStringLiteral("Failed to setContents"));
    QVERIFY(!mManager->loadTranslation());
    QVERIFY(QFile::remove(sourcePath(kJapanese)));
    mWarnings.expect(QStringLiteral("translation file not found \"tutorial-win/translations/ja_JP.ts\""));
    mWarnings.expect(QStringLiteral("Failed to setContents"));
    QVERIFY(!mManager->loadTranslation());
    QVERIFY(QDir().mkpath(sourcePath(kJapanese)));
    writeAll(sourcePath(kEnglish), mEnglishSource);
    mWarnings.expect(QStringLiteral("Failed to open"));
    QVERIFY(!mManager->loadTranslation());
    // Nothing of all this may be written back.
    mWarnings.expect(QStringLiteral("Failed to save"));
    QVERIFY(!mManager->saveTranslation());
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
}

void tst_Authoring::keepsTheLabelsOfTheProgram()
{
    QCOMPARE(load(), QString());
    const auto label = [](const char *text) { return QCoreApplication::translate("main", text); };
    QCOMPARE(label("Exit"), QStringLiteral("E ja_JP"));
    // An empty translation stands for the source text.
    QCOMPARE(label("-"), QStringLiteral("-"));
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), QString::fromUtf8("次へ"));
    mManager->setLocale(kEnglish);
    QCOMPARE(label("Exit"), QStringLiteral("E en_US"));
    // Another language of the host does not come between the writer and the document.
    mManager->onReceived(QStringLiteral("fromServer\x01ja_JP"));
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QString::fromUtf8("two/二"));
}

void tst_Authoring::movesPlainHintsIntoTheSources()
{
    writeAll(kScenario, "[{\"id\":2,\"name\":\"a\",\"hint\":\"plain\"},{\"id\":9,\"name\":\"b\",\"hint\":\"nine\"}]");
    QCOMPARE(load(), QString());
    QCOMPARE(hints(2), QStringLiteral("plain/two"));
    QCOMPARE(hints(9), QStringLiteral("nine/#9"));
    QCOMPARE(mManager->save(), QString());
    QVERIFY(readAll(kScenario).contains("\"hint\":qsTr(\"#9\")"));
    QCOMPARE(messageIn(kJapanese, "#2"), QStringLiteral("plain"));
    QCOMPARE(messageIn(kJapanese, "#9"), QStringLiteral("nine"));
    QCOMPARE(readAll(sourcePath(kEnglish)), mEnglishSource);
    QCOMPARE(load(), QString());
    QCOMPARE(hints(9), QStringLiteral("nine/#9"));
}

void tst_Authoring::keepsTheItemsThatAnUnreadableFileLeaves()
{
    QCOMPARE(load(), QString());
    item(2)->setHint2(QStringLiteral("edited"));
    QCOMPARE(mManager->loadTutorial(QStringLiteral("Missing.js")), QString());
    QCOMPARE(hints(2), QString::fromUtf8("二/edited"));
    QCOMPARE(hints(4), QString::fromUtf8("四 \"\\\n<b>/#4"));
}

void tst_Authoring::reloads()
{
    QCOMPARE(load(), QString());
    item(2)->setHint(QStringLiteral("lost"));
    QSignalSpy replaced(mManager.get(), &TutorialManager::documentReplaced);
    QCOMPARE(mManager->reload(), QString());
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(hints(2), QString::fromUtf8("二/two"));
    QCOMPARE(mManager->tutorialName(), QStringLiteral("T"));
}

void tst_Authoring::freesTheRecordsOfEarlierLoads()
{
    QList<QPointer<TutorialItemData>> records;
    for (int i = 0; i < 200; ++i) {
        QCOMPARE(load(), QString());
        for (TutorialItemData *record : qAsConst(TutorialEditor::Manager::instance()->mData.mDataList))
            records.append(record);
    }
    QCOMPARE(records.size(), 1000);
    const auto isAlive = [](const QPointer<TutorialItemData> &record) { return !record.isNull(); };
    QCOMPARE(std::count_if(records.cbegin(), records.cend(), isAlive), 5);
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), 1);
    mManager->unload();
    QCOMPARE(std::count_if(records.cbegin(), records.cend(), isAlive), 0);
}

int main(int argc, char *argv[])
{
    // The first argument of the program is the link's suffix, and not one of the test's own.
    QByteArray suffix = "authoring" + QByteArray::number(QCoreApplication::applicationPid());
    char *arguments[] = { argv[0], suffix.data(), nullptr };
    int count = 2;
    QApplication application(count, arguments);
    QCoreApplication::setOrganizationName(QStringLiteral("Harnwick"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_Authoring"));
    applicationObject = &application;
    tst_Authoring test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Authoring.moc"
