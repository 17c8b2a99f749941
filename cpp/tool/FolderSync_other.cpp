#include "tool/FolderSync.h"

bool syncFolder(const QString &)
{
    // The file system writes down by itself what is renamed.
    return true;
}
