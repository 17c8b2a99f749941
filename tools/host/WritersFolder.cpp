#include "WritersFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{
/// Copies a file for the writer to change, whatever the permissions of the installed one are. Empty on success, else
/// what the system says.
QString copyWritable(const QString &from, const QString &to)
{
    if (!QDir().mkpath(QFileInfo(to).path()))
        return qt_error_string();
    QFile source(from);
    if (!source.copy(to))
        return source.errorString();
    QFile copy(to);
    return copy.setPermissions(copy.permissions() | QFile::WriteOwner) ? QString() : copy.errorString();
}

/// "reason" is what the system says.
QString obstacle(const QString &what, const QString &reason)
{
    return QStringLiteral("%1: %2\n\nSee to it that this folder can be written and that its disk has room. Or start "
                          "\"trelvane-host --author\" in a folder of your choice.")
        .arg(what, reason);
}
} // namespace

QString WritersFolder::path()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1String("/Trelvane");
}

QString WritersFolder::samples()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/" TRELVANE_HOST_DATA_DIR)
                           + QLatin1String("/tutorial-win"));
}

QString WritersFolder::layOut(const QString &folder, const QString &samples)
{
    const QString target = folder + QLatin1String("/tutorial-win");
    if (QFileInfo::exists(target))
        return QString();
    if (!QFileInfo(samples).isDir())
        return QStringLiteral("the sample tutorials are missing: \"%1\"\n\nInstall the program anew.").arg(samples);
    if (!QDir().mkpath(folder))
        return obstacle(QStringLiteral("cannot make the folder \"%1\"").arg(folder), qt_error_string());
    // It comes to its place in one go: half of it would be taken for the writer's own.
    QTemporaryDir copy(folder + QLatin1String("/.tutorial-win-XXXXXX"));
    if (!copy.isValid())
        return obstacle(QStringLiteral("cannot write into the folder \"%1\"").arg(folder), copy.errorString());
    QDirIterator files(samples, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString written = copy.filePath(QStringLiteral("tutorial-win/") + QDir(samples).relativeFilePath(file));
        const QString reason = copyWritable(file, written);
        if (!reason.isEmpty())
            return obstacle(QStringLiteral("cannot write \"%1\"").arg(written), reason);
    }
    // Another start may have been first, whose copy is as good.
    if (!QDir().rename(copy.filePath(QStringLiteral("tutorial-win")), target) && !QFileInfo::exists(target))
        return obstacle(QStringLiteral("cannot make the folder \"%1\"").arg(target), qt_error_string());
    return QString();
}
