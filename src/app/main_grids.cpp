#include "app/main_grids.h"

void MainGrids::SetUpColumns() const
{
    for (RecordList* list : {gInvoices, gcust, gInventory, gNewInvoice, gItemGroups, gVendors})
        list->SetUpColumns();
}

void MainGrids::Stretch() const
{
    for (RecordList* list : {gInvoices, gcust, gInventory, gNewInvoice, gVendors, gItemGroups})
        list->Stretch();
}

void MainGrids::SaveWidths() const
{
    for (const RecordList* list : {gcust, gInvoices, gInventory, gNewInvoice, gVendors, gItemGroups})
        list->SaveWidths();
}

void MainGrids::RestoreWidths() const
{
    for (RecordList* list : {gcust, gInvoices, gInventory, gNewInvoice, gVendors, gItemGroups})
        list->RestoreWidths();
}
