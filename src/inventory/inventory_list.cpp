#include "inventory/inventory_list.h"

#include "base/numbers.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "inventory/edit_item.h"
#include "inventory/item_details.h"
#include "records/lists.h"

namespace {

constexpr int PriceColumn = 2;

const QStringList& SortExpressions()
{
    static const QStringList expressions{QStringLiteral("[number]"), QString(), QStringLiteral("price"),
        QStringLiteral("taxrate.name"), QStringLiteral("noinstock")};
    return expressions;
}

/// Writes the rows of the list's statement. The price list is chosen here and not in the statement: an item without any
/// price shows in every list, one with prices in other lists alone in none.
class InventoryRowWriter {
public:
    explicit InventoryRowWriter(const ComboBox* priceLists)
        : m_priceLists(priceLists)
    {
    }

    std::optional<qint64> operator()(const Recordset& item, GridFill& fill)
    {
        const qint64 chosen = ChosenPriceList();
        const bool hasNoPrice = item.IsNull(PriceListId);
        if (!hasNoPrice && item.Long(PriceListId) != chosen)
            return std::nullopt;

        fill.Add(item.Text(Number));
        fill.Add(item.Text(Name));
        fill.Add(FormatCurrency(hasNoPrice ? Currency() : PriceOf(item)));
        fill.Add(item.Text(TaxName));
        fill.Add(item.Text(NoInStock));
        return item.Long(Id);
    }

private:
    enum Column { Id, Number, Name, NoInStock, TaxName, Price, PriceListId };

    /// Asked of the list with the first row: without rows it does not matter that none is chosen.
    qint64 ChosenPriceList()
    {
        if (!m_chosen)
            m_chosen = m_priceLists->SelectedData();
        return *m_chosen;
    }

    static Currency PriceOf(const Recordset& item)
    {
        if (item.IsNull(Price))
            throw InvalidUseOfNull();
        return item.Money(Price);
    }

    const ComboBox* m_priceLists;
    std::optional<qint64> m_chosen;
};

} // namespace

qint32 gEditItemId = NewRow;

InventoryList::InventoryList(QWidget* parent)
    : Panel("picInventory", parent)
{
    lblInvoicePriceList->setText(tr("Price List:"));
    cmdAddInventory->setText(tr("New Item"));
    cmdEditInventory->setText(tr("View/Edit Item"));
    cmdDeleteInventory->setText(tr("Delete Item"));
    gInventory->setAccessibleName(tr("Inventory"));
    SetLabelOf(lblInvoicePriceList, cboInvoicePriceList);

    auto* buttonBar = new QWidget;
    buttonBar->setObjectName(QStringLiteral("picInventoryButBar"));
    buttonBar->setLayout(row({lblInventoryTotal, stretch(), cmdAddInventory, cmdEditInventory, cmdDeleteInventory}));
    buttonBar->layout()->setContentsMargins(0, 0, 0, 0);

    setLayout(column({
        head(tr("Inventory"),
            tr("Instructions - you are currently viewing your inventory. This includes all inventory items. To "
               "sort by a column click it's title. For more details press F1 for help.")),
        row({lblInvoicePriceList, cboInvoicePriceList, stretch()}),
        gInventory,
        buttonBar,
    }));

    gInventory->SetCols(int(SortExpressions().size()));
    for (int col = 0; col < gInventory->Cols(); ++col)
        gInventory->SetColAlignment(col, col < PriceColumn ? CellAlign::LeftCenter : CellAlign::RightCenter);

    On(cboInvoicePriceList, &ComboBox::Click, this, [this] { RefreshInventoryList(gInventory->Row(), 0); });
    On(gInventory, &FlexGrid::Click, this, [this] {
        SortOnTitleClick(gInventory, SortExpressions(), [this] { RefreshInventoryList(gInventory->Row(), 0); });
    });
    On(gInventory, &FlexGrid::DblClick, this, [this] {
        if (gInventory->MouseRow() != 0)
            EditItem();
    });
    On(cmdAddInventory, &QPushButton::clicked, this, &InventoryList::AddItem);
    On(cmdEditInventory, &QPushButton::clicked, this, &InventoryList::EditItem);
    On(cmdDeleteInventory, &QPushButton::clicked, this, &InventoryList::DeleteItem);
}

void InventoryList::RefreshInventoryList(int row, qint64 selectId)
{
    Hourglass hourglass;
    gConnection->Execute("SELECT count(*) FROM item").Close();

    gInventory->SetTitle(PriceColumn, cboInvoicePriceList->Text(), CellAlign::CenterTop);

    const Sql items =
        Ordered(QStringLiteral("SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, price, "
                               "PriceListID FROM (TaxRate INNER JOIN Item ON TaxRate.ID = Item.TaxRateID) LEFT JOIN "
                               "ItemPriceList ON Item.ID = ItemPriceList.ItemID "),
            gInventory, QStringLiteral("ORDER BY item.name"));
    LoadList(gInventory, items, row, selectId, InventoryRowWriter(cboInvoicePriceList));

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
    gEditItemId = itemId;
    frmItemDetails(window()).ShowModal();
    RefreshInventoryList(1, gEditItemId);
}

void InventoryList::DeleteItem()
{
    const qint64 itemId = gInventory->CurrentRowData();
    if (itemId == 0)
        return;

    const Sql lines = Sql("SELECT count(*) FROM invoiceline WHERE itemid = {id} ").Number("id", itemId);
    if (gConnection->Execute(lines)[0].ToLong() > 0) {
        MsgBox(
            tr("This item is used on one or more invoices and cannot be deleted. To delete this item first delete all "
               "invoices it is included in."),
            Icon::Critical, tr("Cannot delete item."));
        return;
    }
    if (MsgBox(tr("Delete item?"), Icon::Question, Buttons::YesNo) != Answer::Yes)
        return;

    // The item's prices, custom fields and group memberships stay behind.
    gConnection->Execute(Sql("DELETE FROM item WHERE id = {id}").Number("id", itemId));
    RefreshInventoryList(1, 0);
}

void InventoryList::FillInvoicePriceLists()
{
    FillPriceLists(cboInvoicePriceList);
}

void InventoryList::RefillInvoicePriceLists()
{
    FillInvoicePriceLists();
    cboInvoicePriceList->SetListIndex(0);
}
