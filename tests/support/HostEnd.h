#pragma once

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/HostRecordReader.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QtTest>

#include <memory>

/// The host editor's end of the link: listens, takes one connection, and keeps what comes over it.
class HostEnd
{
public:
    HostEnd() : mReader(HostRecord::kToHost) { }

    bool listen(const QString &suffix)
    {
        const QString name = HostMessages::serverName(suffix);
        QLocalServer::removeServer(name);
        return mServer.listen(name);
    }

    bool accept(int timeout = 20000) { return accept(mServer, timeout); }
    /// Takes one that comes to the other's server, which must outlive this.
    bool acceptFrom(HostEnd &other) { return accept(other.mServer, 20000); }

    QLocalSocket &socket() { return *mSocket; }
    void sendBytes(const QByteArray &bytes) { mSocket->write(bytes); }
    template <typename... Fields>
    void send(QLatin1String name, const Fields &...fields)
    {
        sendMessage(HostMessages::message(name, fields...));
    }
    void sendMessage(const QString &message) { sendBytes(HostRecord::encode(HostRecord::kFromHost, message)); }

    /// The fields of the next message; empty when none comes within the time in milliseconds.
    QStringList next(int timeout = 10000)
    {
        const bool came = QTest::qWaitFor(
            [this] {
                mMessages += mReader.read(mSocket->readAll());
                return !mMessages.isEmpty();
            },
            timeout);
        return came ? HostMessages::split(mMessages.takeFirst()) : QStringList();
    }

private:
    bool accept(QLocalServer &server, int timeout)
    {
        const bool came = QTest::qWaitFor([&server] { return server.hasPendingConnections(); }, timeout);
        mSocket.reset(server.nextPendingConnection());
        return came;
    }

    QLocalServer mServer;
    std::unique_ptr<QLocalSocket> mSocket; // goes before the server, which would free it too
    HostRecordReader mReader;
    QStringList mMessages;
};
