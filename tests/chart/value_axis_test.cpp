#include "chart/value_axis.h"
#include "support/printing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct AxisCase {
    double least, most;
    bool whole;
    double step;
    int first, last;
};

class NiceAxes : public testing::TestWithParam<AxisCase> { };

TEST_P(NiceAxes, StandOnRoundNumbersAndHoldAllValues)
{
    const AxisCase& expected = GetParam();
    const ValueAxis axis = NiceAxis(expected.least, expected.most, expected.whole, 5);
    EXPECT_DOUBLE_EQ(axis.step, expected.step);
    EXPECT_EQ(axis.first, expected.first);
    EXPECT_EQ(axis.last, expected.last);
}

INSTANTIATE_TEST_SUITE_P(Data, NiceAxes,
    testing::Values(AxisCase{0, 0, true, 1, 0, 5}, AxisCase{0, 1, true, 1, 0, 1}, AxisCase{0, 3, true, 1, 0, 3},
        AxisCase{0, 10, true, 2, 0, 5}, AxisCase{0, 11, true, 5, 0, 3}, AxisCase{0, 11, false, 2.5, 0, 5},
        AxisCase{0, 0.3, false, 0.1, 0, 3}, AxisCase{0, 101, true, 25, 0, 5}, AxisCase{0, 100, true, 20, 0, 5},
        AxisCase{-7, 12, true, 5, -2, 3}, AxisCase{-40, 0, true, 10, -4, 0}, AxisCase{-0.5, 0.25, false, 0.2, -3, 2},
        AxisCase{0, 1e15, true, 2e14, 0, 5}, AxisCase{0, 999'999'999'999'999.0, true, 2e14, 0, 5},
        AxisCase{-1.7e308, 1.7e308, true, 1e308, -2, 2}, AxisCase{0, 5e-300, false, 1e-300, 0, 5}));

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
        QStringList({QStringLiteral("-0,25"), QStringLiteral("0,00"), QStringLiteral("0,25"), QStringLiteral("0,50")}));
    EXPECT_EQ(AxisTexts({2e14, 4, 5}, german),
        QStringList({QStringLiteral("800.000.000.000.000"), QStringLiteral("1.000.000.000.000.000")}));
    EXPECT_EQ(ShortAxisTexts({2e14, 0, 1}, QLocale::c()), QStringList({QStringLiteral("0"), QStringLiteral("2e+14")}));
    EXPECT_EQ(AxisTexts({1e308, 2, 2}, german), QStringList({QString()}));
}

} // namespace
