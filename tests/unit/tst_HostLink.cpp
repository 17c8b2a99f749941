#include "support/HostEnd.h"
#include "Tutorial/link/HostLink.h"

class tst_HostLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void sendsAliveOnEachTenthTick();
    void losesWhatComesAfterBye();
    void tellsOfSilence();
    void isOverWithTheConnection();

private:
    void tick(int times)
    {
        while (times-- > 0)
            mLink->tick();
    }

    std::unique_ptr<HostEnd> mHost;
    std::unique_ptr<HostLink> mLink;
    QString mEvents;
};

void tst_HostLink::init()
{
    mLink = std::make_unique<HostLink>();
    mHost = std::make_unique<HostEnd>();
    mEvents.clear();
    connect(mLink.get(), &HostLink::connected, this, [this] { mEvents += QLatin1String("connected "); });
    connect(mLink.get(), &HostLink::received, this,
            [this](const QString &message) { mEvents += message + QLatin1Char(' '); });
    connect(mLink.get(), &HostLink::bye, this, [this] { mEvents += QLatin1String("(bye) "); });
    connect(mLink.get(), &HostLink::silent, this, [this] { mEvents += QLatin1String("silent "); });
    connect(mLink.get(), &HostLink::disconnected, this, [this] { mEvents += QLatin1String("disconnected "); });
    // Without a link nothing is sent, kept or missed.
    tick(200);
    mLink->send(QStringLiteral("lost"));

    const QString suffix = QStringLiteral("-link-%1").arg(QCoreApplication::applicationPid());
    QVERIFY(mHost->listen(suffix));
    mLink->open(HostMessages::serverName(suffix));
    QVERIFY(mHost->accept());
    QTRY_COMPARE(mEvents, QStringLiteral("connected "));
    QVERIFY(mLink->isConnected());
    mEvents.clear();
}

void tst_HostLink::sendsAliveOnEachTenthTick()
{
    const QStringList alive{ HostMessages::ToHost::kAlive };
    const QStringList marker{ QStringLiteral("marker") };
    tick(9);
    mLink->send(marker.first());
    tick(10);
    mLink->send(marker.first());
    tick(1);
    for (const QStringList &message : { marker, alive, marker, alive })
        QCOMPARE(mHost->next(), message);
}

void tst_HostLink::losesWhatComesAfterBye()
{
    // "|" stands for the byte before a message, "!" for the end of a record.
    mHost->sendBytes(QByteArray("0|start|A|bye|B!0|C!0|D").replace('|', '\x02').replace('!', '\0'));
    QTRY_COMPARE(mEvents, QStringLiteral("start A (bye) "));
    mHost->sendMessage(QStringLiteral("次"));
    QTRY_COMPARE(mEvents, QStringLiteral("start A (bye) 次 "));
}

void tst_HostLink::tellsOfSilence()
{
    tick(99);
    mHost->sendMessage(QStringLiteral("A"));
    QTRY_COMPARE(mEvents, QStringLiteral("A "));
    tick(99);
    QCOMPARE(mEvents, QStringLiteral("A "));
    tick(1);
    QCOMPARE(mEvents, QStringLiteral("A silent "));
}

void tst_HostLink::isOverWithTheConnection()
{
    mHost->socket().disconnectFromServer();
    QTRY_COMPARE(mEvents, QStringLiteral("disconnected "));
    mLink->send(QStringLiteral("lost"));
    tick(200);
    QCOMPARE(mEvents, QStringLiteral("disconnected "));
}

QTEST_GUILESS_MAIN(tst_HostLink)

#include "tst_HostLink.moc"
