#include "support/FileBytes.h"
#include "support/ManagerFixture.h"

#include <QLibraryInfo>
#include <QProcess>
#include <QResource>

using namespace ManagerFixture;

namespace
{
const QString kEmptyScenario = QStringLiteral("var scenario = [\n\n];");
} // namespace

class tst_TutorialManager : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { begin(); }
    void cleanup() { end(); }

    void sendsTheScenarioThatIsThere();
    void answersForFilesAlone();
    void defersJumpLinks();
    void switchesTheLocale();
};

void tst_TutorialManager::initTestCase()
{
    const QTemporaryDir folder;
    writeAll(folder.filePath(QStringLiteral("Broken.js")), "var scenario = [{\"id\":1,\"hint\":qsTr(\"open];");
    writeAll(folder.filePath(QStringLiteral("Percent.js")),
             "var scenario = [{\"id\":7,\"name\":\"%2\",\"hint\":\"%1 and %3\"}];");
    writeAll(
        folder.filePath(QStringLiteral("a.qrc")),
        "<RCC><qresource prefix=\"/qml/Tutorial\"><file>Broken.js</file><file>Percent.js</file></qresource></RCC>");
    const QString packed = folder.filePath(QStringLiteral("a.rcc"));
    QCOMPARE(QProcess::execute(QLibraryInfo::location(QLibraryInfo::BinariesPath) + QLatin1String("/rcc"),
                               { QStringLiteral("--binary"), folder.filePath(QStringLiteral("a.qrc")),
                                 QStringLiteral("-o"), packed }),
             0);
    QVERIFY(QResource::registerResource(packed));
}

void tst_TutorialManager::sendsTheScenarioThatIsThere()
{
    mManager->startFromId(3);
    QCOMPARE(mHost->next(), (QStringList{ HostMessages::ToHost::kStart, kEmptyScenario, QStringLiteral("3") }));
    mManager->receive("tutorial|Percent");
    const QStringList loaded = mHost->next();
    QVERIFY(loaded.value(1).contains(QLatin1String("\"name\":\"%2\",")));
    QVERIFY(loaded.value(1).contains(QLatin1String("\"hint\":\"%1 and %3\",")));
    mManager->receive("tutorial|Missing");
    QCOMPARE(mHost->next(), loaded);

    // A broken one leaves nothing, and does not start.
    mWarnings.expect(QStringLiteral("Json parse error"));
    mWarnings.expect(QStringLiteral("Failed to loadTutorial \"not matched"));
    mManager->receive("tutorial|Broken");
    QVERIFY(mHost->silent(*mManager));
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), kEmptyScenario);

    mManager->loadTutorial(QStringLiteral(":/qml/Tutorial/Percent.js"));
    mManager->unload();
    mManager->startFromId();
    QCOMPARE(mHost->next().value(1), kEmptyScenario);
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
}

void tst_TutorialManager::answersForFilesAlone()
{
    mManager->receive("requestPresetData|../../qml/Tutorial/Percent.js");
    QCOMPARE(mHost->next().first(), QString(HostMessages::ToHost::kFeedbackPresetData));
    mWarnings.expect(QStringLiteral("Failed to open"));
    mWarnings.expect(QStringLiteral("Failed to read"));
    mManager->receive("requestPresetData|../../qml/Tutorial");
    QVERIFY(mHost->silent(*mManager));
}

void tst_TutorialManager::defersJumpLinks()
{
    QStringList links;
    connect(mManager.get(), &TutorialManager::jumpLinkChanged, mManager.get(), [&](const QString &link) {
        links.append(link);
        // One that is set from inside the signal is not lost.
        if (links.size() == 1)
            mManager->setPendingJumpLink(QStringLiteral("c"));
    });
    mManager->setPendingJumpLink(QStringLiteral("a"));
    mManager->setPendingJumpLink(QStringLiteral("b"));
    QVERIFY(links.isEmpty());
    QTRY_COMPARE(links, (QStringList{ QStringLiteral("b"), QStringLiteral("c") }));
}

void tst_TutorialManager::switchesTheLocale()
{
    const auto state = [this] {
        return QStringList{ mManager->locale(), mManager->locale2(),
                            QString::number(qApp->findChildren<QTranslator *>().size()),
                            QSettings().value(QStringLiteral("debugLocale")).toString() }
            .join(QLatin1Char(' '));
    };
    const QString japanese = QStringLiteral("ja_JP");
    const QString english = QStringLiteral("en_US");
    const QString raw = QStringLiteral("Raw");
    mManager->setLocale(japanese);
    QCOMPARE(state(), QStringLiteral("ja_JP en_US 0 "));
    mManager->setLocale(english);
    mManager->setLocale2(raw);
    QCOMPARE(state(), QStringLiteral("en_US Raw 1 en_US"));
    mManager->setLocale(japanese);
    QCOMPARE(state(), QStringLiteral("ja_JP en_US 2 ja_JP"));
    // The catalog of before goes on answering for what the new one lacks.
    mManager->setLocale(english);
    QCOMPARE(QCoreApplication::translate("TutorialIndicator", "Next"), QString::fromUtf8("次へ"));
    mManager->setLocale(raw);
    mManager = std::make_unique<Manager>();
    QCOMPARE(state(), QStringLiteral("Raw ja_JP 4 Raw"));
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    tst_TutorialManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TutorialManager.moc"
