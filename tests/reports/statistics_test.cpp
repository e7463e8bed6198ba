#include "reports/graph_rows.h"
#include "reports/statistics.h"
#include "support/test.h"

namespace {

QDateTime At(const char* text)
{
    return QDateTime::fromString(QLatin1String(text), Qt::ISODate);
}

void SetNow(const char* text)
{
    SetClock([now = At(text)] { return now; });
}

/// A shop with invoices around the ends of months, years and weeks, in a leap year and about it.
class Statistics : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        ann = Customer("Ann", "Lee").Add();
        bob = Customer("Bob", "Ray").Add();
        for (const char* stored : {"2023-02-28T23:59:00", "2023-02-28T23:59:30", "2023-03-01T00:00:00",
                 "2024-02-28T12:00:00", "2024-02-29T00:00:00", "2024-02-29T00:00:00", "2024-02-29T23:59:00",
                 "2024-02-29T23:59:30", "2024-03-01T00:00:00", "2024-12-29T09:00:00", "2024-12-30T00:00:00",
                 "2024-12-31T23:59:00", "2024-12-31T23:59:30", "2025-01-01T00:00:00", "2025-01-05T23:58:00"})
            Invoice(bob).Date(At(stored)).Add();
        Invoice(ann).Date(At("2025-01-06T00:00:00")).Add();
    }

    int ann, bob;
};

QStringList WeekUpToToday()
{
    QStringList week;
    for (QDate day = StartOfWeek(); day <= Now().date(); day = day.addDays(1))
        week.append(InvoicesBetween(day, day));
    return week;
}

} // namespace

TEST_F(Statistics, PeriodsEndWithTheLastMinuteOfTheirLastDay)
{
    // Today, this month, the same month last year, the week from Monday up to today.
    const std::pair<const char*, const char*> moments[] = {{"2024-02-29T10:30:00", "3 4 1: 0 0 1 3"},
        {"2025-02-28T10:30:00", "0 0 4: 0 0 0 0 0"}, {"2024-12-30T00:00:00", "1 3 0: 1"},
        {"2024-12-31T23:59:59", "1 3 0: 1 1"}, {"2025-01-05T23:59:59", "1 3 0: 1 1 1 0 0 0 1"},
        {"2024-03-31T12:00:00", "0 1 1: 0 0 0 0 0 0 0"}};
    for (const auto& [now, figures] : moments) {
        SetNow(now);
        EXPECT_EQ(
            QStringList({InvoicesToday(), InvoicesInMonthOf(Now()), InvoicesInMonthOf(Now().addYears(-1))}).join(u' ')
                + ": " + WeekUpToToday().join(u' '),
            figures)
            << now;
    }
}

TEST_F(Statistics, FiguresOfAllYears)
{
    EXPECT_EQ(TotalInvoices(), "16");
    EXPECT_EQ(DateOfMostInvoices(), "29-Feb-2024");
    EXPECT_EQ(DateOfLeastInvoices(), "28-Feb-2023");
    EXPECT_EQ(MostPopularMonth(), "Feb");
    EXPECT_EQ(LeastPopularMonth(), "Mar");
    EXPECT_EQ(MostRepeatingCustomer(), "Bob Ray");
    Run("DELETE FROM customer WHERE FirstName = 'Bob'");
    EXPECT_THROW(MostRepeatingCustomer(), RuntimeError);

    // Of those that tie the first of the store shows.
    Run("DELETE FROM invoice");
    Invoice(bob).Date(At("2025-11-02T00:00:00")).Add();
    Invoice(ann).Date(At("2026-04-01T00:00:00")).Add();
    EXPECT_EQ(DateOfMostInvoices() + DateOfLeastInvoices(), "02-Nov-202502-Nov-2025");
    EXPECT_EQ(MostPopularMonth() + LeastPopularMonth(), "AprApr");
    EXPECT_EQ(MostRepeatingCustomer(), "Ann Lee");
    Run("UPDATE invoice SET SubmittedDate = NULL");
    EXPECT_EQ(DateOfLeastInvoices(), "");
}

TEST_F(Statistics, AMonthHasARowForEachDayAndTwelveMonthsEndWithThePresentOneAlsoOnThe31st)
{
    SetNow("2024-02-10T10:30:00");
    const QList<GraphRow> rows = InvoicesThisMonth();
    ASSERT_EQ(rows.size(), 29);
    EXPECT_EQ(rows.first().label, "2/1/2024");
    EXPECT_EQ(rows[27].values, QStringList("1"));
    EXPECT_EQ(rows[28].label, "2/29/2024");
    EXPECT_EQ(rows[28].values, QStringList("3"));

    const int screws = Item("Screws").Add();
    const int nuts = Item("Nuts").Add();
    for (const auto& [stored, quantity] : {std::pair("2024-02-29T23:59:00", 3), std::pair("2024-02-29T23:59:30", 90),
             std::pair("2025-01-01T00:00:00", 4), std::pair("2025-01-31T00:00:00", 5)}) {
        const int invoice = Invoice(ann).Date(At(stored)).Add();
        Line(invoice, screws, quantity, "2.50");
        Line(invoice, screws, quantity, "0");
    }
    SetNow("2025-01-31T10:30:00");
    const QList<GraphRow> invoices = InvoicesPerMonth();
    const QList<GraphRow> sales = ItemSales(screws, nuts);
    QStringList labels, counts, screwsSold, nutsSold;
    for (int row = 0; row < 12; ++row) {
        labels.append(invoices[row].label);
        counts.append(invoices[row].values);
        EXPECT_EQ(sales[row].label, labels[row]);
        screwsSold.append(sales[row].values[0]);
        nutsSold.append(sales[row].values[1]);
    }
    EXPECT_EQ(labels.join(u' '),
        "Feb-2024 Mar-2024 Apr-2024 May-2024 Jun-2024 Jul-2024 Aug-2024 Sep-2024 Oct-2024 Nov-2024 Dec-2024 Jan-2025");
    EXPECT_EQ(counts.join(u' '), "5 1 0 0 0 0 0 0 0 0 3 5");
    EXPECT_EQ(screwsSold.join(u' '), "6 0 0 0 0 0 0 0 0 0 0 18");
    EXPECT_EQ(nutsSold.join(u' '), "0 0 0 0 0 0 0 0 0 0 0 0") << "a month without sales sums to Null";
}
