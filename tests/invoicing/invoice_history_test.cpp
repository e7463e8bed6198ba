#include "invoicing/invoice_history.h"

#include "support/form_test.h"

namespace {

/// The history in a window, set up as the main window does it.
class InvoiceHistoryTest : public PanelTest<InvoiceHistory> {
protected:
    void SetUp() override
    {
        PanelTest::SetUp();
        smith = Customer("Ann", "Smith").Business("Zinc Works").Add();
        brown = Customer("Zoe", "Brown").Business("Alloys").Add();
        first = Invoice(smith).No("00001").Date(QDate(2026, 1, 5)).Add();
        second = Invoice(brown).No("00002").Date(QDate(2026, 3, 4)).Paid(true).Add();
        third = Invoice(brown).No("00003").Date(QDate(2025, 12, 31)).Add();

        history->FillInvoiceFilter();
        history->ShowAllInvoices();
        QObject::connect(history, &InvoiceHistory::OpenInvoice, &window, [this](qint32 id) { opened.append(id); });
        QObject::connect(history, &InvoiceHistory::NewInvoice, &window, [this] { opened.append(-1); });
        ShowPanel();
    }

    QStringList Numbers() const { return GridColumn(history->gInvoices); }

    InvoiceHistory* history = panel;
    QList<qint32> opened;
    int smith = 0, brown = 0;
    int first = 0, second = 0, third = 0;
};

TEST_F(InvoiceHistoryTest, TheFilterLeavesOutWhatIsPaidOrNotKnownToBe)
{
    Run(QStringLiteral("UPDATE invoice SET paid = NULL WHERE id = %1").arg(third));
    Pick(history->cboInvoiceFilter, "Unpaid Invoices");
    EXPECT_EQ(Numbers(), QStringList{"00001"});
    ClickTitle(history->gInvoices, 0);
    Pick(history->cboInvoiceFilter, "All Invoices");
    EXPECT_EQ(Numbers(), (QStringList{"00001", "00002", "00003"})) << "the order outlasts the filter";
}

TEST_F(InvoiceHistoryTest, AnInvoiceIsOpenedFromTheListInThreeWays)
{
    ClickTitle(history->gInvoices, 0);
    EXPECT_TRUE(opened.isEmpty());
    ClickRow(history->gInvoices, 2);
    Click(history->cmdViewDetails);
    DoubleClickRow(history->gInvoices, 3);
    Press(history->gInvoices, Qt::Key_Return);
    Click(history->cmdAddReservation);
    EXPECT_EQ(opened, (QList<qint32>{second, third, third, -1}));
}

TEST_F(InvoiceHistoryTest, DeletingGivesNoStockBack)
{
    const int screws = Item("Screws").Stock(10).Add();
    Line(second, screws, 4, "1");
    Line(first, screws, 1, "1");
    ClickTitle(history->gInvoices, 0);
    ClickRow(history->gInvoices, 2);
    answers.Expect("Are you sure you want to delete this invoice?", Answer::Yes);
    Click(history->cmdSimpleCalCancel);
    EXPECT_EQ(Numbers(), (QStringList{"00001", "00003"}));
    EXPECT_EQ(Rows("SELECT invoiceid FROM invoiceline"), Table({{QString::number(first)}}));
    EXPECT_EQ(Stock(screws), 10);
}

} // namespace
