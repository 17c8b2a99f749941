#include "HostLink.h"

#include "Transcript.h"
#include "Tutorial/link/HostRecord.h"

#include <QLocalSocket>

namespace
{
constexpr int kAlivePeriod = 1000;
const QString kAlive = QStringLiteral("alive");
} // namespace

HostLink::HostLink(QObject *parent) : QObject(parent), mReader(HostRecord::kToHost)
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    mAliveTimer.setInterval(kAlivePeriod);
    connect(&mAliveTimer, &QTimer::timeout, this, &HostLink::sendAlive);
    connect(&mServer, &QLocalServer::newConnection, this, &HostLink::takeConnection);
}

HostLink::~HostLink()
{
    close();
}

QString HostLink::listen(const QString &suffix)
{
    const QString name = QStringLiteral("qelm") + suffix;
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

bool HostLink::isConnected() const
{
    return mSocket && mSocket->state() == QLocalSocket::ConnectedState;
}

void HostLink::send(const QStringList &fields)
{
    if (!isConnected())
        return;
    const QString message = fields.join(QChar(1));
    Transcript::sent(message);
    write(message);
}

void HostLink::close()
{
    mServer.close();
    if (!mSocket)
        return;
    mSocket->disconnect(this);
    mSocket->flush();
    mSocket->disconnectFromServer();
}

void HostLink::takeConnection()
{
    QLocalSocket *socket = mServer.nextPendingConnection();
    if (mSocket) {
        Transcript::remark(QStringLiteral("a second program tried to connect and was turned away"));
        socket->abort();
        socket->deleteLater();
        return;
    }
    mSocket = socket;
    connect(socket, &QLocalSocket::readyRead, this, &HostLink::readMessages);
    connect(socket, &QLocalSocket::disconnected, this, &HostLink::dropConnection);
    mAliveTimer.start();
    Transcript::remark(QStringLiteral("the program has connected"));
    Q_EMIT connected();
    readMessages();
}

void HostLink::dropConnection()
{
    readMessages();
    mAliveTimer.stop();
    mReader.clear();
    mSocket->deleteLater();
    mSocket = nullptr;
    Transcript::remark(QStringLiteral("the program has closed the link"));
    Q_EMIT disconnected();
}

void HostLink::readMessages()
{
    const QStringList messages = mReader.read(mSocket->readAll());
    for (const QString &message : messages) {
        if (message != kAlive) {
            Transcript::received(message);
        } else if (!mAliveReceivedShown) {
            mAliveReceivedShown = true;
            Transcript::received(message);
        }
        Q_EMIT received(message.split(QChar(1)));
    }
}

void HostLink::sendAlive()
{
    if (!isConnected())
        return;
    if (!mAliveSentShown) {
        mAliveSentShown = true;
        Transcript::sent(kAlive);
    }
    write(kAlive);
}

void HostLink::write(const QString &message)
{
    mSocket->write(HostRecord::encode(HostRecord::kFromHost, message));
}
