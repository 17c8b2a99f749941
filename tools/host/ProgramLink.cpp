#include "ProgramLink.h"

#include "Transcript.h"
#include "Tutorial/link/HostRecord.h"

#include <QLocalSocket>

namespace
{
constexpr int kAlivePeriod = 1000;
} // namespace

ProgramLink::ProgramLink(QObject *parent) : QObject(parent), mReader(HostRecord::kToHost)
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    mAliveTimer.setInterval(kAlivePeriod);
    connect(&mAliveTimer, &QTimer::timeout, this, &ProgramLink::sendAlive);
    connect(&mServer, &QLocalServer::newConnection, this, &ProgramLink::takeConnection);
}

ProgramLink::~ProgramLink()
{
    close();
}

QString ProgramLink::listen(const QString &suffix)
{
    const QString name = HostMessages::serverName(suffix);
    // What a crash left behind would keep the name taken; a server that answers keeps its name.
    QLocalSocket probe;
    probe.connectToServer(name);
    if (probe.waitForConnected(200))
        return QStringLiteral("the server \"%1\" is in use by another process").arg(name);
    QLocalServer::removeServer(name);
    if (!mServer.listen(name))
        return QStringLiteral("cannot listen on \"%1\": %2").arg(name, mServer.errorString());
    return QString();
}

bool ProgramLink::isConnected() const
{
    return mSocket && mSocket->state() == QLocalSocket::ConnectedState;
}

void ProgramLink::sendMessage(const QString &message)
{
    if (!isConnected())
        return;
    Transcript::sent(message);
    write(message);
}

void ProgramLink::close()
{
    mServer.close();
    if (!mSocket)
        return;
    mSocket->disconnect(this);
    mSocket->flush();
    mSocket->disconnectFromServer();
}

void ProgramLink::takeConnection()
{
    QLocalSocket *socket = mServer.nextPendingConnection();
    if (mSocket) {
        Transcript::remark(QStringLiteral("a second program tried to connect and was turned away"));
        socket->abort();
        socket->deleteLater();
        return;
    }
    mSocket = socket;
    connect(socket, &QLocalSocket::readyRead, this, &ProgramLink::readMessages);
    connect(socket, &QLocalSocket::disconnected, this, &ProgramLink::dropConnection);
    mAliveTimer.start();
    Transcript::remark(QStringLiteral("the program has connected"));
    Q_EMIT connected();
    readMessages();
}

void ProgramLink::dropConnection()
{
    readMessages();
    mAliveTimer.stop();
    mReader.clear();
    mSocket->deleteLater();
    mSocket = nullptr;
    Transcript::remark(QStringLiteral("the program has closed the link"));
    Q_EMIT disconnected();
}

void ProgramLink::readMessages()
{
    const QStringList messages = mReader.read(mSocket->readAll());
    for (const QString &message : messages) {
        if (message != HostMessages::ToHost::kAlive) {
            Transcript::received(message);
        } else if (!mAliveReceivedShown) {
            mAliveReceivedShown = true;
            Transcript::received(message);
        }
        Q_EMIT received(HostMessages::split(message));
    }
}

void ProgramLink::sendAlive()
{
    if (!isConnected())
        return;
    if (!mAliveSentShown) {
        mAliveSentShown = true;
        Transcript::sent(HostMessages::FromHost::kAlive);
    }
    write(HostMessages::FromHost::kAlive);
}

void ProgramLink::write(const QString &message)
{
    mSocket->write(HostRecord::encode(HostRecord::kFromHost, message));
}
