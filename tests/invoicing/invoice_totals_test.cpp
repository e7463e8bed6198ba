#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "invoicing/invoice_totals.h"
#include "support/test.h"

namespace {

TEST(LineTotals, RoundTheUnitPriceWithTaxBeforeMultiplying)
{
    const std::tuple<int, const char*, double, const char*> lines[] = {{3, "9.99", 8.25, "32.4426"}, {1, "5", 0, "5"},
        {4, "2.5", -20, "10"}, {0, "9.99", 8.25, "0"}, {2, "0", 17.5, "0"}, {-2, "10", 20, "-24"},
        {1000, "0.0333", 0, "33.3"}};
    for (const auto& [quantity, amount, tax, total] : lines)
        EXPECT_EQ(LineTotal(quantity, Money(amount), tax), Money(total)) << quantity << " at " << amount;
    EXPECT_THROW(LineTotal(2'000'000'000, Money("900000000"), 0), RuntimeError);
}

TEST(Totals, OfTheWorkedExample)
{
    SecondaryTax::SecondaryTaxEnable = true;
    SecondaryTax::SecondaryTaxPercentage = 5;
    RunningTotal running;
    running.Add(AsShown(LineTotal(3, Money("9.99"), 8.25)));
    running.Add(AsShown(LineTotal(1, Money("5"), 0)));

    EXPECT_EQ(FormatCurrency(running.Totals().secondTax), "$1.87");
    EXPECT_EQ(FormatCurrency(running.Totals().total), "$39.31");
    EXPECT_NEAR(running.Totals().total, 39.312, 1e-9) << "the secondary tax enters the total unrounded";

    SecondaryTax::SecondaryTaxPercentage = 0;
    EXPECT_EQ(FormatCurrency(running.Totals().secondTax), "$0.00");
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxPercentage = 5;
    EXPECT_EQ(FormatCurrency(running.Totals().total), "$37.44");
}

// The reader adds up what the lines show, so the total must be the sum of the shown texts read back.
TEST(Totals, SumTheFiguresShown)
{
    for (const char* locale : {"en_US", "de_DE", "fr_FR", "ja_JP", "en_IN", "ar_KW"}) {
        SetRegional(QLocale(locale));
        std::mt19937_64 random(20260314);
        RunningTotal running;
        double shown = 0;
        for (int line = 0; line < 500; ++line) {
            const Currency lineTotal = Currency::FromTenThousandths(qint64(random() % 200'000'000) - 50'000'000);
            running.Add(AsShown(lineTotal));
            shown += CCur(FormatCurrency(lineTotal)).ToDouble();
        }
        EXPECT_EQ(running.Totals().total, shown) << locale;
    }
}

} // namespace
