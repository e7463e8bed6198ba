#include "inventory/inventory_list.h"
#include "inventory_test.h"

namespace {

/// The inventory view, filled as the start of the program and then the menu fill it.
class InventoryListTest : public PanelTest<InventoryList> {
protected:
    void Open()
    {
        panel->RefillInvoicePriceLists();
        panel->RefreshInventoryList(1, 0);
        ShowPanel();
    }
    QStringList Names() const
    {
        QStringList names;
        for (const QStringList& row : GridRows(panel->gInventory))
            names.append(row[1]);
        return names;
    }
};

TEST_F(InventoryListTest, ShowsEveryItemWithItsPriceTaxAndStockByName)
{
    const int vat = TaxRateRow("VAT", 17.5);
    Item("Washers").Number("0042").Price("1234.5").TaxRate(vat).Stock(2.5).Add();
    Item("bolts & <nuts>").Number("7").Price("0.125").Stock(1200).Add();
    Open();

    EXPECT_EQ(GridRows(panel->gInventory),
        Table({{"7", "bolts & <nuts>", "$0.13", "None", "1200"}, {"0042", "Washers", "$1,234.50", "VAT", "2.5"}}));
    EXPECT_EQ(panel->gInventory->TextMatrix(0, 2), "Sale Price");
    EXPECT_EQ(panel->lblInventoryTotal->text(), "2 items.");
    CheckScreen(panel, panel->Controls(), {});
}

TEST_F(InventoryListTest, EachPriceListShowsTheItemsThatHaveAPriceInItOrNoPriceAtAll)
{
    const int trade = PriceListRow("Trade");
    const int both = Item("Both").Price("10").Price("Trade", "8").Add();
    const int retailOnly = Item("Retail only").Price("5").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1 AND PriceListID = %2").arg(retailOnly).arg(trade));
    const int none = Item("Unpriced").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1").arg(none));
    Run(QString("INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (%1, %2, 7)").arg(both).arg(trade));
    const int orphan = Item("No such tax").TaxRate(999).Add();
    Open();

    EXPECT_EQ(Names(), QStringList({"Both", "Retail only", "Unpriced"})) << "item " << orphan << " joins no tax rate";
    EXPECT_EQ(panel->gInventory->TextMatrix(3, 2), "$0.00");

    Pick(panel->cboInvoicePriceList, "Trade");
    EXPECT_EQ(Names(), QStringList({"Both", "Both", "Unpriced"})) << "two prices in a list show twice";
    EXPECT_EQ(panel->gInventory->TextMatrix(0, 2), "Trade");
    EXPECT_EQ(panel->lblInventoryTotal->text(), "3 items.");
}

TEST_F(InventoryListTest, AClickOnATitleSortsAscendingAndKeepsTheRowNumber)
{
    const int zero = TaxRateRow("A zero rate", 0);
    Item("Anchor").Number("30").Price("9").Stock(10).Add();
    Item("Buoy").Number("10").Price("100").Stock(9).TaxRate(zero).Add();
    Item("Cleat").Number("20").Price("20").Stock(100).Add();
    Open();
    ClickRow(panel->gInventory, 2);

    const auto sortedBy = [this](int col) {
        ClickTitle(panel->gInventory, col);
        EXPECT_EQ(panel->gInventory->Row(), 2);
        return Names();
    };
    EXPECT_EQ(sortedBy(0), QStringList({"Buoy", "Cleat", "Anchor"}));
    EXPECT_EQ(sortedBy(0), QStringList({"Buoy", "Cleat", "Anchor"})) << "there is no descending order";
    EXPECT_EQ(sortedBy(2), QStringList({"Anchor", "Cleat", "Buoy"})) << "by amount, not by its text";
    EXPECT_EQ(sortedBy(3).front(), "Buoy");
    EXPECT_EQ(sortedBy(4), QStringList({"Buoy", "Anchor", "Cleat"}));
    EXPECT_EQ(sortedBy(1), QStringList({"Anchor", "Buoy", "Cleat"}));
}

TEST_F(InventoryListTest, ASavedItemIsSelectedAfterwards)
{
    Item("Anchor").Add();
    const int cleat = Item("Cleat").Add();
    Open();
    WhenFormShows<frmItemDetails>([](frmItemDetails& form) {
        Type(form.txtFields_5, "Buoy");
        Click(form.cmdOk);
    });
    Click(panel->cmdAddInventory);
    EXPECT_EQ(panel->gInventory->TextMatrix(panel->gInventory->Row(), 1), "Buoy");
    EXPECT_EQ(panel->gInventory->ColSel(), 4);

    const auto rename = [cleat](frmItemDetails& form) {
        EXPECT_EQ(gEditItemId, cleat);
        Type(form.txtFields_5, form.txtFields_5->text().prepend("A "));
        Click(form.cmdOk);
    };
    WhenFormShows<frmItemDetails>(rename);
    DoubleClickRow(panel->gInventory, 3);
    EXPECT_EQ(panel->gInventory->Row(), 1);
    WhenFormShows<frmItemDetails>(rename);
    Press(panel->gInventory, Qt::Key_Return);
    EXPECT_EQ(Names(), QStringList({"A A Cleat", "Anchor", "Buoy"}));

    ClickRow(panel->gInventory, 3);
    WhenFormShows<frmItemDetails>([](frmItemDetails& form) { Press(&form, Qt::Key_Escape); });
    Click(panel->cmdAddInventory);
    EXPECT_EQ(panel->gInventory->Row(), 1) << "no new item, so the first row";
}

TEST_F(InventoryListTest, DeletingAsksAndLeavesPricesFieldsAndMembershipsBehind)
{
    Line(Invoice(Customer("Ann", "Lee").Add()).Add(), Item("Anchor").Add(), 1, "5");
    const QString buoy = QString::number(Item("Buoy").Add());
    Run("INSERT INTO itemgroup_item (itemgroupid, ItemID) VALUES (5, " + buoy + ")");
    Run("INSERT INTO ItemCustomFieldData (ItemID, ItemCustomFieldID, Data) VALUES (" + buoy + ", 1, 'red')");
    Open();
    answers.ExpectMessage("This item is used on one or more invoices and cannot be deleted. To delete this item first "
                          "delete all invoices it is included in.",
        Icon::Critical, "Cannot delete item.");
    Click(panel->cmdDeleteInventory);

    ClickRow(panel->gInventory, 2);
    answers.Expect("Delete item?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(panel->cmdDeleteInventory);
    EXPECT_EQ(Count("item"), 2);
    answers.Expect("Delete item?", Answer::Yes);
    Click(panel->cmdDeleteInventory);
    EXPECT_EQ(Names(), QStringList({"Anchor"}));
    EXPECT_EQ(panel->gInventory->Row(), 1);
    EXPECT_EQ(Count("ItemPriceList"), 2);
    EXPECT_EQ(Count("itemgroup_item"), 1);
    EXPECT_EQ(Count("ItemCustomFieldData"), 1);

    Run("DELETE FROM item");
    panel->RefreshInventoryList(1, 0);
    EXPECT_EQ(panel->lblInventoryTotal->text(), "0 items.");
    Click(panel->cmdEditInventory);
    Click(panel->cmdDeleteInventory);
}

} // namespace
