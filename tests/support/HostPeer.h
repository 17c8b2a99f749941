#pragma once

#include "support/FileBytes.h"
#include "support/HostEnd.h"

/// The host editor's end of the link for tests with the real program: starts it, with folders of its
/// own for settings and log.
class HostPeer : public HostEnd
{
public:
    HostPeer()
    {
        QDir(mHome.path()).mkpath(mLogFolder);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), mHome.path());
        for (const char *folder : { "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME" })
            environment.remove(QLatin1String(folder));
        // It would write each message to the null device as well, one character at a time where wine runs it.
        environment.remove(QStringLiteral("QT_FORCE_STDERR_LOGGING"));
        mProcess.setProcessEnvironment(environment);
        mProcess.setStandardOutputFile(QProcess::nullDevice());
        mProcess.setStandardErrorFile(QProcess::nullDevice());
        QObject::connect(&mAlive, &QTimer::timeout, &mProcess, [this] { send(HostMessages::FromHost::kAlive); });
    }
    ~HostPeer()
    {
        mProcess.kill();
        mProcess.waitForFinished();
    }

    /// `options` stand before all other arguments.
    bool start(const QString &program, const QStringList &options = {})
    {
        return listen(mSuffix) && startAlone(program, options + QStringList{ mSuffix, QStringLiteral("ignored") })
            && accept();
    }
    /// Starts the program as a second one of another host.
    bool startBeside(HostPeer &other, const QString &program)
    {
        return startAlone(program, { other.mSuffix }) && acceptFrom(other);
    }
    /// Starts the program with these arguments and no server for it.
    bool startAlone(const QString &program, const QStringList &arguments)
    {
        mProcess.start(program, arguments);
        return mProcess.waitForStarted();
    }
    /// Sends "alive" each second from here on.
    void keepAlive() { mAlive.start(1000); }

    bool flush()
    {
        return QTest::qWaitFor([this] { return socket().bytesToWrite() == 0; }, 30000);
    }
    /// Waits for a message of that name that was not taken yet, and takes it with all before it.
    /// Its fields; empty when none came within the time in milliseconds.
    QStringList waitForMessage(const QString &name, int timeout = 10000)
    {
        const QDeadlineTimer limit(timeout);
        QStringList fields;
        do {
            fields = next(int(limit.remainingTime()));
        } while (!fields.isEmpty() && fields.first() != name);
        return fields;
    }
    bool waitForExit(int timeout)
    {
        return QTest::qWaitFor([this] { return mProcess.state() == QProcess::NotRunning; }, timeout);
    }

    QProcess &process() { return mProcess; }
    /// Where the program keeps its settings.
    QString settingsFile() const { return mHome.filePath(QStringLiteral(".config/Harnwick/Trelvane.conf")); }
    // On Windows the system gives each program of a user the same folder.
    static constexpr bool kHasLog = QOperatingSystemVersion::currentType() != QOperatingSystemVersion::Windows;
    /// What the program has written, where it has a log of its own.
    QString log() const
    {
        return QString::fromUtf8(readAll(mHome.filePath(mLogFolder + QLatin1String("/Trelvane.log"))));
    }
    /// Resident memory of the process in KiB; 0 where the system does not tell.
    int memory() const
    {
        const QByteArray mark = "VmRSS:";
        const QByteArray status = readAll(QStringLiteral("/proc/%1/status").arg(mProcess.processId()));
        return status.mid(status.indexOf(mark) + mark.size()).trimmed().split(' ').first().toInt();
    }

    const QString &suffix() const { return mSuffix; }

private:
    static QString nextSuffix()
    {
        static int count = 0;
        return QStringLiteral("-test-%1-%2").arg(QCoreApplication::applicationPid()).arg(++count);
    }

    const QString mSuffix = nextSuffix();
    const QString mLogFolder = QStringLiteral(".local/share/Harnwick/Trelvane");
    QTemporaryDir mHome;
    QProcess mProcess;
    QTimer mAlive;
};
