#include "tool/DataSupport.h"

#include "tool/FreeNames.h"
#include "tool/Log.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

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
    // Not through toLower, which makes a Latin letter of other signs, too.
    const ushort drive = path.at(0).unicode();
    return (drive >= 'A' && drive <= 'Z') || (drive >= 'a' && drive <= 'z');
}

bool DataSupport::isFileName(const QString &name)
{
    const auto leadsAway = [](QChar character) {
        return character == QLatin1Char('/') || character == QLatin1Char('\\') || character == QLatin1Char(':')
            || character.isNull();
    };
    return std::none_of(name.begin(), name.end(), leadsAway);
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
    return FreeNames(names).next(base, digits);
}

QString getExistsFilename(const QString &path)
{
    Log::debug("cpp/tool", "getExistsFilename", __LINE__) << QDir::currentPath();
    return DataSupport::getResourcePath(path);
}
