#pragma once

#include <QtGlobal>

#include <compare>

/// Money: a signed 64-bit count of ten-thousandths. Nothing converts to it without a word; arithmetic that leaves the
/// range throws Overflow.
class Currency {
public:
    constexpr Currency() = default;
    static constexpr Currency FromTenThousandths(qint64 count) { return Currency(count); }
    static Currency FromWhole(qint64 units);

    constexpr qint64 TenThousandths() const { return m_count; }
    double ToDouble() const;

    Currency operator+(Currency other) const;
    Currency operator-(Currency other) const;
    Currency operator-() const;
    Currency operator*(qint64 factor) const;
    Currency& operator+=(Currency other) { return *this = *this + other; }
    Currency& operator-=(Currency other) { return *this = *this - other; }
    constexpr auto operator<=>(const Currency&) const = default;

    /// Rounded half away from zero to `digits` (0 to 4) decimals.
    Currency RoundedHalfAway(int digits) const;

private:
    constexpr explicit Currency(qint64 count)
        : m_count(count)
    {
    }
    qint64 m_count = 0;
};

/// To the nearest ten-thousandth, half to even, worked in extended precision. Throws Overflow beyond the range.
Currency CCur(double value);
