#include "controls/status_line.h"
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
    QStringList Names() const { return GridColumn(panel->gInventory, 1); }
};

TEST_F(InventoryListTest, EachPriceListShowsTheItemsThatHaveAPriceInItOrNoPriceAtAll)
{
    const int trade = PriceListRow("Trade");
    const int both = Item("Both").Price("10").Price("Trade", "8").Add();
    const int retailOnly = Item("Retail only").Price("5").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1 AND PriceListID = %2").arg(retailOnly).arg(trade));
    Run("UPDATE ItemPriceList SET Price = NULL WHERE ItemID = " + QString::number(retailOnly));
    const int none = Item("Unpriced").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1").arg(none));
    Run(QString("INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (%1, %2, 7)").arg(both).arg(trade));
    const int orphan = Item("No such tax").TaxRate(999).Add();
    Open();

    EXPECT_EQ(panel->gInventory->TextMatrix(0, 2), "Sale Price");
    EXPECT_EQ(Names(), QStringList({"Both", "Retail only", "Unpriced"})) << "item " << orphan << " joins no tax rate";
    EXPECT_EQ(panel->gInventory->TextMatrix(2, 2) + panel->gInventory->TextMatrix(3, 2), "$0.00$0.00");

    Pick(panel->cboInvoicePriceList, "Trade");
    EXPECT_EQ(Names(), QStringList({"Both", "Both", "Unpriced"})) << "two prices in a list show twice";
    EXPECT_EQ(panel->gInventory->TextMatrix(0, 2), "Trade");
    EXPECT_EQ(panel->lblInventoryTotal->text(), "3 items.");
}

TEST_F(InventoryListTest, ASavedItemIsSelectedAfterwards)
{
    Item("Anchor").Add();
    Item("Cleat").Add();
    Open();
    WhenFormShows<frmItemDetails>([](frmItemDetails& form) {
        Type(form.txtFields_5, "Buoy");
        Click(form.cmdOk);
    });
    Click(panel->cmdAddInventory);
    EXPECT_EQ(panel->gInventory->CellText(panel->gInventory->Row(), "name"), "Buoy");

    WhenFormShows<frmItemDetails>([](frmItemDetails& form) {
        Type(form.txtFields_5, "A Cleat");
        Click(form.cmdOk);
    });
    DoubleClickRow(panel->gInventory, 3);
    EXPECT_EQ(panel->gInventory->Row(), 1);
    EXPECT_EQ(Names(), QStringList({"A Cleat", "Anchor", "Buoy"}));
}

TEST_F(InventoryListTest, DeletingLeavesPricesFieldsAndMembershipsBehind)
{
    const QString buoy = QString::number(Item("Buoy").Add());
    Run("INSERT INTO itemgroup_item (itemgroupid, ItemID) VALUES (5, " + buoy + ")");
    Run("INSERT INTO ItemCustomFieldData (ItemID, ItemCustomFieldID, Data) VALUES (" + buoy + ", 1, 'red')");
    Open();
    answers.Expect("Delete item?", Answer::Yes);
    QString told;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, panel, [&told](const QString& text) { told = text; });
    Click(panel->cmdDeleteInventory);
    EXPECT_EQ(told, "Item Buoy deleted");
    EXPECT_EQ(panel->lblInventoryTotal->text(), "0 items.");
    EXPECT_EQ(Count("ItemPriceList"), 1);
    EXPECT_EQ(Count("itemgroup_item"), 1);
    EXPECT_EQ(Count("ItemCustomFieldData"), 1);
}

TEST_F(InventoryListTest, ItemsAtOrBelowTheirReorderLevelAreMarked)
{
    for (const auto& [name, stock, level] : {std::tuple("a below", "2", "3"), {"b at", "3", "3"}, {"c above", "4", "3"},
             {"d none", "NULL", "3"}, {"e below", "-1", "0"}})
        Run(QString("UPDATE item SET NoInStock = %1, ReorderLevel = %2 WHERE id = %3")
                .arg(stock, level)
                .arg(Item(name).Add()));
    Open();
    QStringList marked;
    for (int row = 0; row < 5; ++row) {
        const QModelIndex stock = panel->gInventory->model()->index(row, 4);
        if (stock.data(Qt::ToolTipRole).toString() == "At or below the reorder level")
            marked.append(Names().at(row));
    }
    EXPECT_EQ(marked, QStringList({"a below", "b at", "e below"}));

    Run("DELETE FROM PriceList");
    InventoryList started;
    started.FillInvoicePriceLists();
    started.ShowFirstPriceList();
    EXPECT_EQ(started.gInventory->Rows(), 1);
    EXPECT_EQ(started.gInventory->TextMatrix(0, 2), "Sale Price") << "at the start, without price lists";
}

} // namespace
