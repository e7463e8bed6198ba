#include "parties/customers_panel.h"
#include "platform/runtime_error.h"
#include "support/screen.h"
#include "support/temporary_database.h"

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
        Name{"Ann", "", "Lee & Sons", "Ann (Lee & Sons)"}, Name{"Ann", "", "", "Ann "}, Name{"", "", "", ""}));

namespace {

class CustomersPanelTest : public DatabaseTest {
protected:
    CustomersPanel& Shown()
    {
        if (!m_panel) {
            m_panel = std::make_unique<CustomersPanel>();
            m_panel->resize(900, 500);
            ::Shown(m_panel.get());
            m_panel->RefreshCustomerList(1, 0);
        }
        return *m_panel;
    }

    QStringList Names()
    {
        QStringList names;
        for (const QStringList& row : GridRows(Shown().gcust))
            names.append(row.first());
        return names;
    }

private:
    std::unique_ptr<CustomersPanel> m_panel;
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
    CustomersPanel panel;
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
    FlexGrid* gcust = Shown().gcust;
    ClickRow(gcust, 3);

    ClickTitle(gcust, 1);
    EXPECT_EQ(Names(), QStringList({"Bob Moss", "Cid Nash", "Ann Lee"}));
    ClickTitle(gcust, 2);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Cid Nash", "Bob Moss"}));
    ClickTitle(gcust, 3);
    EXPECT_EQ(Names(), QStringList({"Cid Nash", "Bob Moss", "Ann Lee"}));
    ClickTitle(gcust, 0);
    EXPECT_EQ(Names(), QStringList({"Ann Lee", "Bob Moss", "Cid Nash"}));
    EXPECT_EQ(gcust->Row(), 3);
}

TEST_F(CustomersPanelTest, ARefillSelectsTheRecordOrFallsBackToTheLastRow)
{
    const int ann = Customer("Ann", "Lee").Add();
    Customer("Bob", "Moss").Add();
    CustomersPanel& panel = Shown();
    panel.RefreshCustomerList(2, ann);
    EXPECT_EQ(panel.gcust->CurrentRowData(), ann);
    panel.RefreshCustomerList(9, 0);
    EXPECT_EQ(panel.gcust->Row(), 2);
    EXPECT_EQ(panel.gcust->ColSel(), 3);
    Run("DELETE FROM customer");
    panel.RefreshCustomerList(1, 0);
    EXPECT_EQ(panel.gcust->Row(), 0);
    EXPECT_EQ(panel.gcust->CurrentRowData(), 0);
}
