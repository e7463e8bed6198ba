#include "base/runtime_error.h"
#include "parties/customer_texts.h"
#include "parties/customers_panel.h"
#include "parties_test.h"

namespace {

struct Name {
    const char* first;
    const char* last;
    const char* business;
    const char* shown;
};

class CustomerNameTest : public ::testing::TestWithParam<Name> { };

} // namespace

TEST_P(CustomerNameTest, HasBlanksAndBracketsOnlyAroundWhatIsThere)
{
    EXPECT_EQ(CustomerName(GetParam().first, GetParam().last, GetParam().business), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Names, CustomerNameTest,
    ::testing::Values(Name{"Ann", "Lee", "Lee & Sons", "Ann Lee (Lee & Sons)"}, Name{"Ann", "Lee", "", "Ann Lee"},
        Name{"", "Lee", "Lee & Sons", "Lee (Lee & Sons)"}, Name{"", "", "Lee & Sons", "(Lee & Sons)"},
        Name{"Ann", "", "Lee & Sons", "Ann (Lee & Sons)"}, Name{"Ann", "", "", "Ann "}, Name{"", "Lee", "", "Lee"},
        Name{"", "", "", ""}));

namespace {

class CustomersPanelTest : public DatabaseTest {
protected:
    CustomersPanel& Shown()
    {
        if (!panel.isVisible()) {
            panel.resize(900, 500);
            ::Shown(&panel);
            panel.RefreshCustomerList(1, 0);
        }
        return panel;
    }
    QStringList Names() { return FirstColumn(Shown().gcust); }

    CustomersPanel panel;
    ScriptedAnswers answers;
};

} // namespace

TEST_F(CustomersPanelTest, ListsEachCustomerByLastNameWithAddressAndNullsEmpty)
{
    const int zoe =
        Customer("Zoe", "Adams").Business("O'Brien & Co").Address("1 Quay", "Cork", "C1").Phone("555").Add();
    Run(QStringLiteral("UPDATE customer SET Address2 = 'Dock 4' WHERE id = %1").arg(zoe));
    Customer("Ann", "Lee").Set("Address1", "2 Mill").Set("Address2", "").Add();
    const int bob = Customer("Bob", "Lee").Add();
    Run(QStringLiteral("UPDATE customer SET Address1 = NULL, PostCode = NULL, Phone = NULL WHERE id = %1").arg(bob));

    EXPECT_EQ(GridRows(Shown().gcust),
        QList<QStringList>({{"Zoe Adams (O'Brien & Co)", "1 Quay, Dock 4", "C1", "555"}, {"Ann Lee", "2 Mill", "", ""},
            {"Bob Lee", "", "", ""}}));
    EXPECT_EQ(Shown().gcust->RowData(1), zoe);
}

TEST_F(CustomersPanelTest, AFirstNameThatIsNullStopsTheLoad)
{
    Run("INSERT INTO customer (FirstName, LastName) VALUES (NULL, 'Lee')");
    try {
        panel.RefreshCustomerList(1, 0);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 94);
    }
}

TEST_F(CustomersPanelTest, TitlesSortAndKeepTheRowNumber)
{
    Customer("Ann", "Lee").Address("9 Mill", "", "A1").Phone("3").Add();
    Customer("Bob", "Moss").Address("5 Mill", "", "C1").Phone("2").Add();
    Customer("Cid", "Nash").Address("7 Mill", "", "B1").Phone("1").Add();
    ClickRow(Shown().gcust, 3);
    const QStringList orders[] = {{"Ann Lee", "Bob Moss", "Cid Nash"}, {"Bob Moss", "Cid Nash", "Ann Lee"},
        {"Ann Lee", "Cid Nash", "Bob Moss"}, {"Cid Nash", "Bob Moss", "Ann Lee"}};
    for (const int col : {1, 2, 3, 0}) {
        ClickTitle(Shown().gcust, col);
        EXPECT_EQ(Names(), orders[col]);
    }
    EXPECT_EQ(Shown().gcust->Row(), 3);
}

TEST_F(CustomersPanelTest, ACustomerWithInvoicesStaysAndOthersGoOnYes)
{
    Customer("Ann", "Lee").Add();
    Invoice(Customer("Bob", "Moss").Add()).Add();
    Customer("Cid", "Nash").Add();
    Shown();
    CheckScreen(&panel, panel.Controls(), {});
    ClickRow(panel.gcust, 2);
    answers.ExpectMessage("This customer has existing invoices and cannot be deleted. To delete this customer first "
                          "delete all their invoices.",
        Icon::Critical, "Cannot delete customer.");
    Click(panel.cmdDeleteCustomer);
    ClickRow(panel.gcust, 3);
    answers.Expect("Delete customer?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(panel.cmdDeleteCustomer);
    EXPECT_EQ(Count("customer"), 3);
    answers.Expect("Delete customer?", Answer::Yes);
    Click(panel.cmdDeleteCustomer);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Bob Moss"}));
    EXPECT_EQ(panel.gcust->Row(), 2);
}

TEST_F(CustomersPanelTest, AnEditSelectsTheCustomerAlsoWhenCancelledAndAnAddTheFirstRow)
{
    Customer("Ann", "Lee").Add();
    const int bob = Customer("Bob", "Moss").Add();
    Shown();
    WhenFormShows<frmCustomer>([&](frmCustomer& form) {
        EXPECT_EQ(form.txtFirstname->text(), "Bob");
        Run("UPDATE customer SET FirstName = 'Rob' WHERE LastName = 'Moss'");
        Press(&form, Qt::Key_Escape);
    });
    DoubleClickRow(panel.gcust, 2);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Rob Moss"})) << "reloaded";
    EXPECT_EQ(panel.gcust->CurrentRowData(), bob);

    WhenFormShows<frmCustomer>([](frmCustomer& form) {
        Type(form.txtLastname, "Nash");
        Press(form.txtLastname, Qt::Key_Return);
    });
    Click(panel.cmdCreateCustomer);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Rob Moss", "Nash"}));
    EXPECT_EQ(panel.gcust->Row(), 1);
}

TEST_F(CustomersPanelTest, OnAnEmptyListEditOnlyReloadsAndAnIdBeyondSixteenBitsEndsTheProgram)
{
    Shown();
    Click(panel.cmdDeleteCustomer);
    Customer("Ann", "Lee").Set("id", "32768").Add();
    Click(panel.cmdEditCustomer);
    EXPECT_EQ(Names(), QStringList{"Ann Lee"});

    const ExpectedEnd end;
    Click(panel.cmdEditCustomer);
    EXPECT_EQ(end.Number(), 6);
}
