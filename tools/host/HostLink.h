#pragma once

#include "Tutorial/link/HostRecordReader.h"

#include <QLocalServer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

class QLocalSocket;

/// The host editor's end of the link: a local server with one client, the program. Each message in
/// either direction goes to the transcript, "alive" but once.
class HostLink : public QObject
{
    Q_OBJECT

public:
    explicit HostLink(QObject *parent = nullptr);
    ~HostLink() override;

    /// Listens on the server of that suffix. Empty on success, else what went wrong.
    QString listen(const QString &suffix);

    bool isConnected() const;

    /// Sends one message; without a client it is dropped.
    void send(const QStringList &fields);

    /// Ends the link, and with it the program.
    void close();

Q_SIGNALS:
    void connected();
    void disconnected();
    void received(const QStringList &fields);

private:
    void takeConnection();
    void dropConnection();
    void readMessages();
    void sendAlive();
    void write(const QString &message);

    QLocalServer mServer;
    QPointer<QLocalSocket> mSocket;
    HostRecordReader mReader;
    QTimer mAliveTimer;
    bool mAliveSentShown = false;
    bool mAliveReceivedShown = false;
};
