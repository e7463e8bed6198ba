#include "invoicing/invoice_history.h"

#include "records/lists.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The history in a window, set up as the main window does it.
class InvoiceHistoryTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        smith = Customer("Ann", "Smith").Business("Zinc Works").Add();
        brown = Customer("Zoe", "Brown").Business("Alloys").Add();
        first = Invoice(smith).No("00001").Date(QDate(2026, 1, 5)).Add();
        second = Invoice(brown).No("00002").Date(QDate(2026, 3, 4)).Paid(true).Add();
        third = Invoice(brown).No("00003").Date(QDate(2025, 12, 31)).Add();

        history = new InvoiceHistory(&window);
        (new QVBoxLayout(&window))->addWidget(history);
        window.resize(900, 600);
        SetUpColumns(history->gInvoices,
            {{"Number", 800, CellAlign::CenterTop}, {"Business Name", 800, CellAlign::CenterTop},
                {"Name", 2400, CellAlign::CenterTop}, {"Invoice Date", 1440, CellAlign::CenterTop}},
            1);
        history->cboInvoiceFilter->AddItem("All Invoices", 0);
        history->cboInvoiceFilter->AddItem("Unpaid Invoices", 0);
        history->cboInvoiceFilter->SetListIndex(0);
        QObject::connect(history, &InvoiceHistory::OpenInvoice, &window, [this](qint32 id) { opened.append(id); });
        QObject::connect(history, &InvoiceHistory::NewInvoice, &window, [this] { opened.append(-1); });
        Shown(&window);
    }

    QStringList Numbers() const
    {
        QStringList numbers;
        for (const QStringList& row : GridRows(history->gInvoices))
            numbers.append(row.at(0));
        return numbers;
    }

    QWidget window;
    InvoiceHistory* history = nullptr;
    QList<qint32> opened;
    int smith = 0, brown = 0;
    int first = 0, second = 0, third = 0;
};

TEST_F(InvoiceHistoryTest, ListsInvoicesOfCustomersByBusinessName)
{
    Run("INSERT INTO invoice (invoiceno) VALUES ('no customer')");
    Run(QStringLiteral("UPDATE invoice SET submitteddate = NULL WHERE id = %1").arg(third));
    history->RefreshInvoiceList(1, first);
    QList<QStringList> rows = GridRows(history->gInvoices);
    EXPECT_EQ(rows.takeLast(), (QStringList{"00001", "Zinc Works", "Ann Smith", "1/5/2026"}));
    std::sort(rows.begin(), rows.end());
    EXPECT_EQ(
        rows, (QList<QStringList>{{"00002", "Alloys", "Zoe Brown", "3/4/2026"}, {"00003", "Alloys", "Zoe Brown", ""}}));
    EXPECT_EQ(history->gInvoices->Row(), 3) << "the invoice asked for is selected";
    EXPECT_EQ(history->gInvoices->CurrentRowData(), first);
}

TEST_F(InvoiceHistoryTest, TheFilterLeavesOutWhatIsPaidOrNotKnownToBe)
{
    Run(QStringLiteral("UPDATE invoice SET paid = NULL WHERE id = %1").arg(third));
    Pick(history->cboInvoiceFilter, "Unpaid Invoices");
    EXPECT_EQ(Numbers(), QStringList{"00001"});
    Pick(history->cboInvoiceFilter, "All Invoices");
    EXPECT_EQ(Numbers().size(), 3);
}

TEST_F(InvoiceHistoryTest, TitlesSortAndKeepTheRowNumber)
{
    ClickRow(history->gInvoices, 2);
    ClickTitle(history->gInvoices, 3);
    EXPECT_EQ(Numbers(), (QStringList{"00003", "00001", "00002"}));
    EXPECT_EQ(history->gInvoices->Row(), 2);
    ClickTitle(history->gInvoices, 0);
    EXPECT_EQ(Numbers(), (QStringList{"00001", "00002", "00003"}));
    ClickTitle(history->gInvoices, 2);
    EXPECT_EQ(Numbers().first(), "00001") << "Ann before Zoe";
    Pick(history->cboInvoiceFilter, "Unpaid Invoices");
    EXPECT_EQ(Numbers(), (QStringList{"00001", "00003"})) << "the order outlasts the filter";
    ClickTitle(history->gInvoices, 1);
    EXPECT_EQ(Numbers(), (QStringList{"00003", "00001"})) << "back to the business name";
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

TEST_F(InvoiceHistoryTest, AnEmptyListSaysThatNothingIsSelected)
{
    Run("DELETE FROM invoice");
    history->RefreshInvoiceList(1, 0);
    EXPECT_EQ(history->gInvoices->Row(), 0);
    ScriptedAnswers answers;
    const QString nothing = "No invoice has been selected. Select an invoice from the list and try again.";
    answers.ExpectMessage(nothing, Icon::Information);
    Click(history->cmdViewDetails);
    answers.ExpectMessage(nothing, Icon::Information);
    Click(history->cmdSimpleCalCancel);
    EXPECT_TRUE(opened.isEmpty());
}

TEST_F(InvoiceHistoryTest, DeletingAsksAndGivesNoStockBack)
{
    const int screws = Item("Screws").Stock(10).Add();
    Line(second, screws, 4, "1");
    Line(first, screws, 1, "1");
    ClickTitle(history->gInvoices, 0);
    ClickRow(history->gInvoices, 2);
    ScriptedAnswers answers;
    const QString question = "Are you sure you want to delete this invoice?";
    answers.Expect(question, Icon::Question, Buttons::YesNo, Answer::No);
    Click(history->cmdSimpleCalCancel);
    EXPECT_EQ(Count("invoice"), 3);
    EXPECT_EQ(Count("invoiceline"), 2);

    answers.Expect(question, Icon::Question, Buttons::YesNo, Answer::Yes);
    Click(history->cmdSimpleCalCancel);
    EXPECT_EQ(Numbers(), (QStringList{"00001", "00003"}));
    EXPECT_EQ(Rows("SELECT invoiceid FROM invoiceline"), Table({{QString::number(first)}}));
    EXPECT_EQ(Stock(screws), 10);
    EXPECT_EQ(history->gInvoices->Row(), 2);
}

} // namespace
