#include "inventory/receive_stock.h"

#include "base/numbers.h"
#include "controls/focus.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/scan_sound.h"
#include "controls/scan_watch.h"
#include "controls/status_line.h"
#include "controls/window_place.h"
#include "db/batch.h"
#include "db/connection.h"
#include "inventory/bar_codes.h"

namespace {

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
    resize(GrownWithFont(640, 520));

    txtAddQuantity->setText(QStringLiteral("0"));
    gInventory->SetColumns({
        {"number", tr("Number"), 1600, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder},
        {"name", tr("Name"), 3200, CellAlign::CenterTop, CellAlign::LeftCenter, NoOrder, Spare::Always},
        {"noinstock", tr("In Stock"), 1600, CellAlign::CenterTop, CellAlign::RightCenter, NoOrder},
    });
    gInventory->StretchWithSize();
    gInventory->ShowFoundRowOnTop();
    gInventory->LetDownEnter({txtBarcode});
    gInventory->SetEmptyText(tr("There are no items to receive stock of."));
    RefreshInventoryList(1, 0);

    On(cmdAddBarCodeItem, &QPushButton::clicked, this, &frmReceiveStock::FindByBarcode);
    // A quote would end the program; where it was not meant for the bar code box, that would be out of place.
    const auto isKnown = [](const QString& code) { return !code.contains(u'\'') && FindItemByBarCode(code); };
    TakeScans({this, txtBarcode, cmdAddBarCodeItem, isKnown, [] { TellUnknownCode(); },
        [this](const QString& code) { DropQuantityOfOther(FindItemByBarCode(code).value_or(0)); }});
    KeepCodesOut({txtAddQuantity});
    On(gInventory, &RecordList::Opened, txtAddQuantity, &TextBox::FocusAll);
    On(cmdUpdateStockLevel, &QPushButton::clicked, this, &frmReceiveStock::UpdateStockLevel);
}

void frmReceiveStock::RefreshInventoryList(int row, qint64 selectId)
{
    if (m_file.Changed(*gConnection) || !gInventory->Filter().isEmpty())
        return LoadItems(row, selectId);
    gInventory->SelectRecord(row, selectId);
}

void frmReceiveStock::LoadItems(int row, qint64 selectId)
{
    const Hourglass hourglass(tr("Reading the items..."));
    gConnection->Execute("SELECT count(*) FROM item").Close();

    gInventory->Load(
        gInventory->Ordered(QStringLiteral("SELECT id, [number], name, noinstock FROM item "), "ORDER BY item.name"),
        row, selectId);
}

void frmReceiveStock::TellUnknownCode()
{
    PlayScanSound(ScanSound::NotFound);
    ScanMsgBox(tr("Item not found."), Icon::Critical);
}

void frmReceiveStock::FindByBarcode()
{
    const std::optional<qint32> itemId = FindItemByBarCode(txtBarcode->text());
    if (!itemId) {
        TellUnknownCode();
        txtBarcode->FocusAll();
        return;
    }
    PlayScanSound(ScanSound::Found);
    RefreshInventoryList(1, *itemId);
    txtAddQuantity->FocusAll();
}

/// What was typed for the item before, and not yet booked, is not a quantity of the one scanned now.
void frmReceiveStock::DropQuantityOfOther(qint64 itemId)
{
    const QString unset = QStringLiteral("0");
    const QString quantity = txtAddQuantity->text();
    const qint64 current = gInventory->CurrentRowData();
    if (quantity == unset || current == itemId)
        return;
    txtAddQuantity->setText(unset);
    if (current != 0 && !quantity.isEmpty())
        ShowStatus(tr("Nothing of %1 was received: Enter was not pressed after its quantity.")
                       .arg(gInventory->CellText(gInventory->Row(), "name")));
}

/// Where nobody else wrote, the item's row alone is read anew.
void frmReceiveStock::AddToStock(qint64 itemId, const QString& quantity)
{
    InBatch(*gConnection, [&] {
        FileChanges file = m_file;
        const bool isShown = !file.Changed(*gConnection);
        gConnection->Execute(Sql("UPDATE item SET noinstock = noinstock + {quantity} WHERE id = {id}")
                                 .Raw("quantity", quantity)
                                 .Number("id", itemId));
        if (!isShown)
            return;
        const Sql item = Sql("SELECT id, [number], name, noinstock FROM item WHERE id = {id}").Number("id", itemId);
        const bool isLoaded = gInventory->LoadRow(item, [](const Recordset& row, GridFill& fill) {
            enum { Id, Number, Name, NoInStock };
            for (int field : {Number, Name, NoInStock})
                fill.Add(row.Text(field));
        });
        if (isLoaded)
            m_file.Remember(*gConnection);
    });
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

    AddToStock(itemId, quantity);
    // By its id: a line that filters the list may hide the item once its stock has changed.
    RefreshInventoryList(gInventory->Row(), itemId);
    // An item whose stock another program left out keeps none.
    const QString stock = gInventory->CellText(gInventory->Row(), "noinstock");
    if (gInventory->CurrentRowData() == itemId && !stock.isEmpty())
        ShowStatus(
            tr("%1 x %2 received, now %3").arg(quantity, gInventory->CellText(gInventory->Row(), "name"), stock));
    txtAddQuantity->setText(QStringLiteral("0"));
    txtBarcode->FocusAll();
}
