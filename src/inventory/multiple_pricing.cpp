#include "inventory/multiple_pricing.h"

#include "config/new_row.h"
#include "db/connection.h"
#include "inventory/add_price_list.h"
#include "inventory/price_fan_out.h"
#include "platform/hourglass.h"
#include "platform/layout.h"
#include "platform/message_box.h"

namespace {

// The default price list is this row, whatever its name.
constexpr qint64 DefaultPriceList = 1;

} // namespace

frmMultiplePricing::frmMultiplePricing(QWidget* parent)
    : Form("frmMultiplePricing", tr("Configure Multiple Item Pricing"), parent)
{
    cmdAdd->setText(tr("&Add"));
    cmdEdit->setText(tr("&Edit"));
    cmdRemove->setText(tr("&Remove"));
    cmdCancel->setText(tr("&Close"));
    auto* listLabel = new QLabel(tr("Price Lists:"));
    SetLabelOf(listLabel, lstItems);

    setLayout(column({
        instructions(tr("Instructions - configure the available Pricing Lists. Each item can multiple pricing.")),
        listLabel,
        row({lstItems, column({cmdAdd, cmdEdit, cmdRemove, stretch()})}),
        row({stretch(), cmdCancel}),
    }));
    SetCancelButton(cmdCancel);
    // Enter in the list does what a double click does.
    cmdEdit->setDefault(true);

    Setup();

    On(cmdAdd, &QPushButton::clicked, [this] { AddList(); });
    On(cmdEdit, &QPushButton::clicked, [this] { EditList(); });
    On(lstItems, &KeyList::itemDoubleClicked, [this] { EditList(); });
    On(cmdRemove, &QPushButton::clicked, [this] { RemoveList(); });
}

void frmMultiplePricing::Setup()
{
    lstItems->clear();
    for (Recordset rs = gConnection->Execute("SELECT id, name FROM [PriceList] ORDER BY name"); !rs.Eof();
         rs.MoveNext()) {
        const qint64 id = rs["id"].ToLong();
        const QString name = NullToText(rs["name"]);
        lstItems->AddEntry(id == DefaultPriceList ? tr("%1 (Default)").arg(name) : name, id);
    }
    lstItems->SelectFirst();
}

void frmMultiplePricing::AddList()
{
    ShowPriceListDetails(NewRow);
}

void frmMultiplePricing::EditList()
{
    if (!lstItems->HasSelection()) {
        MsgBox(
            tr("No Price List has been selected to edit. Please select a Price List and try again."), Icon::Critical);
        return;
    }
    ShowPriceListDetails(ToInteger16(lstItems->SelectedId()));
}

void frmMultiplePricing::ShowPriceListDetails(int priceListId)
{
    gEditPriceListId = priceListId;
    frmAddPriceList(this).ShowModal();
    Setup();
}

void frmMultiplePricing::RemoveList()
{
    if (!lstItems->HasSelection()) {
        MsgBox(tr("Please select a Price List to remove."), Icon::Critical);
        return;
    }
    const qint64 priceListId = lstItems->SelectedId();
    if (priceListId == DefaultPriceList) {
        MsgBox(tr("This is the default Price List and so cannot be deleted. However it can be renamed, to rename press "
                  "the Edit button."),
            Icon::Critical);
        return;
    }
    if (MsgBox(tr("All pricing for this Price List will be lost. Are you sure you want to delete this Price List?"),
            Icon::Question, Buttons::YesNoCancel)
        != Answer::Yes)
        return;
    Hourglass hourglass;
    DeletePriceList(priceListId);
    Setup();
}
