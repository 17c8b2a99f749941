// usage: trelvane_floor <suffix of the server's name> [log] [timers] [window]
//
// The least that a process of this toolkit does with the link: it connects, splits what comes into messages and
// fields, and answers the question for the tutorials. The words add what the program can't leave out either:
//
//     log      each message is a line, flushed on its own, in a file and in the standard error output
//     timers   the two that always run, with nothing to do
//     window   the web engine made ready, a QML engine, and an empty window

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"

#include <QApplication>
#include <QDir>
#include <QLocalSocket>
#include <QQmlApplicationEngine>
#include <QTimer>
#include <QtWebEngine>

#include <cstdio>
#include <memory>

namespace
{
class BareLoop
{
public:
    BareLoop(QLocalSocket *socket, std::FILE *log) : mSocket(socket), mLog(log) { }

    void read()
    {
        mPending += mSocket->readAll();
        int begin = 0;
        for (int end = mPending.indexOf('\0'); end >= 0; end = mPending.indexOf('\0', begin)) {
            if (mLog)
                write(mPending.constData() + begin, end - begin);
            const QString text = QString::fromUtf8(mPending.constData() + begin + 2, end - begin - 2);
            for (const QString &message : text.split(QLatin1Char(HostRecord::kMessageStart)))
                take(message.split(HostMessages::kFieldSeparator));
            begin = end + 1;
        }
        mPending.remove(0, begin);
    }

private:
    void take(const QStringList &fields)
    {
        if (fields.first() == HostMessages::FromHost::kTutorialList)
            mSocket->write(HostRecord::encode(HostRecord::kToHost, HostMessages::ToHost::kTutorialList));
    }

    void write(const char *line, int size)
    {
        for (std::FILE *file : { mLog, stderr }) {
            std::fwrite(line, 1, static_cast<size_t>(size), file);
            std::fflush(file);
        }
    }

    QLocalSocket *mSocket;
    std::FILE *mLog;
    QByteArray mPending;
};
} // namespace

int main(int argc, char *argv[])
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const bool window = words.contains(QLatin1String("window"));
    if (window)
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, true);
    QApplication application(argc, argv);
    std::unique_ptr<QQmlApplicationEngine> engine;
    if (window) {
        QtWebEngine::initialize();
        engine = std::make_unique<QQmlApplicationEngine>();
        engine->loadData("import QtQuick.Window 2.2\nWindow { visible: true; width: 1; height: 1 }");
    }
    std::FILE *log = nullptr;
    if (words.contains(QLatin1String("log")))
        log = std::fopen(QFile::encodeName(QDir::home().filePath(QStringLiteral("log"))).constData(), "wb");
    QTimer timers[2];
    if (words.contains(QLatin1String("timers"))) {
        timers[0].start(10);
        timers[1].start(100);
    }
    QLocalSocket socket;
    BareLoop loop(&socket, log);
    QObject::connect(&socket, &QLocalSocket::readyRead, &socket, [&loop] { loop.read(); });
    QObject::connect(&socket, &QLocalSocket::disconnected, &application, &QCoreApplication::quit);
    socket.connectToServer(HostMessages::serverName(words.value(0)));
    return QApplication::exec();
}
