#include "support/ManagerFixture.h"

#include <QProcess>

#include <cstdio>

using namespace ManagerFixture;

namespace
{
/// Runs in a process of its own, since the end of the link is the end of the process.
int runChild(const QByteArray &task)
{
    closeLogFileHook = [] { std::puts("log closed"); };
    constexpr int tooLong = 9;
    constexpr int survived = 7;
    QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(tooLong); });
    if (task == "silence") {
        Manager manager;
        manager.tick(99);
        std::puts("99 ticks");
        manager.tick();
        return survived;
    }
    auto *manager = new Manager;
    if (task == "close")
        manager->requestClose();
    return QApplication::exec();
}
} // namespace

class tst_HostLink : public QObject, private Link
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void sendsAliveOnEachTenthTick();
    void dropsMessagesWithoutALink();
    void readsRecords();
    void losesWhatStandsBehindBye();
    void takesAFlood();
    void anyByteIsASignOfLife();
    void endsTheProcess_data();
    void endsTheProcess();
};

void tst_HostLink::sendsAliveOnEachTenthTick()
{
    mManager->tick(9);
    QVERIFY(mHost->silent(*mManager));
    for (int i = 0; i < 3; ++i) {
        mManager->tick(i == 0 ? 1 : 9);
        mManager->sendMessage(QStringLiteral("other"));
        mManager->tick(i == 0 ? 0 : 1);
    }
    QStringList names;
    for (int i = 0; i < 6; ++i)
        names.append(mHost->next().value(0));
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("alive other other alive other alive"));
}

void tst_HostLink::dropsMessagesWithoutALink()
{
    mManager.reset();
    mHost.reset();
    Manager unlinked;
    QVERIFY(!unlinked.connected());
    unlinked.sendMessage(QStringLiteral("lost"));
    unlinked.tick(20);
    // The server that comes later gets nothing of it.
    mHost = std::make_unique<Host>();
    mManager = std::make_unique<Manager>();
    QVERIFY(mHost->accept());
    QVERIFY(mHost->silent(*mManager));
}

void tst_HostLink::readsRecords()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    const QByteArray text = record({ "alive", "windowStack|push|次" }) + record({ "windowPosition|次|-3|4" });
    for (const char byte : text) {
        mHost->send(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE(received.size(), 3);
    QCOMPARE(mManager->getCurrentWindowKey(), QString::fromUtf8("次"));
    QCOMPARE(mManager->getXy(QString::fromUtf8("次")), QPoint(-3, 4));

    // A rejected read takes nothing with it.
    mHost->send("1\x02"
                "windowStack");
    QCoreApplication::processEvents();
    mHost->send(record({ "windowStack|pop" }));
    QTRY_COMPARE(mManager->getCurrentWindowKey(), QStringLiteral("ApplicationWindow"));
}

void tst_HostLink::losesWhatStandsBehindBye()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    mHost->send(record({ "start|1|2|3|4", "windowStack|push|A", "bye|x|y", "windowStack|push|B" })
                + record({ "windowStack|push|C" })
                + "0\x02"
                  "windowSt");
    QTRY_COMPARE(received.size(), 2);
    QVERIFY(!mManager->isGuidanceRunning());
    QCOMPARE(mManager->getCurrentWindowKey(), QStringLiteral("A"));
    mHost->send(record({ "byebye" }) + record({ "windowStack|push|D" }));
    QTRY_COMPARE(mManager->getCurrentWindowKey(), QStringLiteral("D"));
    QVERIFY(mManager->connected());
}

void tst_HostLink::takesAFlood()
{
    QSignalSpy received(mManager.get(), &TutorialManager::received);
    const int count = 20000;
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += record({ "windowPosition|k|" + QByteArray::number(i) + "|" + QByteArray::number(-i) });
    int sent = 0;
    while (sent < bytes.size()) {
        mHost->mSocket->write(bytes.mid(sent, 50021));
        sent += 50021;
        QCoreApplication::processEvents();
    }
    QTRY_COMPARE_WITH_TIMEOUT(received.size(), count, 60000);
    QCOMPARE(mManager->getXy(QStringLiteral("k")), QPoint(count - 1, 1 - count));
}

void tst_HostLink::anyByteIsASignOfLife()
{
    for (const QByteArray &bytes : { QByteArray("x"), QByteArray("1\x02rejected"), record({ "alive" }) }) {
        // One tick more without it would end the process.
        mManager->tick(99);
        QSignalSpy read(mManager->findChild<QLocalSocket *>(), &QIODevice::readyRead);
        mHost->send(bytes);
        QTRY_COMPARE(read.size(), 1);
    }
    mManager->tick(99);
    QVERIFY(mManager->connected());
}

void tst_HostLink::endsTheProcess_data()
{
    QTest::addColumn<QString>("task");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("output");

    const QString suffix = QStringLiteral("child%1").arg(QCoreApplication::applicationPid());
    const QString closed = QStringLiteral("log closed\n");
    QTest::newRow("no server") << QStringLiteral("silence") << suffix << QString(QLatin1String("99 ticks\n") + closed);
    QTest::newRow("asked for") << QStringLiteral("close") << suffix << closed;
    QTest::newRow("link closed") << QStringLiteral("link") << suffix << closed;
    QTest::newRow("no link at all") << QStringLiteral("empty") << QString() << QString();
}

void tst_HostLink::endsTheProcess()
{
    QFETCH(QString, task);
    QFETCH(QString, suffix);
    QFETCH(QString, output);
    QLocalServer server;
    if (task == QLatin1String("link"))
        QVERIFY(server.listen(QLatin1String("qelm") + suffix));
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--child"), suffix, task });
    QVERIFY(process.waitForStarted());
    if (server.isListening()) {
        QVERIFY(server.waitForNewConnection(20000));
        server.nextPendingConnection()->close();
    }
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), output);
}

int main(int argc, char *argv[])
{
    if (argc == 4 && qstrcmp(argv[1], "--child") == 0) {
        const Application application(argv[0], argv[2]);
        return runChild(argv[3]);
    }
    const Application application(argv[0], Application::ownSuffix());
    tst_HostLink test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_HostLink.moc"
