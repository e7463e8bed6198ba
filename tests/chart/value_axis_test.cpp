#include "chart/value_axis.h"
#include "support/test.h"

#include <cmath>

namespace {

TEST(NiceAxes, StandOnRoundNumbersAndHoldAllValues)
{
    ExpectCases("value_axes.txt", [](const QString& kind, const QString& values) {
        const ValueAxis axis =
            NiceAxis(values.section(' ', 0, 0).toDouble(), values.section(' ', 1).toDouble(), kind == "whole", 5);
        return QString("%1: %2 %3").arg(axis.step).arg(axis.first).arg(axis.last);
    });
}

TEST(NiceAxisProperties, ZeroIsOnALineAndTheValuesAreWithinAtEverySize)
{
    for (int exponent = -300; exponent < 308; exponent += 7)
        for (const double most : {1.0, 1.01, 2.49, 3.0, 7.77, 9.99})
            for (const double below : {0.0, 0.3, 4.0}) {
                const double size = std::pow(10, exponent);
                const ValueAxis axis = NiceAxis(-below * size, most * size, false, 6);
                SCOPED_TRACE(most * size);
                EXPECT_LE(axis.first, 0);
                EXPECT_GE(axis.Share(-below * size), -1e-6);
                EXPECT_LE(axis.Share(most * size), 1 + 1e-6);
                EXPECT_GT(axis.Share(most * size), 0.5);
                EXPECT_LE(axis.LineCount(), 9);
                const double mantissa = axis.step / std::pow(10, std::floor(std::log10(axis.step) + 1e-9));
                EXPECT_NEAR(std::min({std::abs(mantissa - 1), std::abs(mantissa - 2), std::abs(mantissa - 2.5),
                                std::abs(mantissa - 5)}),
                    0, 1e-6);
            }
}

TEST(AxisTexts, HaveTheDecimalsOfTheStepInTheUsersDigits)
{
    const QLocale german(QLocale::German, QLocale::Germany);
    EXPECT_EQ(AxisTexts({0.25, -1, 2}, german),
        QStringList({QString("-0,25"), QString("0,00"), QString("0,25"), QString("0,50")}));
    EXPECT_EQ(AxisTexts({2e14, 4, 5}, german),
        QStringList({QString("800.000.000.000.000"), QString("1.000.000.000.000.000")}));
    EXPECT_EQ(ShortAxisTexts({2e14, 0, 1}, QLocale::c()), QStringList({QString("0"), QString("2e+14")}));
    EXPECT_EQ(AxisTexts({1e308, 2, 2}, german), QStringList({QString()}));
}

} // namespace
