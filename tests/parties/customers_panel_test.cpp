#include "parties/customer_record.h"
#include "parties/customer_texts.h"
#include "parties/customers_panel.h"
#include "support/test.h"

TEST(CustomerNames, HaveBlanksAndBracketsOnlyAroundWhatIsThere)
{
    ExpectCases("customer_names.txt", [](const QString&, const QString& parts) {
        const QStringList part = parts.split('|');
        const std::string first = part[0].toStdString(), last = part[1].toStdString(), business = part[2].toStdString();
        return QString::fromStdString('"' + std::string(CustomerName(first, last, business)) + '"');
    });
}

using CustomersPanelTest = PanelTest<CustomersPanel>;

TEST_F(CustomersPanelTest, ANewCustomerIsNotLookedForAndOddRowsEndTheProgram)
{
    Customer("Ann", "Lee").Add();
    panel->RefreshCustomerList(1, 0);
    ShowPanel();
    WhenFormShows<frmCustomer>([](frmCustomer& form) {
        Type(form.txtLastname, "Nash");
        Press(form.txtLastname, Qt::Key_Return);
    });
    Click(panel->cmdCreateCustomer);
    EXPECT_EQ(GridColumn(panel->gcust), QStringList({"Ann Lee", "Nash"}));
    EXPECT_EQ(panel->gcust->Row(), 1);

    Run("DELETE FROM customer");
    panel->RefreshCustomerList(1, 0);
    Customer("Ann", "Lee").Set("id", "32768").Add();
    Click(panel->cmdEditCustomer);
    EXPECT_EQ(GridColumn(panel->gcust), QStringList{"Ann Lee"}) << "with no customer selected it only reloads";
    {
        const ExpectedEnd end;
        Click(panel->cmdEditCustomer);
        EXPECT_EQ(end.Number(), 6) << "an id beyond sixteen bits";
    }
    Run("INSERT INTO customer (FirstName, LastName) VALUES (NULL, 'Lee')");
    const ExpectedEnd end;
    Guarded([this] { panel->RefreshCustomerList(1, 0); });
    EXPECT_EQ(end.Number(), 94) << "a first name that is Null";
}
