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

TEST_F(CustomersPanelTest, ANewCustomerIsNotLookedFor)
{
    Customer("Ann", "Lee").Add();
    ClickRow(Shown().gcust, 1);
    WhenFormShows<frmCustomer>([](frmCustomer& form) {
        Type(form.txtLastname, "Nash");
        Press(form.txtLastname, Qt::Key_Return);
    });
    Click(panel.cmdCreateCustomer);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Nash"}));
    EXPECT_EQ(panel.gcust->Row(), 1);
}

TEST_F(CustomersPanelTest, WithNoCustomerSelectedEditOnlyReloadsAndAnIdBeyondSixteenBitsEndsTheProgram)
{
    Shown();
    Customer("Ann", "Lee").Set("id", "32768").Add();
    Click(panel.cmdEditCustomer);
    EXPECT_EQ(Names(), QStringList{"Ann Lee"});

    const ExpectedEnd end;
    Click(panel.cmdEditCustomer);
    EXPECT_EQ(end.Number(), 6);
}
