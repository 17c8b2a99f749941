#include "tool/DataSupport.h"

#include "tool/Log.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <vector>

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

// The number that a name shows behind its base: plain, as digits only, or in round brackets and
// written in no other way than QString writes it. 0 if it shows none.
int plainNumber(const QString &name, int baseLength)
{
    const QStringRef rest = name.midRef(baseLength);
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    return std::all_of(rest.begin(), rest.end(), isDigit) ? rest.toInt() : 0;
}

int bracketNumber(const QString &name, int baseLength)
{
    if (name.size() < baseLength + 3 || name.at(baseLength) != QLatin1Char('(') || !name.endsWith(QLatin1Char(')')))
        return 0;
    const QStringRef inner = name.midRef(baseLength + 1, name.size() - baseLength - 2);
    const int number = inner.toInt();
    return QString::number(number) == inner ? number : 0;
}
} // namespace

bool DataSupport::readFile(const QString &path, QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        Log::warning("cpp/tool", "DataSupport::readFile", __LINE__) << "Failed to open" << path;
        return false;
    }
    const qint64 size = file.size();
    const bool fits = size < std::numeric_limits<int>::max();
    bytes.resize(fits ? static_cast<int>(size) : 0);
    QDataStream stream(&file);
    const int read = stream.readRawData(bytes.data(), bytes.size());
    file.close();
    if (read != size) {
        Log::warning("cpp/tool", "DataSupport::readFile", __LINE__) << "read bytes differs" << read << size;
        return false;
    }
    return true;
}

bool DataSupport::writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly | QFile::Truncate)) {
        Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__) << "Failed to open" << path;
        return false;
    }
    QDataStream stream(&file);
    const int written = stream.writeRawData(bytes.constData(), bytes.size());
    file.close();
    if (written != bytes.size()) {
        Log::warning("cpp/tool", "DataSupport::writeFile", __LINE__)
            << "write bytes differs" << written << bytes.size();
        return false;
    }
    return true;
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
        // A link to a folder is removed itself: what it leads to isn't part of this folder.
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

QString DataSupport::getPath(const QString &path)
{
    return QFileInfo(path).path();
}

QString DataSupport::getAbsolutePath(const QString &path)
{
    return QFileInfo(path).absolutePath();
}

QString DataSupport::getSuffix(const QString &path)
{
    return QFileInfo(path).suffix();
}

QString DataSupport::changeSuffix(const QString &path, const QString &suffix)
{
    return path.left(path.size() - getSuffix(path).size()) + suffix;
}

bool DataSupport::isAbsolutePath(const QString &path)
{
    if (path.startsWith(QLatin1Char('/')))
        return true;
    if (path.size() < 2 || path.at(1) != QLatin1Char(':'))
        return false;
    const QChar drive = path.at(0).toLower();
    return drive >= QLatin1Char('a') && drive <= QLatin1Char('z');
}

QString DataSupport::getIconPath(const QString &name)
{
    return QStringLiteral("icon/%1").arg(name);
}

QString DataSupport::getResourcePath(const QString &name)
{
    return QStringLiteral(":/%1").arg(name);
}

QStringList DataSupport::getStringList(const QList<int> &numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return texts;
}

QStringList DataSupport::getStringList(const QList<double> &numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QStringLiteral("%1").arg(number, 0, 'g', -1));
    return texts;
}

QList<int> DataSupport::getIntList(const QVariantList &values)
{
    QList<int> numbers;
    for (const QVariant &value : values)
        numbers.append(value.toInt());
    return numbers;
}

QList<int> DataSupport::getIntList(const QStringList &texts)
{
    QList<int> numbers;
    for (const QString &text : texts)
        numbers.append(text.toInt());
    return numbers;
}

QVariantList DataSupport::getVariantList(const QList<int> &numbers)
{
    QVariantList values;
    for (const int number : numbers)
        values.append(number);
    return values;
}

QString DataSupport::join(const QList<int> &numbers, const QString &separator)
{
    return getStringList(numbers).join(separator);
}

bool DataSupport::getBool(const QVariantMap &map, const QString &key, bool fallback)
{
    return map.contains(key) ? map.value(key).toBool() : fallback;
}

int DataSupport::getInt(const QVariantMap &map, const QString &key, int fallback)
{
    return map.contains(key) ? map.value(key).toInt() : fallback;
}

int DataSupport::getUniqueId(const QList<int> &ids, int firstId)
{
    // Among the first n + 1 candidates at least one is free.
    std::vector<bool> used(static_cast<std::size_t>(ids.size()) + 1, false);
    for (const int id : ids) {
        const qint64 offset = static_cast<qint64>(id) - firstId;
        if (offset >= 0 && offset < ids.size())
            used[static_cast<std::size_t>(offset)] = true;
    }
    return firstId + static_cast<int>(std::find(used.cbegin(), used.cend(), false) - used.cbegin());
}

QString DataSupport::getUniqueName(const QStringList &names, const QString &base, int digits)
{
    const bool inBrackets = digits < 0;
    bool found = false;
    qint64 number = 0;
    for (const QString &name : names) {
        if (name == base)
            found = true;
        else if (name.startsWith(base))
            number = std::max<qint64>(number, (inBrackets ? bracketNumber : plainNumber)(name, base.size()));
    }
    if (digits == -1 && !found)
        return base;

    // The next number is free at once, unless names go on past the numbers that count.
    QString uniqueName;
    do {
        ++number;
        uniqueName = base
            + (inBrackets ? QStringLiteral("(%1)").arg(number)
                          : QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0')));
    } while (names.contains(uniqueName));
    return uniqueName;
}

QString getExistsFilename(const QString &path)
{
    Log::debug("cpp/tool", "getExistsFilename", __LINE__) << QDir::currentPath();
    return DataSupport::getResourcePath(path);
}
