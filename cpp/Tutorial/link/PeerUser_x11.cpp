#include "Tutorial/link/PeerUser.h"

#include <sys/socket.h>
#include <unistd.h>

bool isOwnUserOrRoot(qintptr socketDescriptor)
{
    const auto descriptor = static_cast<int>(socketDescriptor);
#ifdef Q_OS_LINUX
    ucred peer = {};
    socklen_t size = sizeof peer;
    if (::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0)
        return false;
    const uid_t user = peer.uid;
#else
    uid_t user = 0;
    gid_t group = 0;
    if (::getpeereid(descriptor, &user, &group) != 0)
        return false;
#endif
    return user == ::geteuid() || user == 0;
}
