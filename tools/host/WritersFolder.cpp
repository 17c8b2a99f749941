#include "WritersFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{
/// Copies a file for the writer to change, whatever the permissions of the installed one are.
bool copyWritable(const QString &from, const QString &to)
{
    return QDir().mkpath(QFileInfo(to).path()) && QFile::copy(from, to)
        && QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
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
        return QStringLiteral("the sample tutorials are missing: \"%1\"").arg(samples);
    if (!QDir().mkpath(folder))
        return QStringLiteral("cannot make the folder \"%1\"").arg(folder);
    // It comes to its place in one go: half of it would be taken for the writer's own.
    QTemporaryDir copy(folder + QLatin1String("/.tutorial-win-XXXXXX"));
    if (!copy.isValid())
        return QStringLiteral("cannot write into the folder \"%1\"").arg(folder);
    QDirIterator files(samples, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString written = copy.filePath(QStringLiteral("tutorial-win/") + QDir(samples).relativeFilePath(file));
        if (!copyWritable(file, written))
            return QStringLiteral("cannot write \"%1\"").arg(written);
    }
    if (!QDir().rename(copy.filePath(QStringLiteral("tutorial-win")), target))
        return QStringLiteral("cannot make the folder \"%1\"").arg(target);
    return QString();
}
