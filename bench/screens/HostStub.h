#pragma once

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

/// A host at the other end of the link that reads and forgets what it is sent, and is alive.
class HostStub : public QObject
{
    Q_OBJECT

public:
    explicit HostStub(const QString &suffix)
    {
        if (!mServer.listen(HostMessages::serverName(suffix)))
            qFatal("cannot listen: %s", qPrintable(mServer.errorString()));
        connect(&mServer, &QLocalServer::newConnection, this, [this] {
            QLocalSocket *socket = mServer.nextPendingConnection();
            connect(socket, &QLocalSocket::readyRead, socket, [socket] { socket->readAll(); });
            connect(&mAlive, &QTimer::timeout, socket, [socket] {
                socket->write(HostRecord::encode(HostRecord::kFromHost, HostMessages::FromHost::kAlive));
            });
        });
        mAlive.start(1000);
    }

private:
    QLocalServer mServer;
    QTimer mAlive;
};
