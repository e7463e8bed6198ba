#include "inventory/receive_stock.h"

#include "base/numbers.h"
#include "controls/focus.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "records/lists.h"

namespace {

constexpr int ScrollBarTwips = 400;

enum Column { Number, Name, InStock };

/// While the focus is in `box`, Enter runs `button`.
void MakeDefaultWhileIn(TextBox* box, QPushButton* button)
{
    OnFocusGained(box, [button] { button->setDefault(true); });
    OnFocusLeft(box, [button] { button->setDefault(false); });
}

} // namespace

frmReceiveStock::frmReceiveStock(QWidget* parent)
    : Form("frmReceiveStock", tr("Receive Stock"), parent)
{
    cmdAddBarCodeItem->setText(tr("Search"));
    cmdUpdateStockLevel->setText(tr("Update Stock Level"));
    cmdCancel->setText(tr("&Close"));
    gInventory->setAccessibleName(tr("Inventory"));

    setLayout(column({
        instructions(tr("Instructions - to receive stock select the item, enter the quantity received and press Update "
                        "Stock Level. When you have finished press Close.")),
        fields({{tr("Bar Code:"), row({txtBarcode, cmdAddBarCodeItem})}}),
        gInventory,
        fields({{tr("Quantity received:"), row({txtAddQuantity, cmdUpdateStockLevel, stretch()})}}),
        row({stretch(), cmdCancel}),
    }));
    SetCancelButton(cmdCancel);
    MakeDefaultWhileIn(txtBarcode, cmdAddBarCodeItem);
    MakeDefaultWhileIn(txtAddQuantity, cmdUpdateStockLevel);
    resize(640, 520);

    txtAddQuantity->setText(QStringLiteral("0"));
    SetUpColumns(gInventory,
        {{"Number", 1600, CellAlign::LeftCenter}, {"Name", 3200, CellAlign::CenterTop},
            {"In Stock", 1600, CellAlign::CenterTop}},
        Name);
    gInventory->SetColAlignment(Number, CellAlign::LeftCenter);
    gInventory->SetColAlignment(Name, CellAlign::LeftCenter);
    gInventory->SetColAlignment(InStock, CellAlign::RightCenter);
    RefreshInventoryList(1, 0);

    On(gInventory, &FlexGrid::Resized, this, [this] { StretchColumn(gInventory, Name, ScrollBarTwips); });
    On(cmdAddBarCodeItem, &QPushButton::clicked, this, &frmReceiveStock::FindByBarcode);
    On(cmdUpdateStockLevel, &QPushButton::clicked, this, &frmReceiveStock::UpdateStockLevel);
}

void frmReceiveStock::RefreshInventoryList(int row, qint64 selectId)
{
    Hourglass hourglass;
    gConnection->Execute("SELECT count(*) FROM item").Close();

    LoadList(gInventory,
        Ordered(QStringLiteral("SELECT id, [number], name, noinstock FROM item "), gInventory,
            QStringLiteral("ORDER BY item.name")),
        row, selectId, [](const Recordset& item, GridFill& fill) {
            fill.Add(item.Text(1));
            fill.Add(item.Text(2));
            fill.Add(item.Text(3));
            return item.Long(0);
        });
    if (!gInventory->RowIsVisible(gInventory->Row()))
        gInventory->SetTopRow(gInventory->Row());
}

void frmReceiveStock::FindByBarcode()
{
    const Recordset item =
        gConnection->Execute(Sql("SELECT id FROM item WHERE barcode = '{barcode}'").Raw("barcode", txtBarcode->text()));
    if (item.Eof()) {
        MsgBox(tr("Item not found."), Icon::Critical);
        txtBarcode->FocusAll();
        return;
    }
    RefreshInventoryList(1, item["id"].ToLong());
    txtAddQuantity->FocusAll();
}

void frmReceiveStock::UpdateStockLevel()
{
    const QString quantity = txtAddQuantity->text();
    if (!IsNumeric(quantity)) {
        MsgBox(tr("No valid number has been entered to update. Please enter a valid number and try again."),
            Icon::Critical);
        txtAddQuantity->setFocus();
        return;
    }
    const qint64 itemId = gInventory->CurrentRowData();
    if (itemId == 0)
        return;

    gConnection->Execute(Sql("UPDATE item SET noinstock = noinstock + {quantity} WHERE id = {id}")
                             .Raw("quantity", quantity)
                             .Number("id", itemId));
    RefreshInventoryList(gInventory->Row(), 0);
    txtAddQuantity->setText(QStringLiteral("0"));
    txtBarcode->FocusAll();
}
