#include "tool/FreeNames.h"

#include <algorithm>
#include <limits>

namespace
{
/// The number that the name shows after that base, as digits only; 0 if it shows none.
int plainNumber(const QString &name, const QString &base)
{
    if (!name.startsWith(base))
        return 0;
    const QStringRef rest = name.midRef(base.size());
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    return std::all_of(rest.begin(), rest.end(), isDigit) ? rest.toInt() : 0;
}
} // namespace

FreeNames::FreeNames(const QStringList &used) : mUsed(used) { }

QString FreeNames::next(const QString &base, int digits)
{
    if (digits < 0)
        readTaken();
    QString name = base;
    if (digits != -1 || mTaken.contains(base)) {
        qint64 &number = digits < 0 ? mHighestInBrackets[base] : highestPlain(base);
        // The next number is free at once, unless names go on past the numbers that count.
        do {
            ++number;
            name = base
                + (digits < 0 ? QStringLiteral("(%1)").arg(number)
                              : QStringLiteral("%1").arg(number, digits, 10, QLatin1Char('0')));
        } while (number > std::numeric_limits<int>::max() && isTaken(name));
    }
    mGiven.append(name);
    return name;
}

const QString &FreeNames::nameAt(int position) const
{
    return position < mUsed.size() ? mUsed.at(position) : mGiven.at(position - mUsed.size());
}

qint64 &FreeNames::highestPlain(const QString &base)
{
    PlainNumbers &numbers = mPlain[base];
    for (; numbers.readCount < mUsed.size() + mGiven.size(); ++numbers.readCount)
        numbers.highest = std::max<qint64>(numbers.highest, plainNumber(nameAt(numbers.readCount), base));
    return numbers.highest;
}

bool FreeNames::isTaken(const QString &name)
{
    readTaken();
    return mTaken.contains(name);
}

void FreeNames::readTaken()
{
    if (mReadCount == 0)
        mTaken.reserve(mUsed.size());
    for (; mReadCount < mUsed.size() + mGiven.size(); ++mReadCount) {
        const QString &name = nameAt(mReadCount);
        mTaken.insert(name);
        const int bracket = name.lastIndexOf(QLatin1Char('('));
        if (bracket < 0 || !name.endsWith(QLatin1Char(')')))
            continue;
        // Written in no other way than QString writes it.
        const QString digits = name.mid(bracket + 1, name.size() - bracket - 2);
        const int number = digits.toInt();
        if (number > 0 && QString::number(number) == digits) {
            qint64 &highest = mHighestInBrackets[name.left(bracket)];
            highest = std::max<qint64>(highest, number);
        }
    }
}
