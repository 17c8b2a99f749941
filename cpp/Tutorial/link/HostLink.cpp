#include "Tutorial/link/HostLink.h"

#include "tool/Log.h"
#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"
#include "Tutorial/link/PeerUser.h"

#include <QLocalSocket>

namespace
{
constexpr char kFolder[] = "cpp/Tutorial";

constexpr int kSilentTicks = 100;
constexpr int kAliveTicks = 10;
} // namespace

HostLink::HostLink() : mReader(HostRecord::kFromHost) { }

HostLink::~HostLink()
{
    // Its signals must not reach an object that is half gone.
    if (mSocket)
        mSocket->disconnect(this);
}

void HostLink::open(const QString &serverName)
{
    mSocket = new QLocalSocket(this);
    connect(mSocket, &QLocalSocket::readyRead, this, &HostLink::onReadyRead);
    connect(mSocket, &QLocalSocket::connected, this, &HostLink::onConnected);
    connect(mSocket, &QLocalSocket::disconnected, this, &HostLink::onDisconnected);
    mSocket->connectToServer(serverName, QIODevice::ReadWrite);
}

void HostLink::onConnected()
{
    if (!isOwnUserOrRoot(mSocket->socketDescriptor())) {
        Log::warning(kFolder, "HostLink::onConnected", __LINE__) << "the server belongs to another user";
        giveUp();
        return;
    }
    mHostConnected = true;
    Q_EMIT connected();
}

void HostLink::onDisconnected()
{
    mSocket = nullptr;
    Q_EMIT disconnected();
}

void HostLink::send(const QString &message)
{
    if (!mSocket || !mHostConnected)
        return;
    if (mSocket->bytesToWrite() > kMaximumUnread) {
        Log::warning(kFolder, "HostLink::send", __LINE__) << "the host editor does not read" << mSocket->bytesToWrite();
        giveUp();
        return;
    }
    mSocket->write(HostRecord::encode(HostRecord::kToHost, message));
}

void HostLink::giveUp()
{
    mSocket->disconnect(this);
    mSocket->abort();
    onDisconnected();
}

void HostLink::onReadyRead()
{
    if (!mSocket)
        return;
    // Any byte is a sign of life.
    mSilenceTicks = 0;
    const QStringList messages = mReader.read(mSocket->readAll());
    for (const QString &message : messages) {
        if (HostMessages::isNamed(message, HostMessages::FromHost::kBye)) {
            mReader.clear();
            Q_EMIT bye();
            return;
        }
        Q_EMIT received(message);
    }
}

void HostLink::tick()
{
    if (!mSocket)
        return;
    if (++mSilenceTicks >= kSilentTicks)
        Q_EMIT silent();
    if (++mAliveTicks >= kAliveTicks) {
        mAliveTicks = 0;
        send(HostMessages::ToHost::kAlive);
    }
}
