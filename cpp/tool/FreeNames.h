#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// Gives out one free name after the other, none twice. Each name that is in use is read once for
/// all names with numbers in brackets, and once for each base with plain numbers.
class FreeNames
{
public:
    explicit FreeNames(const QStringList &used);

    /// The base with the number after the highest one in use, in the style of that many digits (see
    /// DataSupport::getUniqueName).
    QString next(const QString &base, int digits);

private:
    struct PlainNumbers
    {
        qint64 highest = 0;
        int readCount = 0;
    };

    qint64 &highestPlain(const QString &base);
    QString take(const QString &name);

    QStringList mNames;
    QSet<QString> mTaken;
    // By the base. What is not in a hash has no number yet, or was not asked for.
    QHash<QString, qint64> mHighestInBrackets;
    QHash<QString, PlainNumbers> mPlain;
};
