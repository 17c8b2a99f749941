#include "tool/FilePlatform.h"

#include <QString>

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

std::FILE *FilePlatform::openEmpty(const QString &path)
{
    // The other functions know only names in the system's code page, which need not have the user's own.
    const std::wstring name = path.toStdWString();
    std::FILE *file = _wfopen(name.c_str(), L"wb");
    return file ? _wfreopen(name.c_str(), L"ab", file) : nullptr;
}
