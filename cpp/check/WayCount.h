#pragma once

#include <QString>

/// A number of ways: exact as long as 64 bits hold it, with three digits and a power of ten beyond that. Each question
/// can double it, so that it may have thousands of digits.
class WayCount
{
public:
    WayCount() = default;
    explicit WayCount(quint64 count) : mExact(count) { }

    WayCount &operator+=(const WayCount &other);

    bool isExact() const { return mMantissa == 0; }
    /// Such as "4" or "1.41e1505".
    QString text() const;

private:
    struct Rounded
    {
        double mantissa;
        qint64 exponent; ///< of two
    };

    Rounded rounded() const;

    quint64 mExact = 0;
    double mMantissa = 0; ///< from a half to one; 0 while the number is exact
    qint64 mExponent = 0;
};
