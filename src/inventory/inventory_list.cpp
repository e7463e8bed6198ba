#include "inventory/inventory_list.h"

#include "base/numbers.h"
#include "controls/hourglass.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "inventory/item_details.h"
#include "records/lists.h"
#include "records/row_deletion.h"

#include <optional>

namespace {

/// The fields of the list's statement.
enum { Id, Number, Name, NoInStock, TaxName, Price, PriceListId };

constexpr const char* PriceField = "price";

void AddPrice(const Recordset& item, int price, GridFill& fill)
{
    fill.Add(FormatCurrency(item.IsNull(price) ? Currency() : item.Money(price)));
}

/// Their stock is at or below their reorder level.
std::unordered_set<qint64> ItemsToReorder()
{
    std::unordered_set<qint64> items;
    for (Recordset rs = gConnection->Execute("SELECT id FROM item WHERE noinstock <= reorderlevel"); !rs.Eof();
         rs.MoveNext())
        items.insert(rs.Long(0));
    return items;
}

} // namespace

InventoryList::InventoryList(QWidget* parent)
    : ListPanel("picInventory", parent)
{
    lblInvoicePriceList->setText(tr("Price List:"));
    cmdAddInventory->setText(tr("New Item"));
    cmdEditInventory->setText(tr("View/Edit Item"));
    cmdDeleteInventory->setText(tr("Delete Item"));
    gInventory->setAccessibleName(tr("Inventory"));
    SetLabelOf(lblInvoicePriceList, cboInvoicePriceList);

    // Spare width goes to the number at load, and to the name from the first resize on.
    gInventory->SetColumns({
        {"number", tr("Number"), 800, CellAlign::LeftCenter, CellAlign::LeftCenter, "[number]", Spare::AtLoad},
        {"name", tr("Name"), 2400, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder, Spare::AtResize},
        {PriceField, tr("Sale Price"), 1600, CellAlign::CenterTop, CellAlign::RightCenter, "price", Spare::No,
            AddPrice},
        {"tname", tr("Tax Rate"), 1100, CellAlign::RightCenter, CellAlign::RightCenter, "taxrate.name"},
        {"noinstock", tr("In Stock"), 1600, CellAlign::CenterTop, CellAlign::RightCenter, "noinstock", Spare::No,
            [this](const Recordset& item, int noInStock, GridFill& fill) {
                if (!m_toReorder)
                    m_toReorder = ItemsToReorder();
                if (m_toReorder->count(item.Long(Id)) > 0)
                    fill.MarkRow();
                fill.Add(item.Text(noInStock));
            }},
    });
    ShowTotal();
    gInventory->SetMarkOf("noinstock", tr("At or below the reorder level"));

    TitleLabel()->setObjectName(QStringLiteral("Label1_16"));
    setLayout(column({
        head(tr("Inventory"),
            tr("Instructions - you are currently viewing your inventory. This includes all inventory items. To "
               "sort by a column click it's title. For more details press F1 for help.")),
        row({lblInvoicePriceList, cboInvoicePriceList, stretch()}),
        gInventory,
        ButtonBar("picInventoryButBar",
            {lblInventoryTotal, stretch(), cmdAddInventory, cmdEditInventory, cmdDeleteInventory}),
    }));

    ShowList(gInventory, {cmdEditInventory, cmdAddInventory, cmdDeleteInventory},
        [this](int row, qint64 selectId) { RefreshInventoryList(row, selectId); });
    On(cboInvoicePriceList, &ComboBox::Click, this, &InventoryList::LoadIfSeen);
    On(cmdAddInventory, &QPushButton::clicked, this, &InventoryList::AddItem);
    On(cmdEditInventory, &QPushButton::clicked, this, &InventoryList::EditItem);
    On(cmdDeleteInventory, &QPushButton::clicked, this, &InventoryList::DeleteItem);
}

void InventoryList::RefreshInventoryList(int row, qint64 selectId)
{
    const Hourglass hourglass(tr("Reading the items..."));
    gConnection->Execute("SELECT count(*) FROM item").Close();

    gInventory->SetTitleOf(PriceField, cboInvoicePriceList->Text());

    const Sql items =
        gInventory->Ordered(QStringLiteral("SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, "
                                           "price, PriceListID FROM (TaxRate INNER JOIN Item ON TaxRate.ID = "
                                           "Item.TaxRateID) LEFT JOIN ItemPriceList ON Item.ID = "
                                           "ItemPriceList.ItemID "),
            "ORDER BY item.name");
    // The price list is chosen here and not in the statement: an item without any price shows in every list, one with
    // prices in other lists alone in none. With no rows to choose from it does not matter that no list is chosen.
    const bool isChosen = cboInvoicePriceList->ListIndex() >= 0;
    const QString choice = isChosen ? QString::number(cboInvoicePriceList->SelectedData()) : QString();
    std::optional<qint64> chosen;
    m_toReorder.reset();
    gInventory->LoadSome(
        items, row, selectId,
        [&](const Recordset& item) {
            if (!chosen)
                chosen = cboInvoicePriceList->SelectedData();
            return item.IsNull(PriceListId) || item.Long(PriceListId) == *chosen;
        },
        choice);
    m_toReorder.reset();

    ShowTotal();
}

void InventoryList::ShowTotal()
{
    lblInventoryTotal->setText(tr("%1 items.").arg(gInventory->Rows() - 1));
}

void InventoryList::AddItem()
{
    ShowItemRecord(NewRow);
}

void InventoryList::EditItem()
{
    const qint64 itemId = gInventory->CurrentRowData();
    if (itemId != 0)
        ShowItemRecord(qint32(itemId));
}

void InventoryList::ShowItemRecord(qint32 itemId)
{
    frmItemDetails::gEditItemId = itemId;
    frmItemDetails(window()).ShowModal();
    RefreshInventoryList(1, frmItemDetails::gEditItemId);
}

void InventoryList::DeleteItem()
{
    const RowDeletion deletion{
        .uses = "SELECT count(*) FROM invoiceline WHERE itemid = {id} ",
        .inUse = tr("This item is used on one or more invoices and cannot be deleted. To delete this item first delete "
                    "all invoices it is included in."),
        .inUseTitle = tr("Cannot delete item."),
        .question = tr("Delete item?"),
        // The item's prices, custom fields and group memberships stay behind.
        .remove = "DELETE FROM item WHERE id = {id}",
        .done = tr("Item %1 deleted").arg(gInventory->CellText(gInventory->Row(), "name")),
    };
    if (DeleteRecord(deletion, gInventory->CurrentRowData()))
        RefreshInventoryList(1, 0);
}

void InventoryList::FillInvoicePriceLists()
{
    FillPriceLists(cboInvoicePriceList);
}

void InventoryList::ShowFirstPriceList()
{
    SelectIgnoring(cboInvoicePriceList, 0, [this] { LoadIfSeen(); });
}

/// The view is always filled when it comes up: out of sight the start of the program would wait for nothing.
void InventoryList::LoadIfSeen()
{
    if (isVisible())
        LoadInPlace();
}

void InventoryList::RefillInvoicePriceLists()
{
    FillInvoicePriceLists();
    cboInvoicePriceList->SetListIndex(0);
}
