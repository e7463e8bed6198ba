#include "invoicing/invoice_history.h"
#include "support/test.h"

namespace {

using InvoiceHistoryTest = PanelTest<InvoiceHistory>;

TEST_F(InvoiceHistoryTest, TheFilterLeavesOutWhatIsPaidOrNotKnownToBeAndDeletingGivesNoStockBack)
{
    const int smith = Customer("Ann", "Smith").Business("Zinc Works").Add();
    const int brown = Customer("Zoe", "Brown").Business("Alloys").Add();
    const int first = Invoice(smith).No("00001").Date(QDate(2026, 1, 5)).Add();
    const int second = Invoice(brown).No("00002").Date(QDate(2026, 3, 4)).Paid(true).Add();
    const int third = Invoice(brown).No("00003").Date(QDate(2025, 12, 31)).Add();
    panel->FillInvoiceFilter();
    panel->ShowAllInvoices();
    ShowPanel();
    const auto numbers = [this] { return GridColumn(panel->gInvoices); };
    Run(QStringLiteral("UPDATE invoice SET paid = NULL WHERE id = %1").arg(third));
    Pick(panel->cboInvoiceFilter, "Unpaid Invoices");
    EXPECT_EQ(numbers(), QStringList{"00001"});
    ClickTitle(panel->gInvoices, 0);
    Pick(panel->cboInvoiceFilter, "All Invoices");
    EXPECT_EQ(numbers(), (QStringList{"00001", "00002", "00003"})) << "the order outlasts the filter";

    const int screws = Item("Screws").Stock(10).Add();
    Line(second, screws, 4, "1");
    Line(first, screws, 1, "1");
    ClickRow(panel->gInvoices, 2);
    answers.Expect("Are you sure you want to delete this invoice?", Answer::Yes);
    Click(panel->cmdSimpleCalCancel);
    EXPECT_EQ(numbers(), (QStringList{"00001", "00003"}));
    EXPECT_EQ(Rows("SELECT invoiceid FROM invoiceline"), Table({{QString::number(first)}}));
    EXPECT_EQ(Stock(screws), 10);
}

} // namespace
