#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// Gives out one free name after the other, none twice. Each name that is in use is read once for
/// each base with plain numbers, and once for all else.
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
    const QString &nameAt(int position) const;
    bool isTaken(const QString &name);
    /// Reads the names that were not read yet into mTaken and mHighestInBrackets.
    void readTaken();

    // The names in use, and those given out.
    QStringList mUsed;
    QStringList mGiven;
    int mReadCount = 0;
    QSet<QString> mTaken;
    // By the base. What is not in a hash has no number yet, or was not asked for.
    QHash<QString, qint64> mHighestInBrackets;
    QHash<QString, PlainNumbers> mPlain;
};
