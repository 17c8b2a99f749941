#include "support/FileBytes.h"
#include "support/WarningGuard.h"
#include "tool/DataSupport.h"
#include "Tutorial/ProcessGlobals.h"
#include "Tutorial/translation/TranslationSource.h"
#include "Tutorial/translation/TranslationXml.h"
#include "Tutorial/TutorialManager.h"
#include "TutorialEditor/Manager.h"

#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

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

TranslationSource::Messages readMessages(const QString &path)
{
    QDomDocument document;
    TranslationXml::parse(readAll(path), document);
    return TranslationSource::readMessages(document).value(kTutorial);
}

bool runTool(const char *name, const QStringList &arguments)
{
    const QString folder = QLibraryInfo::location(QLibraryInfo::BinariesPath);
    return QProcess::execute(folder + QLatin1Char('/') + QLatin1String(name), arguments) == 0;
}
} // namespace

class tst_TutorialTranslation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mWarnings.begin();
        mFolder = std::make_unique<QTemporaryDir>();
        QVERIFY(mFolder->isValid() && QDir::setCurrent(mFolder->path()));
        QCoreApplication::setOrganizationName(QStringLiteral("Trelvane tests"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder->path());
        // Windows has them at a place of its own.
        QSettings().clear();
        QStringList items;
        for (int id = 1; id <= kItems; ++id)
            items.append(QStringLiteral("{\"id\":%1,\"hint\":qsTr(\"#%1\")}").arg(id));
        writeAll(kScenario, '[' + items.join(QLatin1Char(',')).toUtf8() + ']');
        writeSource(kJapaneseFile, { { key(1), QString::fromUtf8("一") }, { key(2), QString() } },
                    QStringLiteral("other"));
        writeSource(kEnglishFile, { { key(1), QStringLiteral("one \"\\\n<b>") } }, QStringLiteral("other"));
        const QList<QByteArray> before = files();
        applicationObject = qApp;
        mManager = std::make_unique<TutorialManager>(nullptr, nullptr);
        QVERIFY(load() && save());
        // The scenario in its stored form, and the sources as they were.
        mFiles = files();
        QCOMPARE(mFiles.mid(1), before.mid(1));
    }
    void cleanup()
    {
        mManager.reset();
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QDir::setCurrent(QDir::rootPath());
        mWarnings.end();
    }

    void keepsEachLanguageInItsFile();
    void keepsWhatOthersWrote();
    void keepsFilesThatCantBeRead();
    void suitsTheToolsOfTheFormat();
    void savesWhatWasRead();

private:
    TutorialItemData *item(int id) { return TutorialEditor::Manager::instance()->mData.getData(id); }
    QString hints(int id) { return item(id)->mHint + QLatin1Char('/') + item(id)->mHint2; }
    QList<QByteArray> files() { return { readAll(kScenario), readAll(kJapaneseFile), readAll(kEnglishFile) }; }
    bool load() { return mManager->loadTutorial(kScenario).isEmpty(); }
    bool save() { return mManager->save().isEmpty(); }

    std::unique_ptr<QTemporaryDir> mFolder;
    std::unique_ptr<TutorialManager> mManager;
    QList<QByteArray> mFiles;
    WarningGuard mWarnings;
};

void tst_TutorialTranslation::keepsEachLanguageInItsFile()
{
    QCOMPARE(hints(1) + hints(2), QString::fromUtf8("一/one \"\\\n<b>/#2"));
    item(1)->setHint(QString::fromUtf8("新"));
    item(2)->setHint2(QString());
    item(3)->setHint2(QStringLiteral(" "));
    // Until they are loaded again the items show the languages of their load.
    mManager->setLocale(kEnglish);
    QVERIFY(save());
    const QList<QByteArray> saved = files();
    QVERIFY(saved.at(0) == mFiles.at(0) && saved.at(1).contains("新") && saved.at(2).contains("> <"));
    for (const QString &locale : { kJapanese, kEnglish }) {
        mManager->setLocale(locale);
        QVERIFY(load());
    }
    QCOMPARE(hints(1) + hints(2) + hints(3), QString::fromUtf8("one \"\\\n<b>/新/ /#3"));
    // Without the file they are the same items in the other language.
    QVERIFY(QFile::remove(kScenario));
    mManager->setLocale(kJapanese);
    mManager->reload();
    QCOMPARE(hints(1), QString::fromUtf8("新/one \"\\\n<b>"));
    QVERIFY(save());
    QCOMPARE(files(), saved);
    mManager->setLocale(kEnglish);
    QVERIFY(load());

    // With a language that has no source the second one changes, and each goes to its own file still.
    mWarnings.expect(QStringLiteral("translation file not found"));
    mManager->setLocale(QStringLiteral("Raw"));
    QCOMPARE(mManager->locale2(), kJapanese);
    QVERIFY(save());
    QCOMPARE(files(), saved);
    // Each catalog is installed once, and the last choice is remembered.
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), 2);
    mManager.reset();
    QCOMPARE(TutorialManager(nullptr, nullptr).locale(), QStringLiteral("Raw"));
}

void tst_TutorialTranslation::keepsWhatOthersWrote()
{
    // What stands in the file, the edit, what others write into the file, and what comes of it. A dash stands
    // for nothing, a nought for the empty text.
    enum Column { Before, Own, Theirs, After };
    const QStringList rows = { QStringLiteral("abab"), QStringLiteral("a0a0"), QStringLiteral("a-bb"),
                               QStringLiteral("a-00"), QStringLiteral("--bb"), QStringLiteral("a--a"),
                               QStringLiteral("abbb"), QStringLiteral("abcb"), QStringLiteral("-bcb") };
    const auto entries = [&rows](Column column) {
        QVector<Entry> result;
        for (int i = 0; i < rows.size(); ++i) {
            const QString text = rows.at(i).mid(column, 1);
            if (text != QLatin1String("-"))
                result.append({ key(i + 1), text == QLatin1String("0") ? QString() : text });
        }
        return result;
    };
    writeSource(kEnglishFile, entries(Before), QStringLiteral("other"));
    QVERIFY(load());
    for (const Entry &own : entries(Own))
        item(own.source.midRef(1).toInt())->setHint2(own.translation);
    writeSource(kEnglishFile, entries(Theirs), QStringLiteral("another"));
    mWarnings.expect(QStringLiteral("changed here and in the file"), 2);
    QSignalSpy shown(mManager.get(), &TutorialManager::documentReplaced);
    // What others wrote is on the screen at once, and no edit for the save after that.
    QVERIFY(save() && save());
    QCOMPARE(shown.size(), 1);
    for (const bool loaded : { false, true }) {
        QVERIFY(!loaded || load());
        for (const Entry &after : entries(After)) {
            const int id = after.source.midRef(1).toInt();
            QVERIFY2(item(id)->mHint2 == after.translation, qPrintable(rows.at(id - 1)));
        }
    }
    QVERIFY(readAll(kEnglishFile).contains(">another<"));

    // Nor is what was saved, so that theirs counts from then on.
    item(1)->setHint2(QStringLiteral("mine"));
    QVERIFY(save());
    writeAll(kEnglishFile, readAll(kEnglishFile).replace(">mine<", ">theirs<"));
    QVERIFY(save());
    QCOMPARE(item(1)->mHint2, QStringLiteral("theirs"));
}

void tst_TutorialTranslation::keepsFilesThatCantBeRead()
{
    // Where there is nothing, nothing can be lost.
    writeAll(kEnglishFile, "\n");
    QVERIFY(save());
    QCOMPARE(files(), mFiles);

    const QByteArray broken = "<<<<<<<" + mFiles.at(2);
    writeAll(kEnglishFile, broken);
    mWarnings.expect(QStringLiteral("Failed to setContents"), 2);
    mWarnings.expect(QStringLiteral("Failed to save"), 2);
    QVERIFY(!mManager->feedbackTranslation() && !mManager->loadTranslation() && !mManager->saveTranslation());
    QCOMPARE(readAll(kEnglishFile), broken);

    // The other language is read all the same.
    writeAll(kJapaneseFile, broken);
    writeAll(kEnglishFile, mFiles.at(2));
    mWarnings.expect(QStringLiteral("Failed to setContents"));
    QVERIFY(load());
    QCOMPARE(item(1)->mHint2, QStringLiteral("one \"\\\n<b>"));
}

void tst_TutorialTranslation::suitsTheToolsOfTheFormat()
{
    // The last ones can stand in no XML but that of translation sources.
    const QStringList parts =
        QString::fromUtf8(" |\n|\t|\x7f|\u0085|\u00a0|\u2028|\u3000|😀|次へ|שלום|<b>&amp;|]]>|\"'|\\|"
                          "%1|%n|<byte value=\"x9\"/>|a|b|\r|\r\n|\x01|\x1f")
            .split(QLatin1Char('|'))
        + QStringList{ QChar(0xfffe), QChar(0xffff), QChar(0xd800), QChar(0xdc00) };
    QRandomGenerator random(99);
    QStringList saved;
    for (int id = 1; id <= kItems; ++id) {
        QString text;
        for (int count = random.bounded(6); count > 0; --count)
            text += parts.at(random.bounded(parts.size()));
        item(id)->setHint2(text);
        saved.append(text);
    }
    item(3)->setHint(QString::fromUtf8("<b>次 へ\n"));
    QVERIFY(save() && save());
    const QString catalog = QStringLiteral("a.qm");
    QVERIFY(runTool("lrelease", { kEnglishFile, QStringLiteral("-silent"), QStringLiteral("-qm"), catalog }));
    QTranslator translator;
    QVERIFY(translator.load(catalog) && load());
    for (int id = 1; id <= kItems; ++id) {
        QCOMPARE(translator.translate(qPrintable(kTutorial), qPrintable(key(id))), saved.at(id - 1));
        QCOMPARE(item(id)->mHint2, saved.at(id - 1));
    }

    // What can stand in any XML goes to a translator and back, and stays where the texts are collected anew.
    const QString exchange = QStringLiteral("a.xlf");
    const QString script = QStringLiteral("new.js");
    const TranslationSource::Messages messages = readMessages(kJapaneseFile);
    QCOMPARE(messages.value(key(3)), QString::fromUtf8("<b>次 へ\n"));
    QVERIFY(runTool("lconvert", { kJapaneseFile, QStringLiteral("-o"), exchange }));
    QVERIFY(runTool("lconvert", { exchange, QStringLiteral("-o"), kJapaneseFile }));
    QCOMPARE(readMessages(kJapaneseFile), messages);
    writeAll(script, "qsTr(\"new\")");
    QVERIFY(runTool("lupdate", { QStringLiteral("-silent"), kScenario, script, QStringLiteral("-ts"), kJapaneseFile }));
    QVERIFY(readAll(kJapaneseFile).contains("<source>new</source>"));
    // Where a hint is missing, the tool suggests that of a similar key.
    const TranslationSource::Messages updated = readMessages(kJapaneseFile);
    for (const QString &source : messages.keys())
        QCOMPARE(updated.value(source), messages.value(source));
}

void tst_TutorialTranslation::savesWhatWasRead()
{
    // A plain hint goes to the sources.
    writeAll(kScenario, "[{\"id\":1,\"hint\":\"plain\"}]");
    QVERIFY(load() && save());
    QVERIFY(files().at(0).contains("qsTr(\"#1\")") && files().at(1).contains(">plain<"));
    QCOMPARE(files().at(2), mFiles.at(2));

    // A device and a pipe may have no end, and a file can be too large.
    const QList<QByteArray> kept = files();
    const auto makeStrange = [](int kind, const QString &file) {
        QFile::remove(file);
#ifdef Q_OS_UNIX
        if (kind > 0)
            return kind == 1 ? mkfifo(qPrintable(file), 0600) == 0 : QFile::link(QStringLiteral("/dev/zero"), file);
#endif
        QFile strange(file);
        return kind == 0 && strange.open(QFile::WriteOnly) && strange.resize(DataSupport::kMostBytes + 1);
    };
#ifdef Q_OS_UNIX
    const int kinds = 3;
#else
    const int kinds = 1;
#endif
    for (int kind = 0; kind < kinds; ++kind) {
        QVERIFY(load() && makeStrange(kind, kEnglishFile));
        mWarnings.expect(QStringLiteral("Failed to open"));
        mWarnings.expect(QStringLiteral("Failed to save"));
        QCOMPARE(mManager->save(), QStringLiteral("Failed to save translation."));
        QVERIFY(QFile::remove(kEnglishFile));
        writeAll(kEnglishFile, kept.at(2));
        QVERIFY(makeStrange(kind, kScenario) && mManager->isChangedOnDisk());
        const QString error = mManager->loadTutorial(kScenario);
        QVERIFY2(error.startsWith(QLatin1String(kind > 0 ? "It is no file" : "It is larger than 64 MiB")),
                 qPrintable(error));
        QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
        QVERIFY(QFile::remove(kScenario));
        writeAll(kScenario, kept.at(0));
    }
    // What could not be read is not saved, nor are the hints that stayed. A folder can't be read.
    const QList<QByteArray> saved = files();
    QCOMPARE(mManager->loadTutorial(QStringLiteral("tutorial-win/qml")), QString());
    QCOMPARE(mManager->save(), QStringLiteral("Failed to save."));
    QCOMPARE(files(), saved);
}

QTEST_MAIN(tst_TutorialTranslation)
#include "tst_TutorialTranslation.moc"
