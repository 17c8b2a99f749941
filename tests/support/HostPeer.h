#pragma once

#include "support/HostEnd.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

/// The host editor's end of the link for tests with the real program: starts it, with folders of its
/// own for settings and log.
class HostPeer : public HostEnd
{
public:
    HostPeer();
    ~HostPeer();

    /// Starts the program and waits for its connection.
    bool start(const QString &program);
    /// Starts the program with these arguments and no server for it.
    bool startAlone(const QString &program, const QStringList &arguments);
    /// Sends "alive" each second from here on.
    void keepAlive();

    /// Waits until all bytes have gone to the program.
    bool flush(int timeout = 30000);
    /// Waits for a message of that name that was not taken yet, and takes it with all before it.
    /// Its fields; empty when none came within the time in milliseconds.
    QStringList waitForMessage(const QString &name, int timeout = 10000);
    bool waitForExit(int timeout);

    QProcess &process() { return mProcess; }
    /// What the program's log holds by now.
    QString log() const;
    /// Resident memory of the process in KiB; 0 where the system does not tell.
    int memory() const;

private:
    Q_DISABLE_COPY(HostPeer)

    QTemporaryDir mHome;
    QProcess mProcess;
    QTimer mAlive;
};
