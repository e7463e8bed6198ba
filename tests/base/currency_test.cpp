#include "base/currency.h"
#include "base/numbers.h"
#include "base/regional.h"
#include "base/runtime_error.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <tuple>

namespace {

Currency Ten000ths(qint64 count)
{
    return Currency::FromTenThousandths(count);
}

const Currency Largest = Ten000ths(std::numeric_limits<qint64>::max());
const Currency Smallest = Ten000ths(std::numeric_limits<qint64>::min());

struct DoubleCase {
    double value;
    qint64 tenThousandths;
};
class CurrencyOfDouble : public testing::TestWithParam<DoubleCase> { };

TEST_P(CurrencyOfDouble, RoundsTheBinaryValueNotItsLooks)
{
    EXPECT_EQ(CCur(GetParam().value).TenThousandths(), GetParam().tenThousandths);
    EXPECT_EQ(CCur(-GetParam().value).TenThousandths(), -GetParam().tenThousandths);
}

INSTANTIATE_TEST_SUITE_P(Ties, CurrencyOfDouble,
    testing::Values(DoubleCase{0.00005, 1}, DoubleCase{0.00015, 1}, DoubleCase{0.00025, 3}, DoubleCase{0.00035, 3},
        DoubleCase{0.12345, 1235}, DoubleCase{0.12355, 1235}, DoubleCase{1.19075, 11907}, DoubleCase{1.49625, 14963},
        DoubleCase{4.99 * 17.5 / 100, 8733}, DoubleCase{10.814175, 108142}, DoubleCase{8.991, 89910}));

TEST(Currency, ArithmeticThatLeavesTheRangeOverflows)
{
    EXPECT_THROW(Largest + Ten000ths(1), RuntimeError);
    EXPECT_THROW(Smallest - Ten000ths(1), RuntimeError);
    EXPECT_THROW(-Smallest, RuntimeError);
    EXPECT_THROW(Largest * 2, RuntimeError);
    EXPECT_THROW(Currency::FromWhole(922337203685478), RuntimeError);
    EXPECT_THROW(CCur(1e15), RuntimeError);
    EXPECT_THROW(CCur(std::numeric_limits<double>::quiet_NaN()), RuntimeError);
    EXPECT_EQ(Largest - Ten000ths(1) + Ten000ths(1), Largest);
}

TEST(Currency, RoundsHalfAwayFromZeroToTheDigitsAsked)
{
    EXPECT_EQ(Ten000ths(1250).RoundedHalfAway(2), Ten000ths(1300));
    EXPECT_EQ(Ten000ths(-1250).RoundedHalfAway(2), Ten000ths(-1300));
    EXPECT_EQ(Ten000ths(1249).RoundedHalfAway(2), Ten000ths(1200));
    EXPECT_EQ(Ten000ths(-5000).RoundedHalfAway(0), Ten000ths(-10000));
    EXPECT_EQ(Ten000ths(-7).RoundedHalfAway(4), Ten000ths(-7));
    EXPECT_THROW(Largest.RoundedHalfAway(0), RuntimeError);
}

TEST(Currency, ADiscountOfTenPercentIsRoundedBeforeItIsTakenOff)
{
    const Currency price = Ten000ths(99900);
    EXPECT_EQ(price - CCur(price.ToDouble() * 10 / 100), Ten000ths(89910));
}

class CurrencyText : public testing::Test {
protected:
    void SetUp() override { SetRegional(QLocale("en_US")); }
    void TearDown() override { SetRegional(QLocale("en_US")); }
};

TEST_F(CurrencyText, RoundsHalfAwayOnTheDecimalText)
{
    EXPECT_EQ(FormatCurrency(Ten000ths(0)), "$0.00");
    EXPECT_EQ(FormatCurrency(Ten000ths(12345000)), "$1,234.50");
    EXPECT_EQ(FormatCurrency(Ten000ths(-12345000)), "($1,234.50)");
    EXPECT_EQ(FormatCurrency(Ten000ths(12345678950)), "$1,234,567.90");
    EXPECT_EQ(FormatCurrency(Ten000ths(1250)), "$0.13");
    EXPECT_EQ(FormatCurrency(Ten000ths(1350)), "$0.14");
    EXPECT_EQ(FormatCurrency(Ten000ths(-1250)), "($0.13)");
    EXPECT_EQ(FormatCurrency(Ten000ths(-40)), "$0.00") << "an amount that rounds to nothing has no sign";
    EXPECT_EQ(FormatCurrency(1.005), "$1.01") << "not the binary value, which lies below";
    EXPECT_EQ(FormatCurrency(2.675), "$2.68");
    EXPECT_EQ(FormatCurrency(-0.004), "$0.00");
    EXPECT_EQ(FormatCurrency(9.995), "$10.00");
    EXPECT_EQ(FormatCurrency(1e20), "$100,000,000,000,000,000,000.00");
    EXPECT_EQ(FormatCurrency(Largest), "$922,337,203,685,477.58");
    EXPECT_EQ(FormatCurrency(Smallest), "($922,337,203,685,477.58)");
}

TEST_F(CurrencyText, ReadsATextFirst)
{
    EXPECT_EQ(FormatCurrency(QStringLiteral("1200.684")), "$1,200.68");
    EXPECT_EQ(FormatCurrency(QStringLiteral("(5)")), "($5.00)");
    EXPECT_THROW(FormatCurrency(QStringLiteral("five")), RuntimeError);
}

TEST_F(CurrencyText, GroupsAndDecimalsAreTheLocales)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {{"en_GB", "£1,234,567.50", "£1,234.50"},
        {"de_DE", "1.234.567,50 €", "1.234,50 €"}, {"fr_FR", "1 234 567,50 €", "1 234,50 €"},
        {"ja_JP", "￥1,234,568", "￥1,235"}, {"nl_NL", "€ 1.234.567,50", "€ 1.234,50"},
        {"de_CH", "1’234’567.50 CHF", "1’234.50 CHF"}, {"en_IN", "₹12,34,567.50", "₹1,234.50"},
        {"es_ES", "1.234.567,50 €", "1234,50 €"}};
    for (const auto& [locale, large, small] : cases) {
        SetRegional(QLocale(locale));
        for (const auto& [count, text] : {std::pair<qint64, const char*>(12345675000, large), {12345000, small}}) {
            QString shown = FormatCurrency(Ten000ths(count));
            // Unbreakable blanks are hard to tell apart in a source file.
            EXPECT_EQ(shown.replace(QChar(0xA0), ' ').replace(QChar(0x202F), ' ').toStdString(), text) << locale;
        }
    }
}

class CurrencyOfLocale : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override { SetRegional(QLocale(GetParam())); }
    void TearDown() override { SetRegional(QLocale("en_US")); }
};

TEST_P(CurrencyOfLocale, AmountsAreReadBackAsTheyAreShown)
{
    std::mt19937_64 random(20030704);
    for (int turn = 0; turn < 2000; ++turn) {
        const Currency amount = Ten000ths(qint64(random()) >> (random() % 63));
        const QString text = FormatCurrency(amount);
        ASSERT_TRUE(IsNumeric(text)) << text.toStdString();
        // The largest amounts round up to what no amount can hold.
        if (qAbs(amount.ToDouble()) < 9e14) {
            ASSERT_EQ(CCur(text), amount.RoundedHalfAway(CurrencyDigits())) << text.toStdString();
        }
    }
}

TEST_P(CurrencyOfLocale, FramesAreThoseOfTheLocaleData)
{
    // All numbers are written with the same digits, those that stand without a frame included.
    const QLocale locale(GetParam());
    for (const double amount : {1.0, -1.0, 1234.0, -98765432.0}) {
        QString expected = locale.toCurrencyString(amount);
        for (int digit = 0; digit <= 9; ++digit)
            expected.replace(locale.toString(digit), QString::number(digit));
        EXPECT_EQ(FormatCurrency(amount), expected);
    }
}

INSTANTIATE_TEST_SUITE_P(Locales, CurrencyOfLocale,
    testing::Values("en_US", "en_GB", "de_DE", "fr_FR", "ja_JP", "sv_SE", "nl_NL", "de_CH", "en_IN", "es_ES", "pl_PL",
        "da_DK", "hi_IN", "ar_KW", "ar_EG", "fa_IR", "he_IL", "ff_Adlm_GN"),
    [](const auto& test) { return std::string(test.param); });

} // namespace
