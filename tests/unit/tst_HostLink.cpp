#include "support/ManagerFixture.h"

#include <QProcess>

#include <cstdio>

using namespace ManagerFixture;

namespace
{
/// Runs in a process of its own, since the end of the link is the end of the process.
int runChild()
{
    constexpr int survived = 7;
    closeLogFileHook = [] { std::puts("log closed"); };
    Manager manager;
    manager.tick(99);
    std::puts("99 ticks");
    manager.tick();
    return survived;
}
} // namespace

class tst_HostLink : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void sendsAliveOnEachTenthTick();
    void losesWhatStandsBehindBye();
    void endsTheProcessWithoutASignOfLife();
};

void tst_HostLink::sendsAliveOnEachTenthTick()
{
    mManager->tick(9);
    QVERIFY(mHost->silent(*mManager));
    mManager->tick(10);
    QCOMPARE(mHost->next(), QStringList{ HostMessages::ToHost::kAlive });
    QVERIFY(mHost->silent(*mManager));
}

void tst_HostLink::losesWhatStandsBehindBye()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    mHost->mSocket->write(QByteArray("0\x02start\x02windowStack\x01push\x01"
                                     "A\x02"
                                     "bye\x02windowStack\x01push\x01"
                                     "B\0"
                                     "0\x02windowStack\x01push\x01"
                                     "C\0"
                                     "0\x02windowSt",
                                     81));
    QTRY_COMPARE(received.size(), 2);
    QVERIFY(!mManager->isGuidanceRunning());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("A"));
    mHost->mSocket->write(HostRecord::encode(HostRecord::kFromHost, QStringLiteral("windowStack\x01push\x01次")));
    QTRY_COMPARE(mManager->getCurrentWindowKey(), QStringLiteral("次"));
}

void tst_HostLink::endsTheProcessWithoutASignOfLife()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--child") });
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("99 ticks\nlog closed\n"));
}

int main(int argc, char *argv[])
{
    const Application application(argv[0], Application::ownSuffix());
    if (argc == 2 && qstrcmp(argv[1], "--child") == 0)
        return runChild();
    tst_HostLink test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_HostLink.moc"
