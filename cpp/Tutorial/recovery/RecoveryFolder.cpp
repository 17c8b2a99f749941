#include "Tutorial/recovery/RecoveryFolder.h"

#include "tool/DataSupport.h"
#include "tool/FilePlatform.h"
#include "tool/Log.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>

namespace
{
const QLatin1String kCopy("/copy.json");
const QLatin1String kDamaged("/damaged.json");
const QString kLock = QStringLiteral("/lock");

QString shortHash(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = info.absoluteDir().canonicalPath();
    const QString whole = (folder.isEmpty() ? info.absolutePath() : folder) + QLatin1Char('/') + info.fileName();
    return QString::fromLatin1(QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha1).toHex().left(16));
}

/// How the names of the folders begin.
QString prefixOf(const QString &project, const QString &path)
{
    const QString prefix = shortHash(project) + QLatin1Char('-');
    return path.isEmpty() ? prefix : prefix + shortHash(path) + QLatin1Char('-');
}
} // namespace

RecoveryFolder::RecoveryFolder(const QString &path) : mPath(path), mLock(path + kLock) { }

std::unique_ptr<RecoveryFolder> RecoveryFolder::create(const QString &root, const QString &project, const QString &path)
{
    DataSupport::mkpath(root);
    // Between the two steps somebody else may have taken it for what was left over.
    for (int attempt = 0; attempt < 3; ++attempt) {
        QTemporaryDir made(root + QLatin1Char('/') + prefixOf(project, path) + QLatin1String("XXXXXX"));
        if (!made.isValid())
            break;
        made.setAutoRemove(false);
        std::unique_ptr<RecoveryFolder> folder(new RecoveryFolder(made.path()));
        if (folder->mLock.take() && FilePlatform::synchroniseFolder(root))
            return folder;
    }
    Log::warning("cpp/Tutorial/recovery", "RecoveryFolder::create", __LINE__) << "Failed to make a folder in" << root;
    return nullptr;
}

QStringList RecoveryFolder::find(const QString &root, const QString &project, const QString &path)
{
    QStringList places;
    const QStringList filter{ prefixOf(project, path) + QLatin1Char('*') };
    for (const QFileInfo &info : QDir(root).entryInfoList(filter, QDir::Dirs))
        places.append(info.filePath());
    const auto writtenAt = [](const QString &place) { return QFileInfo(place + kCopy).lastModified(); };
    std::sort(places.begin(), places.end(),
              [&](const QString &one, const QString &other) { return writtenAt(one) > writtenAt(other); });
    return places;
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::take(const QString &place)
{
    std::unique_ptr<RecoveryFolder> folder(new RecoveryFolder(place));
    if (QFileInfo::exists(place + kDamaged) || !folder->mLock.take())
        return nullptr;
    if (QFileInfo::exists(folder->copyPath()))
        return folder;
    folder->remove();
    return nullptr;
}

bool RecoveryFolder::write(const QByteArray &bytes) const
{
    return DataSupport::writeFile(copyPath(), bytes);
}

bool RecoveryFolder::read(QByteArray &bytes) const
{
    return DataSupport::readFile(copyPath(), bytes);
}

bool RecoveryFolder::isThere() const
{
    return QFileInfo::exists(mLock.path());
}

bool RecoveryFolder::remove()
{
    // All but the lock first, with what a write has left that was cut short, so that nobody finds it once the lock is
    // gone. Somebody else may have locked the folder by then, who removes it as we do.
    QDir folder(mPath);
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (folder.filePath(name) != mLock.path())
            folder.remove(name);
    }
    const bool isGone = !QFileInfo::exists(copyPath());
    mLock.release();
    if (isGone)
        folder.remove(mLock.path());
    QDir().rmdir(mPath);
    return isGone;
}

QString RecoveryFolder::setAside()
{
    const bool isRenamed = QFile::rename(copyPath(), mPath + kDamaged);
    mLock.release();
    return QDir::toNativeSeparators(isRenamed ? mPath + kDamaged : copyPath());
}

QString RecoveryFolder::copyPath() const
{
    return mPath + kCopy;
}
