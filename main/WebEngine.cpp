#include "WebEngine.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QtWebEngine>

namespace
{
constexpr char kVariable[] = "QTWEBENGINE_CHROMIUM_FLAGS";

// A page's security policy covers what it loads, but not its peer connections, and a page can make
// those in a blank frame that no script of ours has prepared. So the ways are closed below the pages:
// no name is resolved, datagrams go out by a proxy only, and the proxy for all else, this machine
// included, has a port that nothing can listen on.
constexpr char kFlags[] = "--host-resolver-rules=\"MAP * ~NOTFOUND\" "
                          "--force-webrtc-ip-handling-policy=disable_non_proxied_udp "
                          "--proxy-server=socks5://127.0.0.1:0 --proxy-bypass-list=<-loopback>";

void closeNetwork()
{
    QByteArray flags = qgetenv(kVariable);
    if (!flags.isEmpty())
        flags += ' ';
    flags += kFlags;
    qputenv(kVariable, flags);
}
} // namespace

void WebEngine::prepare(bool hasPage)
{
    // What the authoring mode opens beside itself inherits its environment.
    if (hasPage)
        closeNetwork();
    // It draws with the same context as the screens.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, true);
}

void WebEngine::initialize()
{
    QtWebEngine::initialize();
}
