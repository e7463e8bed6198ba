#pragma once

#include "base/currency.h"

#include <QStringView>
#include <QVarLengthArray>

#include <optional>

/// A number as it was read: its digits without leading zeros, times ten to the `exponent`.
struct DecimalNumber {
    bool negative = false;
    QVarLengthArray<char, 40> digits; ///< '0' to '9'
    qint64 exponent = 0;

    bool FitsDouble() const;
    /// Throw Overflow beyond the range.
    double ToDouble() const;
    Currency ToCurrency() const;
};

/// The whole text as a number of the user's locale; nothing when it is none.
std::optional<DecimalNumber> ReadNumber(QStringView text);

/// The 15 significant digits that stand for a double.
/// Throws Overflow for what is no finite number.
DecimalNumber DecimalOf(double value);

/// The digits of the number times ten to `decimals`, rounded half away from zero, at least `decimals` + 1 of them.
QVarLengthArray<char, 40> RoundedDigits(const DecimalNumber& number, int decimals);
