#include "support/ManagerFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QProcess>
#include <QResource>

using namespace ManagerFixture;

namespace
{
const QByteArray kPreset("\x00\x01preset\xff\n", 10);

/// A root object as the screens have it.
class Root : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE QVariant requestCoffeeJs(const QVariant &key, const QVariant &source)
    {
        mRequests.append(key.toString() + QLatin1Char(':') + source.toString());
        return QVariant();
    }

    QStringList mRequests;
};
} // namespace

class tst_TutorialManager : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { begin(); }
    void cleanup() { end(); }

    void namesTutorials_data();
    void namesTutorials();
    void loadsAndHandsOver();
    void sendsNoStartForABrokenScenario();
    void sendsTheScenarioThatIsThere();
    void keepsPlaceMarkers();
    void unloads();
    void sendsTheTutorialList();
    void sendsPresetData();
    void compilesCoffeeScript();
    void defersJumpLinks();
    void switchesTheLocale();
    void installsTranslatorsForTheHost_data();
    void installsTranslatorsForTheHost();
};

void tst_TutorialManager::initTestCase()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const auto write = [&folder](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write("Broken.js", "var scenario = [{\"id\":1,\"hint\":qsTr(\"open];"));
    QVERIFY(write("Percent.js", "var scenario = [{\"id\":7,\"name\":\"%2\",\"hint\":\"%1 and %3\"}];"));
    QVERIFY(write("a.bin", kPreset));
    QVERIFY(write("a.qrc",
                  "<RCC><qresource prefix=\"/qml/Tutorial\"><file>Broken.js</file><file>Percent.js</file></qresource>"
                  "<qresource prefix=\"/resource/preset\"><file>a.bin</file></qresource></RCC>"));
    QProcess process;
    process.start(QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/rcc"),
                  { QStringLiteral("--binary"), folder.filePath(QStringLiteral("a.qrc")), QStringLiteral("-o"),
                    folder.filePath(QStringLiteral("a.rcc")) });
    QVERIFY(process.waitForFinished() && process.exitCode() == 0);
    QVERIFY(QResource::registerResource(folder.filePath(QStringLiteral("a.rcc"))));
}

void tst_TutorialManager::namesTutorials_data()
{
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *filename, const char *name) {
        QTest::newRow(filename) << QString::fromLatin1(filename) << QString::fromLatin1(name);
    };
    row("C:/a/b.c.js", "b.c");
    row("name", "name");
    row("NAME.JS", "NAME.JS");
    row("a.js/b", "b");
    row("a/b.js.js", "b.js");
    row("a/.js", "");
}

void tst_TutorialManager::namesTutorials()
{
    QFETCH(QString, filename);
    QFETCH(QString, name);
    QSignalSpy nameChanged(mManager.get(), &TutorialManager::tutorialNameChanged);
    QSignalSpy replaced(mManager.get(), &TutorialManager::documentReplaced);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(mManager->loadTutorial(filename), QString());
    QCOMPARE(mManager->tutorialName(), name);
    QCOMPARE(nameChanged.size(), name.isEmpty() ? 0 : 1);
    QCOMPARE(replaced.size(), 2);
}

void tst_TutorialManager::loadsAndHandsOver()
{
    mManager->receive("tutorial|TutorialSideViewStep1");
    const QStringList raw = mHost->next();
    QCOMPARE(raw.size(), 3);
    QCOMPARE(raw.at(0), QStringLiteral("start"));
    QCOMPARE(raw.at(2), QStringLiteral("-1"));
    QVERIFY(raw.at(1).contains(QLatin1String("\"hint\":\"#1\"")));

    // The language is the one of the moment of the load.
    mManager->receive("fromServer|-");
    mManager->startFromId(12);
    QStringList fields = mHost->next();
    QVERIFY(fields.value(1).contains(QLatin1String("\"hint\":\"#1\"")));
    QCOMPARE(fields.value(2), QStringLiteral("12"));
    mManager->receive("tutorial|TutorialSideViewStep1");
    QString text = mHost->next().value(1);
    QVERIFY(text.startsWith(QLatin1String("var scenario = [\n")) && text.endsWith(QLatin1String("\n];")));
    text = text.mid(15);
    text.chop(1);
    const QJsonArray items = QJsonDocument::fromJson(text.toUtf8()).array();
    QCOMPARE(items.size(), 2);
    QCOMPARE(items.at(0).toObject().value(QLatin1String("hint")).toString(),
             QString::fromUtf8("これはサイドビューチュートリアルのダミーです。"));
    QCOMPARE(items.at(1).toObject().value(QLatin1String("name")).toString(), QString::fromUtf8("項目001"));
}

void tst_TutorialManager::sendsNoStartForABrokenScenario()
{
    mManager->receive("tutorial|TutorialTopViewStep1");
    QCOMPARE(mHost->next().value(0), QStringLiteral("start"));
    mWarnings.expect(QStringLiteral("Json parse error"));
    mWarnings.expect(QStringLiteral("Failed to loadTutorial \"not matched"));
    mManager->receive("tutorial|Broken");
    QVERIFY(mHost->silent(*mManager));
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Broken"));
    mWarnings.expect(QStringLiteral("Json parse error"));
    const QStringList errors =
        mManager->loadTutorial(QStringLiteral(":/qml/Tutorial/Broken.js")).split(QLatin1Char('\n'));
    QCOMPARE(errors.size(), 2);
    QCOMPARE(errors.last(), QStringLiteral("json is not array"));
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), QStringLiteral("var scenario = [\n\n];"));
}

void tst_TutorialManager::sendsTheScenarioThatIsThere()
{
    mManager->startFromId(3);
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("start|var scenario = [\n\n];|3"));
    mManager->receive("tutorial|TutorialTopViewStep1");
    const QStringList loaded = mHost->next();
    mManager->receive("tutorial|Missing");
    QCOMPARE(mHost->next(), loaded);
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Missing"));
}

void tst_TutorialManager::keepsPlaceMarkers()
{
    mManager->receive("tutorial|Percent");
    const QStringList fields = mHost->next();
    QCOMPARE(fields.size(), 3);
    QVERIFY(fields.at(1).contains(QLatin1String("\"name\":\"%2\",")));
    QVERIFY(fields.at(1).contains(QLatin1String("\"hint\":\"%1 and %3\",")));
    QCOMPARE(fields.at(2), QStringLiteral("-1"));
}

void tst_TutorialManager::unloads()
{
    QSignalSpy nameChanged(mManager.get(), &TutorialManager::tutorialNameChanged);
    mManager->unload();
    QCOMPARE(nameChanged.size(), 0);
    mManager->loadTutorial(QStringLiteral(":/qml/Tutorial/Percent.js"));
    mManager->unload();
    QCOMPARE(nameChanged.size(), 2);
    QCOMPARE(mManager->tutorialName(), QString());
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), QStringLiteral("var scenario = [\n\n];"));
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
}

void tst_TutorialManager::sendsTheTutorialList()
{
    const auto titles = [this] {
        mManager->receive("tutorialList");
        const QStringList fields = mHost->next();
        if (fields.size() != 2 || fields.first() != QLatin1String("tutorialList"))
            return QStringList();
        QStringList found;
        const QJsonArray groups = QJsonDocument::fromJson(fields.last().toUtf8()).array();
        for (const QJsonValue &group : groups) {
            found.append(group.toObject().value(QLatin1String("title")).toString());
            const QJsonArray contents = group.toObject().value(QLatin1String("contents")).toArray();
            for (const QJsonValue &entry : contents) {
                found.append(entry.toObject().value(QLatin1String("filename")).toString());
                found.append(entry.toObject().value(QLatin1String("title")).toString());
            }
        }
        return found;
    };
    QCOMPARE(titles(),
             (QStringList{ QStringLiteral("Side-view"), QStringLiteral("TutorialSideViewStep1"),
                           QStringLiteral("Step 1: Side-view Basics"), QStringLiteral("Top-view"),
                           QStringLiteral("TutorialTopViewStep1"), QStringLiteral("Step 1: Top-view Basics") }));
    mManager->receive("fromServer");
    QCOMPARE(titles().value(0), QString::fromUtf8("サイドビュー"));
    QCOMPARE(titles().value(5), QString::fromUtf8("ステップ１：トップビューの基本"));
}

void tst_TutorialManager::sendsPresetData()
{
    mManager->receive("requestPresetData|a.bin");
    QCOMPARE(mHost->next(),
             (QStringList{ QStringLiteral("feedbackPresetData"), QString::fromLatin1(kPreset.toBase64()) }));
    mWarnings.expect(QStringLiteral("presetData not found \":/resource/preset/b.bin\" \"b.bin\""));
    mManager->receive("requestPresetData|b.bin");
    QVERIFY(mHost->silent(*mManager));
}

void tst_TutorialManager::compilesCoffeeScript()
{
    mManager->receive("coffeeJs|5|lost");
    Root root;
    rootObject = &root;
    mManager->receive("coffeeJs|5|\"a = 1\"");
    mManager->receive("coffeeJs");
    QCOMPARE(root.mRequests, (QStringList{ QStringLiteral("5:\"a = 1\""), QStringLiteral(":") }));
    mManager->callbackCoffeeJs(5, QStringLiteral("{\"%1\":\"%2\"}"));
    QCOMPARE(mHost->next().join(QLatin1Char('|')), QStringLiteral("callbackCoffeeJs|5|{\"%1\":\"%2\"}"));
}

void tst_TutorialManager::defersJumpLinks()
{
    QSignalSpy changed(mManager.get(), &TutorialManager::jumpLinkChanged);
    mManager->setPendingJumpLink(QStringLiteral("a"));
    mManager->setPendingJumpLink(QStringLiteral("b"));
    QCOMPARE(changed.size(), 0);
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("b"));
    mManager->onTimerTimeout();
    QCOMPARE(changed.size(), 1);
    // A link that is set from inside the signal is not lost.
    connect(mManager.get(), &TutorialManager::jumpLinkChanged, mManager.get(), [this](const QString &link) {
        if (link == QLatin1String("c"))
            mManager->setPendingJumpLink(QStringLiteral("d"));
    });
    mManager->setPendingJumpLink(QStringLiteral("c"));
    mManager->onTimerTimeout();
    mManager->onTimerTimeout();
    QCOMPARE(changed.last().first().toString(), QStringLiteral("d"));
}

void tst_TutorialManager::switchesTheLocale()
{
    QStringList signalNames;
    connect(mManager.get(), &TutorialManager::localeChanged, mManager.get(),
            [&] { signalNames += QStringLiteral("1"); });
    connect(mManager.get(), &TutorialManager::locale2Changed, mManager.get(),
            [&] { signalNames += QStringLiteral("2"); });
    const auto state = [&] {
        const QString text = QStringList{ mManager->locale(), mManager->locale2(), signalNames.join(QString()),
                                          QString::number(qApp->findChildren<QTranslator *>().size()),
                                          QSettings().value(QStringLiteral("debugLocale")).toString() }
                                 .join(QLatin1Char(' '));
        signalNames.clear();
        return text;
    };
    QCOMPARE(state(), QStringLiteral("ja_JP en_US  0 "));
    mManager->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(state(), QStringLiteral("ja_JP en_US  0 "));
    mManager->setLocale(QStringLiteral("en_US"));
    QCOMPARE(state(), QStringLiteral("en_US ja_JP 21 1 en_US"));
    mManager->setLocale2(QStringLiteral("Raw"));
    QCOMPARE(state(), QStringLiteral("en_US Raw 2 1 en_US"));
    mManager->setLocale(QStringLiteral("ja_JP"));
    QCOMPARE(state(), QStringLiteral("ja_JP en_US 21 2 ja_JP"));
    const QString next = QCoreApplication::translate("TutorialIndicator", "Next");
    QCOMPARE(next, QString::fromUtf8("次へ"));
    // The catalog of before goes on answering for what the new one lacks.
    mManager->setLocale(QStringLiteral("en_US"));
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), next);
    mManager->setLocale(QStringLiteral("Raw"));
    QCOMPARE(state(), QStringLiteral("Raw ja_JP 211 4 Raw"));

    mManager.reset();
    mManager = std::make_unique<Manager>();
    QCOMPARE(mManager->locale(), QStringLiteral("Raw"));
    QCOMPARE(mManager->locale2(), QStringLiteral("ja_JP"));
}

void tst_TutorialManager::installsTranslatorsForTheHost_data()
{
    QTest::addColumn<QByteArray>("message");
    QTest::addColumn<int>("translators");
    QTest::addColumn<QString>("next");

    QTest::newRow("Japanese") << QByteArray("fromServer|ja_JP") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("English") << QByteArray("fromServer|en_US") << 1 << QStringLiteral("Next");
    QTest::newRow("standard by a dash") << QByteArray("fromServer|-") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("standard by nothing") << QByteArray("fromServer|") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("standard by no field") << QByteArray("fromServer") << 1 << QString::fromUtf8("次へ");
    QTest::newRow("none") << QByteArray("fromServer|Raw") << 0 << QStringLiteral("Next");
    QTest::newRow("unknown") << QByteArray("fromServer|xx_XX") << 1 << QStringLiteral("Next");
}

void tst_TutorialManager::installsTranslatorsForTheHost()
{
    QFETCH(QByteArray, message);
    QFETCH(int, translators);
    QFETCH(QString, next);
    mManager->receive(message.constData());
    QCOMPARE(qApp->findChildren<QTranslator *>().size(), translators);
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), next);
    QCOMPARE(mManager->locale(), QStringLiteral("ja_JP"));
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    tst_TutorialManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TutorialManager.moc"
