#include "support/FileBytes.h"
#include "support/FileSizeLimit.h"
#include "support/WarningGuard.h"
#include "Tutorial/translation/TranslationXml.h"
#include "Tutorial/translation/TutorialTranslation.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"
#include "UndoRedo/UndoRedo.h"

#include <QDir>
#include <QLibraryInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

using TranslationSource::Entry;

namespace
{
const QString kJapanese = QStringLiteral("ja_JP");
const QString kEnglish = QStringLiteral("en_US");
// The catalogs have words of their own for its first two hints.
const QString kTutorial = QStringLiteral("TutorialTopViewStep1");
const QString kScenario = QStringLiteral("tutorial-win/qml/Tutorial/TutorialTopViewStep1.js");
const QString kJapaneseFile = QStringLiteral("tutorial-win/translations/ja_JP.ts");
const QString kEnglishFile = QStringLiteral("tutorial-win/translations/en_US.ts");
constexpr int kItems = 300;

QString key(int id)
{
    return QStringLiteral("#%1").arg(id);
}

void writeSource(const QString &path, const QVector<Entry> &entries, const QString &other)
{
    QDomDocument document = TranslationSource::emptyDocument(kJapanese);
    TranslationSource::writeMessages(document, kTutorial, entries);
    TranslationSource::writeMessages(document, QStringLiteral("U"), { { key(1), other } });
    writeAll(path, document.toByteArray(4));
}

QHash<QString, TranslationSource::Messages> messagesOf(const QString &path)
{
    QDomDocument document;
    TranslationXml::parse(readAll(path), document);
    return TranslationSource::readMessages(document);
}

bool runTool(const char *name, const QStringList &arguments)
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::BinariesPath);
    return QProcess::execute(folder + QLatin1Char('/') + QLatin1String(name), arguments) == 0;
}

/// The document with its two languages, and nothing else of the program.
struct Writing : public DocumentContext
{
    QString translate(const QString &key) const override { return mTranslation.translate(key); }
    QString applyTranslationToText(const QString &text, QStringList &errors) const override
    {
        return mTranslation.applyTranslationToText(text, errors);
    }
    void setPendingJumpLink(const QString &) override { }
    void setModified(bool) override { }

    bool load()
    {
        mTranslation.beginLoad(kTutorial);
        const bool loaded = mDocument.setContents(kScenario).isEmpty();
        mTranslation.endLoad();
        return loaded;
    }
    bool save()
    {
        return mTranslation.feedbackTranslation() && mTranslation.saveTranslation() && mDocument.save().isEmpty();
    }

    TutorialEditor::Manager mDocument;
    TutorialTranslation mTranslation{ true, qApp, mDocument.mData };
};
} // namespace

class tst_TutorialTranslation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void keepsEachLanguageInItsFile();
    void keepsWhatOthersWrote();
    void keepsFilesThatCantBeRead();
    void suitsTheToolsOfTheFormat();
    void savesAllOrTellsWhatFailed_data();
    void savesAllOrTellsWhatFailed();

private:
    TutorialItemData *item(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    QString hints(int id) { return item(id)->mHint + QLatin1Char('/') + item(id)->mHint2; }
    QList<QByteArray> files() { return { readAll(kScenario), readAll(kJapaneseFile), readAll(kEnglishFile) }; }

    const QString mFormerFolder = QDir::currentPath();
    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<Writing> mWriting;
    QList<QByteArray> mFiles;
    WarningGuard mWarnings;
};

void tst_TutorialTranslation::init()
{
    mWarnings.begin();
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder->path());
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/qml/Tutorial")));
    QVERIFY(QDir().mkpath(QStringLiteral("tutorial-win/translations")));
    QStringList items;
    for (int id = 1; id <= kItems; ++id)
        items.append(QStringLiteral("{\"id\":%1,\"hint\":qsTr(\"#%1\")}").arg(id));
    writeAll(kScenario, '[' + items.join(QLatin1Char(',')).toUtf8() + ']');
    writeSource(kJapaneseFile, { { key(1), QString::fromUtf8("一") }, { key(2), QString() } }, QStringLiteral("other"));
    writeSource(kEnglishFile, { { key(1), QStringLiteral("one \"\\\n<b>") } }, QStringLiteral("other"));
    const QList<QByteArray> before = files();
    mWriting = std::make_unique<Writing>();
    QVERIFY(mWriting->load() && mWriting->save());
    // The scenario in its stored form, and the sources as they were.
    mFiles = files();
    QCOMPARE(mFiles.mid(1), before.mid(1));
}

void tst_TutorialTranslation::cleanup()
{
    mWriting.reset();
    qDeleteAll(qApp->findChildren<QTranslator *>());
    QDir::setCurrent(mFormerFolder);
    mFolder.reset();
    mWarnings.end();
}

void tst_TutorialTranslation::keepsEachLanguageInItsFile()
{
    QCOMPARE(hints(1) + hints(2), QString::fromUtf8("一/one \"\\\n<b>/#2"));
    item(1)->setHint(QString::fromUtf8("新"));
    item(2)->setHint2(QString());
    item(3)->setHint2(QStringLiteral(" "));
    TutorialTranslation &translation = mWriting->mTranslation;
    QStringList told;
    connect(&translation, &TutorialTranslation::localeChanged, this, [&] { told.append(translation.locale()); });
    connect(&translation, &TutorialTranslation::locale2Changed, this, [&] { told.append(translation.locale2()); });
    // Until they are loaded again the items show the languages of their load.
    for (const QString &locale : { kEnglish, kEnglish }) {
        translation.setLocale(locale);
        QVERIFY(mWriting->save());
    }
    QCOMPARE(told, (QStringList{ kJapanese, kEnglish }));
    const QList<QByteArray> saved = files();
    QVERIFY(saved.at(0) == mFiles.at(0) && saved.at(1).contains("新") && saved.at(2).contains("> <"));
    for (const QString &locale : { kJapanese, kEnglish }) {
        translation.setLocale(locale);
        QVERIFY(mWriting->load());
    }
    QCOMPARE(hints(1) + hints(2) + hints(3), QString::fromUtf8("one \"\\\n<b>/新/ /#3"));

    // With a language that has no source the second one changes, and each goes to its own file still.
    mWarnings.expect(QStringLiteral("translation file not found"));
    translation.setLocale(QStringLiteral("Raw"));
    QCOMPARE(translation.locale2(), kJapanese);
    QVERIFY(mWriting->save());
    QCOMPARE(files(), saved);
    // Each change has installed a catalog, and is remembered.
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), 4);
    QCOMPARE(TutorialTranslation(false, nullptr, mWriting->mDocument.mData).locale(), QStringLiteral("Raw"));
}

void tst_TutorialTranslation::keepsWhatOthersWrote()
{
    // A text that is not there stands for a missing message, and for a hint that is not edited.
    enum Column { Name, Before, Own, Theirs, After, Columns };
    const char *const rows[][Columns] = {
        { "untouched", "a", nullptr, "a", "a" },
        { "edited", "a", "b", "a", "b" },
        { "emptied", "a", "", "a", "" },
        { "changed by others", "a", nullptr, "b", "b" },
        { "emptied by others", "a", nullptr, "", "" },
        { "added by others", nullptr, nullptr, "b", "b" },
        { "removed by others", "a", nullptr, nullptr, "a" },
        { "changed alike", "a", "b", "b", "b" },
        { "changed by both", "a", "b", "c", "b" },
        { "added by both", nullptr, "b", "c", "b" },
    };
    constexpr int count = sizeof(rows) / sizeof(*rows);
    const auto entries = [&rows](Column column) {
        QVector<Entry> result;
        for (int i = 0; i < count; ++i) {
            if (rows[i][column])
                result.append({ key(i + 1), QLatin1String(rows[i][column]) });
        }
        return result;
    };
    writeSource(kEnglishFile, entries(Before), QStringLiteral("other"));
    QVERIFY(mWriting->load());
    for (const Entry &own : entries(Own))
        item(own.source.midRef(1).toInt())->setHint2(own.translation);
    writeSource(kEnglishFile, entries(Theirs), QStringLiteral("another"));
    mWarnings.expect(QStringLiteral("changed here and in the file"), 2);
    QSignalSpy taken(&mWriting->mTranslation, &TutorialTranslation::hintsTaken);
    // What others wrote is on the screen at once, and no edit for the save after that.
    QVERIFY(mWriting->save() && mWriting->save());
    QCOMPARE(taken.size(), 1);
    for (const bool loaded : { false, true }) {
        QVERIFY(!loaded || mWriting->load());
        for (int i = 0; i < count; ++i)
            QVERIFY2(item(i + 1)->mHint2 == QLatin1String(rows[i][After]), rows[i][Name]);
    }
    QVERIFY(readAll(kEnglishFile).contains(">another<"));

    // Nor is what was saved, so that theirs counts from then on.
    item(1)->setHint2(QStringLiteral("mine"));
    QVERIFY(mWriting->save());
    writeAll(kEnglishFile, readAll(kEnglishFile).replace(">mine<", ">theirs<"));
    QVERIFY(mWriting->save());
    QCOMPARE(item(1)->mHint2, QStringLiteral("theirs"));
}

void tst_TutorialTranslation::keepsFilesThatCantBeRead()
{
    TutorialTranslation &translation = mWriting->mTranslation;
    // Where there is nothing, nothing can be lost.
    writeAll(kEnglishFile, "\n");
    QVERIFY(mWriting->save());
    QCOMPARE(files(), mFiles);

    const QByteArray broken = "<<<<<<<" + mFiles.at(2);
    writeAll(kEnglishFile, broken);
    mWarnings.expect(QStringLiteral("Failed to setContents"), 2);
    mWarnings.expect(QStringLiteral("Failed to save"), 2);
    QVERIFY(!translation.feedbackTranslation());
    QVERIFY(!translation.loadTranslation() && !translation.saveTranslation());
    QCOMPARE(readAll(kEnglishFile), broken);
}

void tst_TutorialTranslation::suitsTheToolsOfTheFormat()
{
    const QStringList plain = QString::fromUtf8(" |\n|\t|\x7f|\u0085|\u00a0|\u2028|\u3000|😀|次へ|שלום|<b>&amp;|]]>|\"'|"
                                                "\\|%1|%n|<byte value=\"x9\"/>|a|b")
                                  .split(QLatin1Char('|'));
    // These can stand in no XML but that of translation sources.
    const QStringList nasty = plain + QString::fromUtf8("\r|\r\n|\x01|\x1f").split(QLatin1Char('|'))
        + QStringList{ QChar(0xfffe), QChar(0xffff), QChar(0xd800), QChar(0xdc00) };
    QRandomGenerator random(99);
    const auto text = [&random](const QStringList &parts) {
        QString result;
        for (int count = random.bounded(6); count > 0; --count)
            result += parts.at(random.bounded(parts.size()));
        return result;
    };
    for (int round = 0; round < 2; ++round) {
        for (int id = 1; id <= kItems; ++id) {
            item(id)->setHint(text(nasty));
            item(id)->setHint2(text(plain));
        }
        QVERIFY(mWriting->save());
    }
    QDomDocument document;
    QVERIFY(TranslationXml::parse(readAll(kJapaneseFile), document));
    QCOMPARE(document.toByteArray(4), readAll(kJapaneseFile));

    const QString catalog = QStringLiteral("a.qm");
    QVERIFY(runTool("lrelease", { QStringLiteral("-silent"), kJapaneseFile, QStringLiteral("-qm"), catalog }));
    QTranslator translator;
    QVERIFY(translator.load(catalog));
    const TranslationSource::Messages japanese = messagesOf(kJapaneseFile).value(kTutorial);
    for (int id = 1; id <= kItems; ++id) {
        QCOMPARE(translator.translate(qPrintable(kTutorial), qPrintable(key(id))), item(id)->mHint);
        QCOMPARE(japanese.value(key(id), key(id)), item(id)->mHint);
    }

    const auto messages = messagesOf(kEnglishFile);
    QCOMPARE(messages.value(kTutorial).size(), kItems);
    const QString xliff = QStringLiteral("a.xlf");
    QVERIFY(runTool("lconvert", { kEnglishFile, QStringLiteral("-o"), xliff }) && QFile::remove(kEnglishFile));
    QVERIFY(runTool("lconvert", { xliff, QStringLiteral("-o"), kEnglishFile }));
    QCOMPARE(messagesOf(kEnglishFile), messages);

    // It reads scenarios, too: a file's base name is the context of its texts.
    writeAll(QStringLiteral("tutorial-win/qml/U.js"), "var texts = [qsTr(\"#1\"), qsTr(\"new\")];");
    QVERIFY(runTool(
        "lupdate",
        { QStringLiteral("-silent"), QStringLiteral("tutorial-win/qml"), QStringLiteral("-ts"), kEnglishFile }));
    QVERIFY(readAll(kEnglishFile).contains("<source>new<"));
    QCOMPARE(messagesOf(kEnglishFile), messages);
}

void tst_TutorialTranslation::savesAllOrTellsWhatFailed_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("command") << QStringLiteral("Failed to save.");
    QTest::newRow("hint") << QStringLiteral("Failed to save translation.");
    QTest::newRow("hint2") << QStringLiteral("Failed to save translation.");
}

void tst_TutorialTranslation::savesAllOrTellsWhatFailed()
{
    mWriting.reset();
    TutorialManager manager(nullptr, nullptr);
    mWarnings.expect(QStringLiteral("UndoRedo::UndoRedo"));
    const std::unique_ptr<QObject> history(UndoRedo::create(nullptr, nullptr));
    // A plain hint goes to the sources.
    writeAll(kScenario, "[{\"id\":1,\"hint\":\"plain\"}]");
    QCOMPARE(manager.loadTutorial(kScenario), QString());
    QCOMPARE(manager.save(), QString());
    const QList<QByteArray> before = files();
    QVERIFY(before.at(0).contains("qsTr(\"#1\")") && before.at(1).contains(">plain<") && before.at(2) == mFiles.at(2));

    const QByteArray text(10000, 'x');
    UndoRedo::instance()->beginSequence(QString());
    item(1)->setValue(QString::fromLatin1(QTest::currentDataTag()), QString::fromLatin1(text));
    item(1)->setWindowKey(QStringLiteral("edited"));
    UndoRedo::instance()->endSequence();
    {
        const FileSizeLimit fullDisk(8192);
        mWarnings.expect(QStringLiteral("write bytes differs"), 2);
        if (QTest::currentDataTag() != QByteArray("command"))
            mWarnings.expect(QStringLiteral("Failed to save"));
        QTEST(manager.save(), "message");
        TutorialEditor::Manager::instance()->save(QString::fromLatin1(text));
    }
    QCOMPARE(files(), before);
    QVERIFY(manager.isModified());
    QCOMPARE(manager.save(), QString());
    QVERIFY(files().join().contains(text));
    QVERIFY(!manager.isModified());

    // What it takes over from others is shown.
    QSignalSpy replaced(&manager, &TutorialManager::documentReplaced);
    writeSource(kJapaneseFile, { { key(1), QStringLiteral("theirs") } }, QStringLiteral("other"));
    QCOMPARE(manager.save(), QString());
    QCOMPARE(replaced.size(), 1);

    // What could not be read is not saved, nor are the hints that stayed. A folder can't be read.
    const QList<QByteArray> saved = files();
    QCOMPARE(manager.loadTutorial(QStringLiteral("tutorial-win/qml")), QString());
    QCOMPARE(manager.save(), QStringLiteral("Failed to save."));
    QCOMPARE(files(), saved);
}

QTEST_MAIN(tst_TutorialTranslation)
#include "tst_TutorialTranslation.moc"
