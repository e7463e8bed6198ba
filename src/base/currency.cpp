#include "base/currency.h"

#include "base/runtime_error.h"

#include <cmath>

namespace {

constexpr qint64 Unit = 10000;
constexpr qint64 StepOfDigits[] = {10000, 1000, 100, 10, 1};

} // namespace

Currency Currency::FromWhole(qint64 units)
{
    return FromTenThousandths(Unit) * units;
}

double Currency::ToDouble() const
{
    return double(m_count) / double(Unit);
}

Currency Currency::operator+(Currency other) const
{
    qint64 sum = 0;
    if (__builtin_add_overflow(m_count, other.m_count, &sum))
        throw Overflow();
    return Currency(sum);
}

Currency Currency::operator-(Currency other) const
{
    qint64 difference = 0;
    if (__builtin_sub_overflow(m_count, other.m_count, &difference))
        throw Overflow();
    return Currency(difference);
}

Currency Currency::operator-() const
{
    return Currency() - *this;
}

Currency Currency::operator*(qint64 factor) const
{
    qint64 product = 0;
    if (__builtin_mul_overflow(m_count, factor, &product))
        throw Overflow();
    return Currency(product);
}

Currency Currency::RoundedHalfAway(int digits) const
{
    const qint64 step = StepOfDigits[digits];
    const qint64 rest = m_count % step;
    const Currency cut(m_count - rest);
    if (rest * 2 >= step)
        return cut + Currency(step);
    if (-rest * 2 >= step && step > 1)
        return cut - Currency(step);
    return cut;
}

Currency CCur(double value)
{
    // The wide format decides whether a value is a tie: in plain double the product of 0.12345 and 10000 would be one.
    const long double count = std::rint(static_cast<long double>(value) * 10000.0L);
    constexpr long double Limit = 9223372036854775808.0L;
    if (!(count >= -Limit && count < Limit))
        throw Overflow();
    return Currency::FromTenThousandths(qint64(count));
}
