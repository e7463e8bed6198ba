#include "invoicing/find_invoice.h"

#include "support/form_check.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

namespace {

class FindInvoice : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
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
    std::unique_ptr<frmFindInvoice> form;
};

TEST_F(FindInvoice, FindsFromMidnightOfTheFirstDayToTheLastMinuteOfTheLast)
{
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

TEST_F(FindInvoice, StartsWithThePresentDay)
{
    InvoiceAt(QDate(2026, 3, 14), QTime(18, 0));
    Shown(form.get());
    Press(form->dtFromDate, Qt::Key_Return);
    EXPECT_EQ(form->lblTotalCustomers->text(), "1") << "Enter starts the search";
}

TEST_F(FindInvoice, IsLaidOutForItsUser)
{
    CheckForm(*form);
}

TEST_F(FindInvoice, ASearchNeedsBothDates)
{
    ScriptedAnswers answers;
    answers.ExpectMessage(
        "No criteria to search by has been entered. Please enter some details and try again.", Icon::Critical);
    Search(std::nullopt, std::nullopt);
    EXPECT_TRUE(answers.Done());

    ExpectedEnd end;
    Search(Day(5), std::nullopt);
    EXPECT_TRUE(end.Ended()) << "an empty date makes no statement";
}

TEST_F(FindInvoice, TheSelectedInvoiceIsHandedBack)
{
    InvoiceAt(QDate(2026, 3, 5), QTime(9, 0));
    const int later = InvoiceAt(QDate(2026, 3, 6), QTime(9, 0));
    Search(Day(5), Day(6));
    DoubleClickRow(form->gres, 2);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(frmFindInvoice::InvoiceSelected);
    EXPECT_EQ(frmFindInvoice::SelectedInvoiceID, later);
}

TEST_F(FindInvoice, WithoutASelectionItSaysSoAndCloseHandsNothingBack)
{
    Search(Day(5), Day(6));
    ScriptedAnswers answers;
    answers.ExpectMessage(
        "No reservation has been selected. Select a reservation to to view or edit and try again.", Icon::Critical);
    Click(form->cmdEditCustomer);
    EXPECT_TRUE(form->isVisible());
    Click(form->cmdCancel);
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(frmFindInvoice::InvoiceSelected);
    EXPECT_EQ(frmFindInvoice::SelectedInvoiceID, -1);
}

TEST_F(FindInvoice, AnIdBeyond16BitsIsAnOverflow)
{
    InvoiceAt(QDate(2026, 3, 5), QTime(9, 0));
    InvoiceAt(QDate(2026, 3, 5), QTime(10, 0));
    Run("UPDATE invoice SET id = 32768 WHERE id = (SELECT max(id) FROM invoice)");
    Run("UPDATE invoice SET id = 32767 WHERE id = (SELECT min(id) FROM invoice)");
    Search(Day(5), Day(5));
    ExpectedEnd end;
    DoubleClickRow(form->gres, 2);
    EXPECT_EQ(end.Number(), 6);
    EXPECT_FALSE(frmFindInvoice::InvoiceSelected);
}

} // namespace
