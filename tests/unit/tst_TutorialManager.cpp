#include "support/FileBytes.h"
#include "support/HostEnd.h"
#include "support/ManagerFixture.h"
#include "support/WarningGuard.h"

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

class tst_TutorialManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void carriesOutWhatTheLinkBrings();
    void sendsTheScenarioThatIsThere();
    void answersWithPresetData();
    void defersJumpLinks();
    void closesTheLogAtTheEnd();

private:
    /// What has gone to the host editor since the last call: the messages, their fields parted by "|".
    QString sent()
    {
        const QString end = QStringLiteral("end");
        mManager->sendMessage(end);
        QStringList messages;
        for (QStringList fields = mHost->next(); fields.value(0, end) != end; fields = mHost->next())
            messages += fields.join(QLatin1Char('|'));
        return messages.join(QLatin1Char(' '));
    }

    QTemporaryDir mFolder;
    std::unique_ptr<HostEnd> mHost;
    std::unique_ptr<ManagerFixture::Manager> mManager;
    WarningGuard mWarnings;
};

void tst_TutorialManager::init()
{
    mWarnings.begin();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, mFolder.path());
    QSettings().clear();
    mHost = std::make_unique<HostEnd>();
    QVERIFY(mHost->listen(QCoreApplication::arguments().at(1)));
    mManager = std::make_unique<ManagerFixture::Manager>();
    QVERIFY(mHost->accept());
    QTRY_VERIFY(mManager->connected());
}

void tst_TutorialManager::cleanup()
{
    mManager.reset();
    mHost.reset();
    mWarnings.end();
}

void tst_TutorialManager::carriesOutWhatTheLinkBrings()
{
    const QSignalSpy keys(mManager.get(), &TutorialManager::currentWindowKeyChanged);
    for (const char *message : { "start", "windowPosition|A|-3|4", "windowPosition||5|6", "controlPosition|B|7|8",
                                 "windowStack|push|A", "windowStack|push|Popup", "bye" })
        mHost->sendMessage(QString::fromLatin1(message).replace(QLatin1Char('|'), HostMessages::kFieldSeparator));
    QTRY_COMPARE(keys.size(), 3);
    QTRY_VERIFY(!mManager->isGuidanceRunning());
    QCOMPARE(mManager->getXy(QStringLiteral("A")), QPoint(-3, 4));
    QCOMPARE(mManager->getXy(QStringLiteral("B")), QPoint(7, 8));
    QCOMPARE(mManager->getXy(QString()), QPoint());
    mManager->dropPopupWindowKey();
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("A"));
    mManager->receive({ "windowStack|pop", "windowStack|pop" });
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
    QCOMPARE(keys.size(), 5);

    mManager->updateIndicatorXyWindowKey(-1, 2, QStringLiteral("A"));
    QCOMPARE(sent(), QStringLiteral("indicator|updateXYWindowKey|-1|2|A"));
}

void tst_TutorialManager::sendsTheScenarioThatIsThere()
{
    const QString nothing = QStringLiteral("start|var scenario = [\n\n];|");
    mManager->startFromId(3);
    QCOMPARE(sent(), QString(nothing + QLatin1Char('3')));

    const QString file = mFolder.filePath(QStringLiteral("a.js"));
    writeAll(file, "var scenario = [{\"id\":7,\"name\":\"%2\",\"hint\":\"%1 and %3\"}];");
    QCOMPARE(mManager->loadTutorial(file), QString());
    // One that is missing changes nothing but the name.
    mManager->receive({ "tutorial|Missing" });
    QCOMPARE(mManager->tutorialName(), QStringLiteral("Missing"));
    const QString loaded = sent();
    QVERIFY(loaded.contains(QLatin1String("\"name\":\"%2\",")) && loaded.endsWith(QLatin1String("|-1")));
    QVERIFY(loaded.contains(QLatin1String("\"hint\":\"%1 and %3\",")));

    // One that is none leaves nothing, and does not start.
    mWarnings.expect(QStringLiteral("Json parse error"));
    mWarnings.expect(QStringLiteral("Failed to loadTutorial"));
    mManager->receive({ "tutorial|TutorialList" });
    QCOMPARE(sent(), QString());
    mManager->startFromId();
    QCOMPARE(sent(), QString(nothing + QLatin1String("-1")));
    mManager->loadTutorial(file);
    mManager->unload();
    mManager->startFromId();
    QCOMPARE(sent(), QString(nothing + QLatin1String("-1")));
    QCOMPARE(mManager->save(), QStringLiteral("Tutorial not loaded yet."));
}

void tst_TutorialManager::answersWithPresetData()
{
    mManager->receive({ "requestPresetData|../png/click.png" });
    const QString picture = QString::fromLatin1(readAll(QStringLiteral(":/resource/png/click.png")).toBase64());
    QCOMPARE(sent(), QString(QLatin1String("feedbackPresetData|") + picture));
    // Neither one that is missing nor a folder has an answer.
    mWarnings.expect(QStringLiteral("presetData not found \":/resource/preset/missing\""));
    mWarnings.expect(QStringLiteral("Failed to open"));
    mWarnings.expect(QStringLiteral("Failed to read"));
    mManager->receive({ "requestPresetData|missing", "requestPresetData|../png" });
    QCOMPARE(sent(), QString());
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

void tst_TutorialManager::closesTheLogAtTheEnd()
{
    const pid_t child = fork();
    if (child == 0) {
        closeLogFileHook = [] { std::_Exit(3); };
        mManager->tick(100);
        std::_Exit(7);
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    QCOMPARE(WEXITSTATUS(status), 3);
}

int main(int argc, char *argv[])
{
    const ManagerFixture::Application application(argv[0]);
    tst_TutorialManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TutorialManager.moc"
