#include "tool/DataSupport.h"

#include "tool/Log.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace
{
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
