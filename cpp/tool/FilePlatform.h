#pragma once

#include <cstdio>

class QFileDevice;
class QString;

/// What files need of the platform beside Qt.
namespace FilePlatform
{
/// Waits until the disk has all of an open file, which no buffer holds back.
bool synchronise(QFileDevice &file);
/// Waits until the disk has the names that were given last in a folder.
bool synchroniseFolder(const QString &folder);
/// Whether the last call of the system failed because there is no room, or by a fault of the disk. Otherwise it was
/// refused, and another way may be open.
bool isDiskAtFault();
/// Empties a file, of any name, and opens it so that all goes to its end, wherever that is by then. Null when it can't.
std::FILE *openEmpty(const QString &path);
} // namespace FilePlatform
