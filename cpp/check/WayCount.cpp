#include "check/WayCount.h"

#include <cmath>
#include <limits>
#include <utility>

WayCount &WayCount::operator+=(const WayCount &other)
{
    if (isExact() && other.isExact() && other.mExact <= std::numeric_limits<quint64>::max() - mExact) {
        mExact += other.mExact;
        return *this;
    }
    Rounded large = rounded();
    Rounded small = other.rounded();
    if (large.exponent < small.exponent)
        std::swap(large, small);
    // What is smaller than the last digit adds nothing.
    const qint64 distance = large.exponent - small.exponent;
    int shift = 0;
    mMantissa = std::frexp(large.mantissa + std::ldexp(small.mantissa, distance > 64 ? -64 : -int(distance)), &shift);
    mExponent = large.exponent + shift;
    return *this;
}

WayCount::Rounded WayCount::rounded() const
{
    if (!isExact())
        return { mMantissa, mExponent };
    int exponent = 0;
    const double mantissa = std::frexp(double(mExact), &exponent);
    return { mantissa, exponent };
}

QString WayCount::text() const
{
    if (isExact())
        return QString::number(mExact);
    const double logarithm = std::log10(mMantissa) + double(mExponent) * std::log10(2.0);
    double power = std::floor(logarithm);
    double digits = std::round(std::pow(10.0, logarithm - power) * 100) / 100;
    if (digits >= 10) {
        digits /= 10;
        ++power;
    }
    return QStringLiteral("%1e%2").arg(digits, 0, 'f', 2).arg(power, 0, 'f', 0);
}
