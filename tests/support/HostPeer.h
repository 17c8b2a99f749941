#pragma once

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecordReader.h"

#include <QLocalServer>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

class QLocalSocket;

/// The host editor's end of the link for tests with the real program: starts it, with folders of its
/// own for settings and log, and keeps every message that it sends.
class HostPeer : public QObject
{
    Q_OBJECT

public:
    HostPeer();
    ~HostPeer() override;

    /// Starts the program and waits for its connection.
    bool start(const QString &program);
    /// Starts the program with these arguments and no server for it.
    bool startAlone(const QString &program, const QStringList &arguments);

    template <typename... Fields>
    void send(QLatin1String name, const Fields &...fields)
    {
        sendMessage(HostMessages::message(name, fields...));
    }
    void sendMessage(const QString &message);
    void sendBytes(const QByteArray &bytes);
    /// Waits until all bytes have gone to the program.
    bool flush(int timeout = 30000);
    void closeLink();

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

    void readMessages();

    QTemporaryDir mHome;
    QLocalServer mServer;
    QLocalSocket *mSocket = nullptr; // a child of the server
    HostRecordReader mReader;
    QProcess mProcess;
    QStringList mMessages;
};
