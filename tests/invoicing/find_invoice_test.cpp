#include "invoicing/find_invoice.h"
#include "support/test.h"

namespace {

class FindInvoice : public FormTest<frmFindInvoice> {
protected:
    void SetUp() override
    {
        FormTest::SetUp();
        frmFindInvoice::InvoiceSelected = false;
        frmFindInvoice::SelectedInvoiceID = -1;
        customer = Customer("Ann", "Smith").Business("Zinc Works").Add();
        form = std::make_unique<frmFindInvoice>(nullptr);
    }

    int InvoiceAt(const QDate& date, const QTime& time) const
    {
        return Invoice(customer).Date(QDateTime(date, time)).Add();
    }
    void Search(const std::optional<QDateTime>& from, const std::optional<QDateTime>& to)
    {
        form->dtFromDate->SetValue(from);
        form->dtToDate->SetValue(to);
        Shown(form.get());
        Click(form->cmdOk);
    }
    static QDateTime Day(int day) { return QDate(2026, 3, day).startOfDay(); }

    int customer = 0;
};

TEST_F(FindInvoice, StartsWithThePresentDayAndFindsFromMidnightOfTheFirstDayToTheLastMinuteOfTheLast)
{
    InvoiceAt(QDate(2026, 3, 14), QTime(18, 0));
    CheckForm(*form);
    Press(form->dtFromDate, Qt::Key_Return);
    EXPECT_EQ(form->lblTotalCustomers->text(), "1") << "Enter starts the search";

    InvoiceAt(QDate(2026, 3, 4), QTime(23, 59));
    InvoiceAt(QDate(2026, 3, 6), QTime(23, 59));
    InvoiceAt(QDate(2026, 3, 5), QTime(0, 0));
    InvoiceAt(QDate(2026, 3, 7), QTime(0, 0));
    Search(Day(5), Day(6));
    EXPECT_EQ(GridRows(form->gres),
        (QList<QStringList>{{"Ann Smith", "Zinc Works", "3/5/2026"}, {"Ann Smith", "Zinc Works", "3/6/2026"}}));
    EXPECT_EQ(form->lblTotalCustomers->text(), "2");
    EXPECT_EQ(form->gres->Row(), 1);
}

TEST_F(FindInvoice, ASearchNeedsBothDatesAndWithoutASelectionItSaysSoAndCloseHandsNothingBack)
{
    answers.ExpectMessage(
        "No criteria to search by has been entered. Please enter some details and try again.", Icon::Critical);
    Search(std::nullopt, std::nullopt);
    Search(Day(5), Day(6));
    answers.ExpectMessage(
        "No reservation has been selected. Select a reservation to to view or edit and try again.", Icon::Critical);
    Click(form->cmdEditCustomer);
    EXPECT_TRUE(form->isVisible());
    Click(form->cmdCancel);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(frmFindInvoice::InvoiceSelected);
    EXPECT_EQ(frmFindInvoice::SelectedInvoiceID, -1);

    ExpectedEnd end;
    Search(Day(5), std::nullopt);
    EXPECT_TRUE(end.Ended()) << "an empty date makes no statement";
}

TEST_F(FindInvoice, TheSelectedInvoiceIsHandedBackUpToAnIdOfSixteenBits)
{
    Invoice(customer).Date(Day(5)).Set("id", 32767).Add();
    Invoice(customer).Date(Day(5)).Set("id", 32768).Add();
    Search(Day(5), Day(6));
    {
        ExpectedEnd end;
        DoubleClickRow(form->gres, 2);
        EXPECT_EQ(end.Number(), 6);
        EXPECT_FALSE(frmFindInvoice::InvoiceSelected);
    }
    Search(Day(5), Day(6));
    DoubleClickRow(form->gres, 1);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(frmFindInvoice::InvoiceSelected);
    EXPECT_EQ(frmFindInvoice::SelectedInvoiceID, 32767);
}

} // namespace
