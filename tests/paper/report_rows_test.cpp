#include "paper/report_rows.h"

#include <gtest/gtest.h>

namespace {
TEST(ReportRows, EveryKindOfValueComesBackAsItWasAdded)
{
    const std::vector<ReportValue> values{{}, -2.5, Currency::FromTenThousandths(-12345),
        QDateTime(QDate(1899, 12, 30), QTime(23, 59, 59)), QString(), QString("Käse 日本"), QString(255, 'x'),
        QString(256, 'y'), QString(200'000, 'z')};
    ReportTable table(QStringList(static_cast<qsizetype>(values.size()), "f"));
    for (int row = 0; row < 3; ++row) {
        for (const ReportValue& value : values)
            table.Add(value);
        table.EndRow();
    }
    ASSERT_EQ(table.Count(), 3);
    for (int row = 0; row < 3; ++row)
        for (size_t field = 0; field < values.size(); ++field)
            EXPECT_TRUE(table.At(row, static_cast<int>(field)) == values[field]) << row << ", " << field;
    EXPECT_TRUE(table.At(0, -1) == ReportValue());
}

TEST(ReportRows, AFieldIsFoundWithoutItsTableAndWithoutRegardToCase)
{
    const ReportTable table({"Customer.id", "Invoice.id", "InvoiceNo"});
    EXPECT_EQ(table.Field("invoiceno"), 2);
    EXPECT_EQ(table.Field("Invoice.ID"), 1);
    EXPECT_EQ(table.Field("id"), 0);
    EXPECT_EQ(table.Field("no"), -1);
}
} // namespace
