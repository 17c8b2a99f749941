// usage: trelvane_floor application|window <suffix of the server's name>
//
// The least that a process of this toolkit does with the link: it connects, splits what comes into messages and
// fields, and answers the question for the tutorials. "application" has nothing else; "window" also has what any
// program with a web view and a screen has: the web engine made ready, a QML engine and an empty window.

#include "Tutorial/link/HostMessages.h"
#include "Tutorial/link/HostRecord.h"

#include <QApplication>
#include <QLocalSocket>
#include <QQmlApplicationEngine>
#include <QtWebEngine>

namespace
{
class BareLoop
{
public:
    explicit BareLoop(QLocalSocket *socket) : mSocket(socket) { }

    void read()
    {
        mPending += mSocket->readAll();
        int begin = 0;
        for (int end = mPending.indexOf('\0'); end >= 0; end = mPending.indexOf('\0', begin)) {
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

    QLocalSocket *mSocket;
    QByteArray mPending;
};
} // namespace

int main(int argc, char *argv[])
{
    const bool window = argc > 1 && qstrcmp(argv[1], "window") == 0;
    if (window)
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, true);
    QApplication application(argc, argv);
    QQmlApplicationEngine *engine = nullptr;
    if (window) {
        QtWebEngine::initialize();
        engine = new QQmlApplicationEngine(&application);
        engine->loadData("import QtQuick.Window 2.2\nWindow { visible: true; width: 1; height: 1 }");
    }
    QLocalSocket socket;
    BareLoop loop(&socket);
    QObject::connect(&socket, &QLocalSocket::readyRead, &socket, [&loop] { loop.read(); });
    QObject::connect(&socket, &QLocalSocket::disconnected, &application, &QCoreApplication::quit);
    socket.connectToServer(HostMessages::serverName(application.arguments().value(2)));
    return QApplication::exec();
}
