#include "inventory/multiple_pricing.h"

#include "controls/hourglass.h"
#include "inventory/add_price_list.h"
#include "inventory/price_fan_out.h"

frmMultiplePricing::frmMultiplePricing(QWidget* parent)
    : KeyListForm("frmMultiplePricing",
        {tr("Configure Multiple Item Pricing"),
            tr("Instructions - configure the available Pricing Lists. Each item can multiple pricing."),
            tr("Price Lists:")},
        frmAddPriceList::Table(), parent)
{
}

void frmMultiplePricing::ShowDetails(qint64 id)
{
    frmAddPriceList::gEditPriceListId = ToInteger16(id);
    frmAddPriceList(this).ShowModal();
}

void frmMultiplePricing::DeleteRow(qint64 id)
{
    const Hourglass hourglass(tr("Deleting the prices..."));
    DeletePriceList(id);
}
