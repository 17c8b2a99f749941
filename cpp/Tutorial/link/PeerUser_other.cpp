#include "Tutorial/link/PeerUser.h"

bool isOwnUserOrRoot(qintptr)
{
    return true;
}
