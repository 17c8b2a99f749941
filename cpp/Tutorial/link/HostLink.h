#pragma once

#include "Tutorial/link/HostRecordReader.h"

#include <QObject>

class QLocalSocket;

/// The link to the host editor: the socket, the records on it, and the watch over it in both directions.
/// It is made once and never made again: after `disconnected()` or `silent()` it is over.
class HostLink : public QObject
{
    Q_OBJECT

public:
    HostLink();
    ~HostLink() override;

    /// A host editor that leaves more than this many bytes unread is given up, with a warning in the log.
    static constexpr qint64 kMaximumUnread = 64 * 1024 * 1024;

    /// Connects to the server of that name. One of another user is given up, with a warning in the log.
    void open(const QString &serverName);
    bool isConnected() const { return mHostConnected; }
    /// Drops the message without a word while there is no connection.
    void send(const QString &message);
    /// One tick of 100 ms. A link that was not opened has none. The watch counts them and looks at no clock: a
    /// machine that has slept for an hour has ticked once, and the host editor's clock has stood still as well.
    void tick();

public Q_SLOTS:
    void onReadyRead();

Q_SIGNALS:
    void connected();
    void received(const QString &message);
    /// The host editor has said "bye". What the same read holds after it is lost.
    void bye();
    /// Ten seconds have passed without a byte from the host editor, with a connection or without one.
    void silent();
    /// The host editor has closed the link, or was given up.
    void disconnected();

private:
    Q_DISABLE_COPY(HostLink)

    void onConnected();
    void onDisconnected();
    void giveUp();

    QLocalSocket *mSocket = nullptr; // a child; null when there is no link
    HostRecordReader mReader;
    bool mHostConnected = false;
    int mSilenceTicks = 0;
    int mAliveTicks = 0;
};
