#include "invoicing/add_order_line.h"
#include "invoicing/open_invoice.h"
#include "support/test.h"

namespace {

using OpenInvoices = DatabaseTest;

TEST_F(OpenInvoices, HaveTheirRowAtOnceAndTheirCustomerWithTheFirstSave)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 123456");
    OpenInvoice::gCurrentCustomerId = 99;
    EXPECT_EQ(OpenInvoice::Create(Now()), "123456");
    const QString id = QString::number(OpenInvoice::gCurrentInvoiceId);
    EXPECT_EQ(Rows("SELECT id, CustomerID, InvoiceNo, SubmittedDate, StockReturned, Paid, Notes FROM invoice"),
        Table({{id, "NULL", "123456", "2026-03-14 10:30:00", "0", "NULL", "NULL"}}));
    EXPECT_EQ(Single("SELECT invoiceno FROM nextinvoiceno").toDouble(), 123456) << "only read";
    EXPECT_TRUE(OpenInvoice::FindCustomer());
    EXPECT_EQ(OpenInvoice::gCurrentCustomerId, -1);

    const InvoiceFields fields{
        "A'17", QDate(2025, 7, 4), QDate(2025, 7, 9), true, true, "Cash", "It's urgent", "$1.00"};
    for (const char* lastName : {"O'Brien {first}", "'Quote''s'"})
        OpenInvoice::Save({{{"FirstName", "Ada"}, {"LastName", lastName}}, "2.5", 1}, fields);
    EXPECT_EQ(Rows("SELECT customer.id, FirstName, LastName, Discount, invoice.SubmittedDate, ShippedDate, InvoiceNo, "
                   "Notes, Total2ndTax FROM customer JOIN invoice ON CustomerID = customer.id"),
        Table({{QString::number(OpenInvoice::gCurrentCustomerId), "Ada", "'Quote''s'", "2.5", "2025-07-04 00:00:00",
            "2025-07-09 00:00:00", "A'17", "It's urgent", "$1.00"}}));
}

TEST_F(OpenInvoices, ShowTheFirstListAndNoDiscountWhereTheCustomerTellsNone)
{
    const int ada = Customer("Ada", "Byron").Add();
    Run("UPDATE customer SET PriceListID = NULL, Discount = NULL");
    for (const auto& [id, name] : {std::pair(ada, "Ada"), std::pair(4711, "")}) {
        const InvoiceCustomer customer = OpenInvoice::LoadCustomer(id);
        EXPECT_EQ(TextOf(customer.texts, "FirstName"), name);
        EXPECT_EQ(customer.discount, "0");
        EXPECT_EQ(customer.priceListId, 1);
    }
}

TEST_F(OpenInvoices, TellWhoFinishesSecondThatANumberWasGivenTwice)
{
    const auto finishesAs = [this](const char* nextNumber, const char* other, const char* own) {
        OpenInvoice::Create(Now());
        Run(QStringLiteral("UPDATE invoice SET InvoiceNo = '%1' WHERE id = %2")
                .arg(own)
                .arg(OpenInvoice::gCurrentInvoiceId));
        Invoice(1).No(other).Add();
        Run(QStringLiteral("UPDATE nextinvoiceno SET invoiceno = %1").arg(nextNumber));
        QString taken = OpenInvoice::Finish();
        EXPECT_FALSE(OpenInvoice::IsOpen());
        Run("UPDATE nextinvoiceno SET invoiceno = 1");
        Run("DELETE FROM invoice");
        return taken;
    };
    EXPECT_EQ(finishesAs("2", "00001", "00001"), "00001");
    EXPECT_EQ(finishesAs("1", "00001", "00001"), "") << "the first one has the better right to it";
    EXPECT_EQ(finishesAs("2", "00002", "00001"), "");
    EXPECT_EQ(finishesAs("2", "00001", "A-1"), "") << "it got a number of its own";
}

} // namespace
