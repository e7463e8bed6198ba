#pragma once

#include <QLocale>
#include <QStringList>

/// A value axis of equal steps at round numbers. Its lines stand at whole multiples of the step, so that 0 is exactly
/// on one of them.
struct ValueAxis {
    double step = 1;
    int first = 0; ///< the lowest line, in steps from 0
    int last = 1; ///< the highest line

    int LineCount() const { return last - first + 1; }
    double ValueAt(int line) const { return line * step; }
    /// The height of a value on the axis: 0 at the lowest line, 1 at the highest.
    double Share(double value) const { return (value / step - first) / (last - first); }
};

/// An axis from `least` (at most 0) to `most` (at least 0) in about `steps` steps of 1, 2, 2.5 or 5 times a power of
/// ten. Whole data get whole steps. Where all is 0 the axis has room for a little above it.
ValueAxis NiceAxis(double least, double most, bool whole, int steps);

/// The texts of the axis' lines from the lowest up, in the locale's digits and with as many decimals as the step needs.
QStringList AxisTexts(const ValueAxis& axis, const QLocale& locale);
/// The same in the short form with exponents, for numbers that would take too much room.
QStringList ShortAxisTexts(const ValueAxis& axis, const QLocale& locale);
