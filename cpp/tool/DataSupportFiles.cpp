// Files and folders.

#include "tool/DataSupport.h"
#include "tool/FilePlatform.h"
#include "tool/Log.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace
{
void addWritePermissions(const QString &path)
{
    QFile::setPermissions(path, QFile::permissions(path) | QFile::WriteOwner | QFile::WriteUser | QFile::WriteOther);
}

bool rename(const QString &from, const QString &to)
{
    if (QFile::rename(from, to))
        return true;
    Log::warning("cpp/tool", "DataSupport::copyFile", __LINE__) << "Failed to rename" << from << to;
    return false;
}

/// What a chain of symbolic links leads to, whether it is there or not.
QFileInfo linkTarget(const QString &path)
{
    constexpr int kMaximumLinks = 40;
    QFileInfo info(path);
    for (int i = 0; i < kMaximumLinks && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info;
}

/// The file is open without a buffer, so that no byte fails later.
bool writeBytes(QFileDevice &file, const QByteArray &bytes)
{
    QDataStream stream(&file);
    const int written = stream.writeRawData(bytes.constData(), bytes.size());
    if (written == bytes.size())
        return true;
    Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__) << "write bytes differs" << written << bytes.size();
    return false;
}

/// Gives the file this contents and waits for the disk.
bool writeToDisk(QFileDevice &file, const QByteArray &bytes)
{
    if (!writeBytes(file, bytes) || (file.size() > bytes.size() && !file.resize(bytes.size())))
        return false;
    if (FilePlatform::synchronise(file))
        return true;
    Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__) << "Failed to synchronise" << file.fileName();
    return false;
}

/// The name of a new file, which must be on the disk too.
bool writeNameToDisk(const QString &path)
{
    if (FilePlatform::synchroniseFolder(QFileInfo(path).path()))
        return true;
    Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__) << "Failed to synchronise the folder of" << path;
    return false;
}

enum class Outcome { Done, Failed, Refused };

Outcome failure(const QSaveFile &file)
{
    if (!FilePlatform::isDiskAtFault())
        return Outcome::Refused;
    Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__)
        << "Failed to replace" << file.fileName() << file.errorString();
    return Outcome::Failed;
}

/// Puts a new file in the place of the old one, which stays whole until then. Refused where no new file may stand.
Outcome replace(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly | QFile::Unbuffered))
        return failure(file);
    // Without what the present user may do, which would be taken for the owner's.
    const QFileInfo former(path);
    if (former.exists())
        file.setPermissions(former.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser));
    // Qt synchronises the file too, and takes no notice of a failure.
    if (!writeToDisk(file, bytes))
        return Outcome::Failed;
    if (!file.commit())
        return failure(file);
    return writeNameToDisk(path) ? Outcome::Done : Outcome::Failed;
}

bool writeInPlace(const QFileInfo &target, const QByteArray &bytes)
{
    // Kept to be put back: there was room for them.
    QByteArray former;
    if (target.isFile() && !DataSupport::readFile(target.filePath(), former))
        return false;
    QFile file(target.filePath());
    if (!file.open((target.isFile() ? QFile::ReadWrite : QFile::WriteOnly) | QFile::Unbuffered)) {
        Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__) << "Failed to open" << target.filePath();
        return false;
    }
    // A device.
    if (target.exists() && !target.isFile())
        return writeBytes(file, bytes);
    if (writeToDisk(file, bytes))
        return target.exists() || writeNameToDisk(target.filePath());
    if (target.exists()) {
        file.seek(0);
        writeToDisk(file, former);
    } else {
        file.remove();
    }
    return false;
}
} // namespace

bool DataSupport::openWhole(QFile &file)
{
    const QFileInfo info(file.fileName());
    return info.isFile() && info.size() <= kMostBytes && file.open(QFile::ReadOnly);
}

bool DataSupport::readFile(const QString &path, QByteArray &bytes)
{
    QFile file(path);
    if (!openWhole(file)) {
        Log::warning("cpp/tool", "DataSupport::readFile", __LINE__) << "Failed to open" << path << file.size();
        return false;
    }
    const int size = static_cast<int>(file.size());
    bytes.resize(size);
    QDataStream stream(&file);
    const int read = stream.readRawData(bytes.data(), bytes.size());
    file.close();
    if (read != size) {
        Log::warning("cpp/tool", "DataSupport::readFile", __LINE__) << "read bytes differs" << read << size;
        return false;
    }
    return true;
}

bool DataSupport::isDamaged(const QString &text, const QByteArray &bytes)
{
    // Those that stand in the file itself are its text.
    return text.contains(QChar::ReplacementCharacter)
        && text.count(QChar::ReplacementCharacter) > bytes.count("\xef\xbf\xbd");
}

bool DataSupport::writeFile(const QString &path, const QByteArray &bytes)
{
    const QFileInfo target = linkTarget(path);
    const bool replaceable = target.isFile() || !(target.exists() || target.isSymLink());
    const Outcome outcome = replaceable ? replace(target.filePath(), bytes) : Outcome::Refused;
    return outcome == Outcome::Refused ? writeInPlace(target, bytes) : outcome == Outcome::Done;
}

bool DataSupport::copyFile(const QString &source, const QString &destination)
{
    const QString tmp = destination + QLatin1String(".tmp");
    const QString backup = destination + QLatin1String(".tmp2");
    if (QFile::exists(tmp))
        QFile::remove(tmp);
    if (!QFile::copy(source, tmp)) {
        Log::warning("cpp/tool", "DataSupport::copyFile", __LINE__) << "Failed to copy" << source << tmp;
        QFile::remove(tmp);
        return false;
    }

    const bool replaces = QFile::exists(destination);
    if (replaces) {
        if (QFile::exists(backup))
            QFile::remove(backup);
        if (!rename(destination, backup)) {
            QFile::remove(tmp);
            return false;
        }
    }
    if (!rename(tmp, destination)) {
        if (replaces)
            QFile::rename(backup, destination);
        return false;
    }
    if (replaces)
        QFile::remove(backup);
    return true;
}

bool DataSupport::mkdir(const QString &path)
{
    const QFileInfo info(path);
    if (info.absoluteDir().mkdir(info.fileName()))
        return true;
    Log::warning("cpp/tool", "DataSupport::mkdir", __LINE__) << "Failed to mkdir" << path;
    return false;
}

bool DataSupport::mkpath(const QString &path)
{
    const QString whole = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (QFileInfo(whole).isDir())
        return true;
    const QString parent = QFileInfo(whole).path();
    if (parent == whole || !mkpath(parent))
        return false;
    // Another program may be about to make it too.
    if ((QDir().mkdir(whole) || QFileInfo(whole).isDir()) && FilePlatform::synchroniseFolder(parent))
        return true;
    Log::warning("cpp/tool", "DataSupport::mkpath", __LINE__) << "Failed to mkdir" << whole;
    return false;
}

bool DataSupport::rmdir(const QString &path)
{
    if (!QFileInfo::exists(path))
        return true;

    QDir dir(path);
    const QStringList entries = dir.entryList(QDir::Dirs | QDir::Files | QDir::Drives, QDir::Unsorted);
    for (const QString &entry : entries) {
        if (entry == QLatin1String(".") || entry == QLatin1String(".."))
            continue;
        const QFileInfo info(path + QLatin1Char('/') + entry);
        // A symbolic link to a folder is removed itself: what it leads to isn't part of this folder.
        if (info.isDir() && !info.isSymLink()) {
            if (!rmdir(info.filePath())) {
                Log::warning("cpp/tool", "DataSupport::rmdir", __LINE__) << "Failed to rmdir" << path << entry;
                return false;
            }
            continue;
        }
        if (!info.isSymLink())
            addWritePermissions(info.filePath());
        if (!dir.remove(entry)) {
            Log::warning("cpp/tool", "DataSupport::rmdir", __LINE__) << "Failed to remove" << entry;
            return false;
        }
    }

    addWritePermissions(path);
    const QFileInfo info(QDir::cleanPath(path));
    if (QDir(info.path()).rmdir(info.fileName()))
        return true;
    Log::warning("cpp/tool", "DataSupport::rmdir", __LINE__)
        << "Failed to rmdir" << path << info.path() << info.fileName();
    return false;
}

bool DataSupport::removeFile(const QString &path)
{
    addWritePermissions(path);
    return QFile::remove(path);
}

bool DataSupport::fileExists(const QString &path)
{
    return QFileInfo::exists(path);
}
