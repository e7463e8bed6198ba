#include "chart/value_axis.h"

#include <cmath>
#include <limits>

namespace {
constexpr double StepBeforeAllZero = 5; ///< the top of an axis that has nothing to show
// 0.1 + 0.2 is on the line of 0.3.
constexpr double Slack = 1e-9;

/// The smallest round number that is not below `step`.
double RoundedUp(double step, bool whole)
{
    if (whole && step <= 1)
        return 1;
    const double power = std::pow(10, std::floor(std::log10(step)));
    for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
        const double candidate = factor * power;
        if (candidate >= step * (1 - Slack) && !(whole && std::trunc(candidate) != candidate))
            return candidate;
    }
    return 10 * power;
}

int Decimals(double step)
{
    constexpr int Most = 15;
    for (int decimals = 0; decimals < Most; ++decimals) {
        const double scaled = step * std::pow(10, decimals);
        if (std::abs(scaled - std::round(scaled)) < Slack * scaled)
            return decimals;
    }
    return Most;
}

template <typename Format>
QStringList Texts(const ValueAxis& axis, Format format)
{
    QStringList texts;
    for (int line = axis.first; line <= axis.last; ++line) {
        const double value = axis.ValueAt(line);
        // A line above the largest number has none to name it.
        texts.append(std::isfinite(value) ? format(value) : QString());
    }
    return texts;
}
} // namespace

ValueAxis NiceAxis(double least, double most, bool whole, int steps)
{
    if (least == 0 && most == 0)
        most = StepBeforeAllZero;
    // The range itself may be beyond the largest number.
    const double share = most / steps - least / steps;
    ValueAxis axis;
    axis.step = RoundedUp(std::max(share, std::numeric_limits<double>::min()), whole);
    axis.first = int(std::floor(least / axis.step + Slack));
    axis.last = int(std::ceil(most / axis.step - Slack));
    if (axis.last == axis.first)
        ++axis.last;
    return axis;
}

QStringList AxisTexts(const ValueAxis& axis, const QLocale& locale)
{
    const int decimals = Decimals(axis.step);
    return Texts(axis, [&](double value) { return locale.toString(value, 'f', decimals); });
}

QStringList ShortAxisTexts(const ValueAxis& axis, const QLocale& locale)
{
    constexpr int Digits = 3;
    return Texts(axis, [&](double value) { return locale.toString(value, 'g', Digits); });
}
