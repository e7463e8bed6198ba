#include "invoice_page_fixture.h"
#include "invoicing/customer_search.h"

namespace {

class CustomerSearch : public InvoicePageTest { };

TEST_F(CustomerSearch, EitherNameMatchesAndThePickedCustomerComesToTheInvoice)
{
    const int ada = Customer("Ada", "O'Byron").Address("1 Quay", "Cork", "T12").Phone("555").Discount(5).Add();
    Customer("Grace", "Hopper").Set("Address2", "Flat 2").Add();
    Customer("Alan", "Turing").Add();
    OpenNew();
    Type(page->txtFirstname, "gra");
    Type(page->txtLastname, "o'b");
    WhenFormShows<frmResCustSearch>([](frmResCustSearch& form) {
        EXPECT_EQ(GridRows(form.gcust),
            (QList<QStringList>{{"Grace Hopper", ", Flat 2", "", ""}, {"gra o'b", "", "", ""},
                {"Ada O'Byron", "1 Quay", "T12", "555"}}));
        ClickRow(form.gcust, 3);
        Press(form.gcust, Qt::Key_Return);
    });
    Click(page->cmdNewInvoiceCustSearch);
    EXPECT_EQ(OpenInvoice::gCurrentCustomerId, ada);
    EXPECT_EQ(page->txtCity->text(), "Cork");
    EXPECT_EQ(page->txtDiscount->text(), "5");
    EXPECT_EQ(Single("SELECT CustomerID FROM invoice"), QString::number(ada));
}

TEST_F(CustomerSearch, NoMatchIsSaidAndNothingCanBeSelected)
{
    Customer("Ada", "Byron").Add();
    frmResCustSearch form("zzz", "", nullptr);
    ScriptedAnswers answers;
    answers.ExpectMessage(
        "No matches found. Please try again or press Close to enter new customer details.", Icon::Information);
    form.RefreshCustomerScreen();
    EXPECT_FALSE(form.cmdSelect->isEnabled());

    Shown(&form);
    CheckForm(form);
    Type(form.txtFirstname, "");
    Press(form.txtFirstname, Qt::Key_Return);
    EXPECT_EQ(GridRows(form.gcust).size(), 1) << "two empty boxes list everybody";
    EXPECT_TRUE(form.cmdSelect->isEnabled());
    form.gcust->SetFilter("zzz");
    Press(form.gcust, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible()) << "the filter hides everybody";
}

TEST_F(CustomerSearch, ClosedWithoutAChoiceChangesNothingAndAnIdBeyondSixteenBitsEndsTheProgram)
{
    Customer("Ada", "Byron").Set("id", "32768").Add();
    OpenNew();
    WhenFormShows<frmResCustSearch>([](frmResCustSearch& form) { Press(&form, Qt::Key_Escape); });
    page->cmdNewInvoiceCustSearch->click();
    EXPECT_EQ(frmResCustSearch::SelectedCustomerID, -1);
    EXPECT_EQ(Single("SELECT CustomerID FROM invoice"), "NULL");

    const ExpectedEnd end;
    WhenFormShows<frmResCustSearch>([](frmResCustSearch& form) { Click(form.cmdSelect); });
    page->cmdNewInvoiceCustSearch->click();
    EXPECT_EQ(end.Number(), 6);
}

} // namespace
