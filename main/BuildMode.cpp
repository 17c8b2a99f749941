// The constants of the build. This file is compiled once for each of the two programs.

#include "SystemService/SystemService.h"
#include "Tutorial/TutorialManager.h"

bool TutorialManager::isMakingSupported()
{
#ifdef TRELVANE_MAKING_SUPPORTED
    return true;
#else
    return false;
#endif
}

bool SystemService::debug()
{
    return false;
}

bool SystemService::develop()
{
    return false;
}
