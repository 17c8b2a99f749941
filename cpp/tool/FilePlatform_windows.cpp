#include "tool/FilePlatform.h"

#include <QtGlobal>

bool FilePlatform::synchronise(QFileDevice &file)
{
    // Qt does it before the new file takes the place of the old one.
    Q_UNUSED(file)
    return true;
}

bool FilePlatform::synchroniseFolder(const QString &folder)
{
    // The file system keeps a journal of the names.
    Q_UNUSED(folder)
    return true;
}

bool FilePlatform::isDiskAtFault()
{
    // Qt keeps no error that tells a refusal from a fault.
    return false;
}
