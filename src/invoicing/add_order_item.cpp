#include "invoicing/add_order_item.h"

#include "base/numbers.h"
#include "controls/focus.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/scan_watch.h"
#include "controls/window_place.h"
#include "invoicing/item_search.h"
#include "invoicing/order_lines.h"
#include "records/lists.h"

qint32 frmAddOrderItem::SelectedItemID = -1;
qint32 frmAddOrderItem::SelectedItemQuantity = 0;
Currency frmAddOrderItem::SelectedItemPrice;

namespace {

bool IsInStock(qint64 itemId, qint32 quantity)
{
    const Recordset item = gConnection->Execute(Sql("SELECT noinstock FROM item WHERE id = {id}").Number("id", itemId));
    return item.Eof() || item.IsNull(0) || quantity <= item[0].ToDouble();
}

} // namespace

frmAddOrderItem::frmAddOrderItem(qint64 priceListId, QWidget* parent)
    : Form("frmAddOrderItem", tr("Add Order Item"), parent)
{
    SetCaptions();
    BuildLayout();
    resize(GrownWithFont(760, 600));
    constexpr CellAlign Left = CellAlign::LeftCenter;
    constexpr CellAlign Right = CellAlign::RightCenter;
    gItems->SetColumns({
        {"number", tr("Number"), 1300, Left, Left, NoOrder},
        {"name", tr("Name"), 2600, Left, Left, NoOrder},
        {"description", tr("Description"), 3600, Left, Left, NoOrder, Spare::Always},
        {"noinstock", tr("No In Stock"), 1200, Right, Right, NoOrder},
        {"id", tr("Sale Price"), 1400, Right, Right, NoOrder, Spare::No,
            [this](const Recordset& item, int id, GridFill& fill) { fill.Add(PriceText(item.Long(id))); }},
    });
    gItems->StretchWithSize();
    gItems->LetDownEnter({txtItemName, txtItemDescription, txtItemNumber});
    gItems->OfferOnRows({cmdOk});
    gItems->SetEmptyText(tr("No item matches."));
    Connect();
    KeepCodesOut({txtQuantityToAdd, txtItemPrice});

    txtQuantityToAdd->setText(QStringLiteral("1"));
    SelectedItemQuantity = 1;
    FillCategories();
    FillPriceLists(cboPriceList);
    SelectPriceList(cboPriceList, priceListId);
    DoSearch();
}

void frmAddOrderItem::SetCaptions()
{
    cmdSearch->setText(tr("&Search"));
    lblItemMatches->setText(tr("Item Matches:"));
    cmdOk->setText(tr("Add Item to Invoice"));
    cmdCancel->setText(tr("&Cancel"));
    SetLabelOf(lblItemMatches, gItems);
    // Its label counts the matches; the name by which it is read out does not change with them.
    gItems->setAccessibleName(tr("Item Matches"));
}

void frmAddOrderItem::BuildLayout()
{
    setLayout(column({
        instructions(tr("Instructions - select the item to add to the invoice and then click 'Add Item to Invoice'. To "
                        "search for an item select the Category, Sub-Category, Item Name, Item Description and then "
                        "click 'Search'.")),
        fieldColumns({
            {{tr("Category:"), cboCategory}, {tr("Sub Category:"), cboSubCategory}, {tr("Price List:"), cboPriceList}},
            {{tr("Item Name:"), txtItemName}, {tr("Item Description:"), txtItemDescription},
                {tr("Item Number:"), txtItemNumber}},
        }),
        row({stretch(), cmdSearch}),
        lblItemMatches,
        gItems,
        row({fieldColumns({{{tr("Quantity to Add:"), txtQuantityToAdd}}, {{tr("Price:"), txtItemPrice}}}), stretch(),
            cmdOk, cmdCancel}),
    }));
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
}

void frmAddOrderItem::Connect()
{
    On(cboCategory, &ComboBox::Click, this, &frmAddOrderItem::FillSubCategories);
    On(cmdSearch, &QPushButton::clicked, this, &frmAddOrderItem::DoSearch);
    On(gItems, &FlexGrid::Click, this, &frmAddOrderItem::ShowPriceOfCurrentItem);
    // The price is that of the current item also when the arrow keys moved on to it.
    On(gItems->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &frmAddOrderItem::ShowPriceOfCurrentItem);
    On(gItems, &FlexGrid::DblClick, this, [this] {
        if (gItems->CurrentRowData() != 0)
            TakeItem();
    });
    On(cmdOk, &QPushButton::clicked, this, &frmAddOrderItem::TakeItem);
    On(cmdCancel, &QPushButton::clicked, cmdCancel, [] { SelectedItemID = -1; });

    // Enter in a search field searches.
    for (TextBox* box : {txtItemName, txtItemDescription, txtItemNumber}) {
        OnFocusGained(box, [this] { SetDefaultButton(cmdSearch, true); });
        OnFocusLeft(box, [this] { SetDefaultButton(cmdOk, true); });
    }
}

void frmAddOrderItem::FillCategories()
{
    cboCategory->AddItem(tr("All Categories"), 0);
    cboCategory->AddItem(tr("No Category"), 1);
    FillCombo(cboCategory, Sql("SELECT id, name FROM category WHERE id<>1 ORDER BY name"));
    cboCategory->SetListIndex(0);
}

void frmAddOrderItem::FillSubCategories()
{
    cboSubCategory->Clear();
    cboSubCategory->AddItem(tr("All Sub-Categories"), 0);
    if (cboCategory->SelectedData() != 0)
        FillCombo(cboSubCategory,
            Sql("SELECT id, name FROM subcategory WHERE categoryid = {categoryId} ORDER BY name")
                .Number("categoryId", cboCategory->SelectedData()));
    cboSubCategory->SetListIndex(0);
}

void frmAddOrderItem::DoSearch()
{
    const Hourglass hourglass(tr("Searching the items..."));
    lblItemMatches->setText(tr("Searching..."));
    lblItemMatches->repaint();

    const Sql items = ItemSearchStatement({txtItemName->text(), txtItemDescription->text(), txtItemNumber->text(),
        cboSubCategory->SelectedData(), cboCategory->SelectedData()});
    // The prices are those of the list that is chosen now.
    gItems->LoadSome(items, 1, 0, nullptr, QString::number(cboPriceList->SelectedData()));

    lblItemMatches->setText(tr("%1 Item Matches:").arg(gItems->Rows() - 1));
    ShowPriceOfCurrentItem();
}

void frmAddOrderItem::ShowPriceOfCurrentItem()
{
    if (const qint64 itemId = gItems->CurrentRowData(); itemId != 0)
        txtItemPrice->setText(PriceText(itemId));
}

QString frmAddOrderItem::PriceText(qint64 itemId) const
{
    return FormatCurrency(ListPrice(qint32(itemId), cboPriceList->SelectedData()));
}

void frmAddOrderItem::TakeItem()
{
    const qint64 itemId = gItems->CurrentRowData();
    // Esc in the list shows all items again, as it says.
    if (itemId == 0 && gItems->HidesAllRows())
        return gItems->setFocus();
    const QString quantity = txtQuantityToAdd->text();
    SelectedItemQuantity = IsNumeric(quantity) ? CLng(quantity) : 1;
    if (!IsNumeric(txtItemPrice->text()))
        txtItemPrice->setText(QStringLiteral("0"));

    if (!IsInStock(itemId, SelectedItemQuantity)) {
        ScanMsgBox(
            tr("This item does not have enough items in stock. To add this item first increase the total number in "
               "stock."),
            Icon::Critical);
        txtQuantityToAdd->FocusAll();
        return;
    }
    SelectedItemPrice = CCur(txtItemPrice->text());
    SelectedItemID = qint32(itemId);
    accept();
}
