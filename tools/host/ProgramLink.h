#pragma once

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecordReader.h"

#include <QLocalServer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

class QLocalSocket;

/// The host editor's end of the link: a local server with one client, the program. Each message in
/// either direction goes to the transcript, "alive" but once.
class ProgramLink : public QObject
{
    Q_OBJECT

public:
    explicit ProgramLink(QObject *parent = nullptr);
    ~ProgramLink() override;

    /// Listens on the server of that suffix. Empty on success, else what went wrong.
    QString listen(const QString &suffix);

    bool isConnected() const;

    /// Sends one message; without a client it is dropped.
    void sendMessage(const QString &message);
    template <typename... Fields>
    void send(QLatin1String name, const Fields &...fields)
    {
        sendMessage(HostMessages::message(name, fields...));
    }

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
