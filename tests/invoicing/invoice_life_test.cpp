#include "invoice_page_fixture.h"
#include "invoicing/customer_search.h"
#include "invoicing/item_quantity.h"

#include <QtEndian>

#include <utility>

namespace {

class InvoiceLife : public InvoicePageTest {
protected:
    double NextNumber() const { return Single("SELECT invoiceno FROM nextinvoiceno").toDouble(); }
    QString CustomerOfInvoice() const { return Single("SELECT CustomerID FROM invoice ORDER BY id DESC"); }
};

TEST_F(InvoiceLife, FromNewInvoiceToComplete)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 42");
    Run("UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxPercentage = 10");
    LoadSecondaryTax();
    const int screws = Item("Screws").Barcode("1").Stock(10).Price("5").Add();
    Customer("Known", "One").Add();
    OpenNew();

    Type(page->txtFirstname, "First");
    Tab();
    const int first = Single("SELECT max(id) FROM customer").toInt();
    EXPECT_EQ(CustomerOfInvoice(), QString::number(first));
    Type(page->txtLastname, "Draft");
    Tab();
    EXPECT_EQ(Count("customer"), 2);

    ScriptedAnswers answers;
    answers.Expect("Clear customer details?", Icon::None, Buttons::YesNo, Answer::Yes);
    Click(page->cmdNewInvoiceCustReset);
    EXPECT_EQ(page->txtLastname->text(), "");
    EXPECT_EQ(CustomerOfInvoice(), QString::number(first)) << "resetting alone touches no row";
    Type(page->txtFirstname, "Second");
    Tab();
    EXPECT_EQ(Rows("SELECT FirstName, LastName FROM customer ORDER BY id"),
        Table({{"Known", "One"}, {"First", "Draft"}, {"Second", ""}}));
    EXPECT_EQ(CustomerOfInvoice(), Single("SELECT max(id) FROM customer"));

    Scan("1");
    Scan("1");
    EXPECT_EQ(Stock(screws), 8);
    WhenFormShows<frmItemQuantity>([](frmItemQuantity& form) {
        Type(form.txtQuantityToAdd, "6");
        Press(form.txtQuantityToAdd, Qt::Key_Return);
    });
    Press(page->gNewInvoice, Qt::Key_F2);
    EXPECT_EQ(Stock(screws), 4);
    EXPECT_EQ(Single("SELECT Total2ndTax FROM invoice"), "$3.00");
    EXPECT_EQ(page->lblTotal->text(), "$33.00");

    // The last control left before the button saves as well.
    Type(page->txtNotes, "Gift");
    answers.Expect("Print Invoice?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(page->cmdCompleteInvoice);
    EXPECT_EQ(Rows("SELECT InvoiceNo, Notes, Total2ndTax FROM invoice"), Table({{"00042", "Gift", "$3.00"}}));
    EXPECT_EQ(Stock(screws), 4);
    EXPECT_EQ(NextNumber(), 43);
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, -1);
    EXPECT_EQ(OpenInvoice::gCurrentCustomerId, -1);
    EXPECT_EQ(timesLeft, 1);
    EXPECT_EQ(Count("customer"), 3) << "putting the page away adds no customer";

    OpenNew();
    EXPECT_EQ(page->lblInvoiceNo->text(), "00043");
    EXPECT_EQ(page->gNewInvoice->Rows(), 1);
}

TEST_F(InvoiceLife, EachActIsOneCommitAndWhatIsStoredAlreadyIsNone)
{
    Customer("Ada", "Byron").Add();
    const int items[] = {Item("Saw").Barcode("1").Stock(9).Add(), Item("Drill").Barcode("2").Stock(9).Add()};
    qint64 commits = 0;
    /// The file counts them in its head.
    const auto newCommits = [&] {
        const qint64 before =
            std::exchange(commits, qFromBigEndian<quint32>(ReadFile(DatabasePath()).constData() + 24));
        return commits - before;
    };
    newCommits();
    OpenNew();
    EXPECT_EQ(newCommits(), 1);
    WhenFormShows<frmResCustSearch>([](frmResCustSearch& form) { DoubleClickRow(form.gcust, 2); });
    Click(page->cmdNewInvoiceCustSearch);
    EXPECT_EQ(newCommits(), 2) << "the first save adds a customer";
    for (const char* code : {"1", "2", "1", "2", "1"}) {
        Scan(code);
        EXPECT_EQ(newCommits(), 1);
    }
    EXPECT_EQ(page->lblTotal->text(), "$0.00");
    EXPECT_EQ(Stock(items[0]) + Stock(items[1]), 13);
    for (size_t control = 0; control < 40; ++control)
        Tab();
    EXPECT_EQ(newCommits(), 0);
    ScriptedAnswers answers;
    answers.Expect("Print Invoice?", Answer::No);
    Click(page->cmdCompleteInvoice);
    EXPECT_EQ(newCommits(), 1);
    EXPECT_EQ(Rows("SELECT FirstName, City FROM customer"), Table({{"Ada", ""}, {"", ""}}));

    Open(Single("SELECT id FROM invoice").toInt());
    for (size_t control = 0; control < 40; ++control)
        Tab();
    EXPECT_EQ(newCommits(), 0);
    Type(page->txtCity, "rome");
    Tab();
    Type(page->txtCity, "Rome");
    Click(page->cmdCloseInvoice);
    EXPECT_EQ(newCommits(), 3) << "rome, Rome and the next number";
}

TEST_F(InvoiceLife, AnEmptyPageCompletesWithACustomerOfItsOwn)
{
    OpenNew();
    ScriptedAnswers answers;
    answers.Expect("Print Invoice?", Icon::Question, Buttons::YesNo, Answer::No);
    // Nothing has lost the focus before the question.
    page->cmdCompleteInvoice->click();
    EXPECT_EQ(Count("customer"), 1);
    EXPECT_EQ(CustomerOfInvoice(), Single("SELECT id FROM customer"));
}

TEST_F(InvoiceLife, CloseRaisesTheNumberForAnOldInvoiceToo)
{
    Open(Invoice(Customer("Ada", "Byron").Add()).No("00009").Add());
    page->txtFirstname->setText("Augusta");
    page->cmdCloseInvoice->click();
    EXPECT_EQ(Single("SELECT FirstName FROM customer"), "Augusta");
    EXPECT_EQ(Count("customer"), 1);
    EXPECT_EQ(NextNumber(), 2);
    EXPECT_EQ(timesLeft, 1);

    QString notice;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, &window, [&](const QString& text) { notice = text; });
    OpenNew();
    Invoice(1).No("00002").Add();
    Run("UPDATE nextinvoiceno SET invoiceno = 3");
    Click(page->cmdCloseInvoice);
    EXPECT_TRUE(notice.startsWith("Invoice number 00002 was given twice")) << notice.toStdString();
}

TEST_F(InvoiceLife, DocumentsShowTheInvoiceAsItStandsOnThePage)
{
    Open(Invoice(Customer("Ada", "Byron").Add()).No("00009").Add());
    page->lblInvoiceNo->setText("A-1");
    page->cmdPrintPickingList->click();
    EXPECT_EQ(Previews().value(0)->windowTitle(), "Picking List A-1");
    EXPECT_NE(OpenInvoice::gCurrentInvoiceId, -1);
    ClosePreviews();

    page->lblInvoiceNo->setText("A-2");
    ScriptedAnswers answers;
    answers.Expect("Print Invoice?", Icon::Question, Buttons::YesNo, Answer::Yes);
    page->cmdCompleteInvoice->click();
    EXPECT_EQ(Previews().value(0)->windowTitle(), "Invoice A-2");
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, -1);
}

} // namespace
