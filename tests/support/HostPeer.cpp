#include "support/HostPeer.h"

#include "support/FileBytes.h"

#include <QDeadlineTimer>
#include <QDir>

namespace
{
const QString kLogFolder = QStringLiteral(".local/share/Harnwick/Trelvane");
}

HostPeer::HostPeer()
{
    QDir(mHome.path()).mkpath(kLogFolder);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), mHome.path());
    for (const char *folder : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME" })
        environment.remove(QLatin1String(folder));
    mProcess.setProcessEnvironment(environment);
    mProcess.setStandardOutputFile(QProcess::nullDevice());
    mProcess.setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(&mAlive, &QTimer::timeout, &mProcess, [this] { send(HostMessages::FromHost::kAlive); });
}

HostPeer::~HostPeer()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

bool HostPeer::start(const QString &program)
{
    static int count = 0;
    const QString suffix = QStringLiteral("-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
    return listen(suffix) && startAlone(program, { suffix, QStringLiteral("ignored") }) && accept();
}

bool HostPeer::startAlone(const QString &program, const QStringList &arguments)
{
    mProcess.start(program, arguments);
    return mProcess.waitForStarted();
}

void HostPeer::keepAlive()
{
    mAlive.start(1000);
}

bool HostPeer::flush(int timeout)
{
    return QTest::qWaitFor([this] { return socket().bytesToWrite() == 0; }, timeout);
}

QStringList HostPeer::waitForMessage(const QString &name, int timeout)
{
    const QDeadlineTimer limit(timeout);
    QStringList fields;
    do {
        fields = next(int(limit.remainingTime()));
    } while (!fields.isEmpty() && fields.first() != name);
    return fields;
}

bool HostPeer::waitForExit(int timeout)
{
    return QTest::qWaitFor([this] { return mProcess.state() == QProcess::NotRunning; }, timeout);
}

QString HostPeer::log() const
{
    return QString::fromUtf8(readAll(mHome.filePath(kLogFolder + QLatin1String("/Trelvane.log"))));
}

int HostPeer::memory() const
{
    const QByteArray mark = "VmRSS:";
    const QByteArray status = readAll(QStringLiteral("/proc/%1/status").arg(mProcess.processId()));
    return status.mid(status.indexOf(mark) + mark.size()).trimmed().split(' ').first().toInt();
}
