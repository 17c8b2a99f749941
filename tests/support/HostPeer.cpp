#include "support/HostPeer.h"

#include "Tutorial/link/HostRecord.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

namespace
{
const QString kLogFolder = QStringLiteral("/data/Harnwick/Trelvane");
}

HostPeer::HostPeer() : mReader(HostRecord::kToHost)
{
    QDir(mHome.path()).mkpath(mHome.path() + kLogFolder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), mHome.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), mHome.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), mHome.filePath(QStringLiteral("config")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), mHome.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("QTWEBENGINE_DISABLE_SANDBOX"), QStringLiteral("1"));
    mProcess.setProcessEnvironment(environment);
    mProcess.setStandardOutputFile(QProcess::nullDevice());
    mProcess.setStandardErrorFile(mHome.filePath(QStringLiteral("stderr.txt")));
}

HostPeer::~HostPeer()
{
    if (mProcess.state() != QProcess::NotRunning) {
        mProcess.kill();
        mProcess.waitForFinished();
    }
}

bool HostPeer::start(const QString &program)
{
    static int count = 0;
    const QString suffix = QStringLiteral("-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
    const QString name = HostMessages::serverName(suffix);
    QLocalServer::removeServer(name);
    if (!mServer.listen(name))
        return false;
    mProcess.start(program, { suffix, QStringLiteral("ignored") });
    QSignalSpy connection(&mServer, &QLocalServer::newConnection);
    if (!mServer.hasPendingConnections() && !connection.wait(20000))
        return false;
    mSocket = mServer.nextPendingConnection();
    connect(mSocket, &QLocalSocket::readyRead, this, &HostPeer::readMessages);
    return true;
}

bool HostPeer::startAlone(const QString &program, const QStringList &arguments)
{
    mProcess.start(program, arguments);
    return mProcess.waitForStarted();
}

void HostPeer::sendMessage(const QString &message)
{
    sendBytes(HostRecord::encode(HostRecord::kFromHost, message));
}

void HostPeer::sendBytes(const QByteArray &bytes)
{
    mSocket->write(bytes);
}

bool HostPeer::flush(int timeout)
{
    return QTest::qWaitFor([this] { return mSocket->bytesToWrite() == 0; }, timeout);
}

void HostPeer::closeLink()
{
    mSocket->disconnectFromServer();
}

void HostPeer::readMessages()
{
    mMessages += mReader.read(mSocket->readAll());
}

QStringList HostPeer::waitForMessage(const QString &name, int timeout)
{
    QStringList fields;
    const auto take = [&] {
        while (!mMessages.isEmpty()) {
            const QString message = mMessages.takeFirst();
            if (HostMessages::name(message) == name) {
                fields = HostMessages::split(message);
                return true;
            }
        }
        return false;
    };
    return QTest::qWaitFor(take, timeout) ? fields : QStringList();
}

bool HostPeer::waitForExit(int timeout)
{
    return QTest::qWaitFor([this] { return mProcess.state() == QProcess::NotRunning; }, timeout);
}

QString HostPeer::log() const
{
    QFile file(mHome.path() + kLogFolder + QStringLiteral("/Trelvane.log"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int HostPeer::memory() const
{
    QFile file(QStringLiteral("/proc/%1/status").arg(mProcess.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toInt();
    }
    return 0;
}
