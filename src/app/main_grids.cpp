#include "app/main_grids.h"

#include "app/main_window.h"

namespace {

constexpr CellAlign CenterTop = CellAlign::CenterTop;
constexpr CellAlign LeftCenter = CellAlign::LeftCenter;
constexpr CellAlign RightCenter = CellAlign::RightCenter;

} // namespace

QList<MainGrid> MainGrids(const MainWindow& window)
{
    return {
        {window.picArrivals->gInvoices,
            {{"Number", 800, CenterTop}, {"Business Name", 800, CenterTop}, {"Name", 2400, CenterTop},
                {"Invoice Date", 1440, CenterTop}},
            1, 1, 400},
        {window.picCustomers->gcust,
            {{"Name", 2400, CenterTop}, {"Address", 1600, CenterTop}, {"Zip/Postcode", 1100, CenterTop},
                {"Phone", 1600, CenterTop}},
            1, 1, 400},
        // Spare width goes to the number at load, and to the name from the first resize on.
        {window.picInventory->gInventory,
            {{"Number", 800, LeftCenter}, {"Name", 2400, CenterTop}, {"Sale Price", 1600, CenterTop},
                {"Tax Rate", 1100, RightCenter}, {"In Stock", 1600, CenterTop}},
            0, 1, 400},
        {window.picNewInvoice->gNewInvoice,
            {{"Qty", 500, CenterTop}, {"Number", 1200, LeftCenter}, {"Name", 1600, LeftCenter},
                {"Sale Price", 1200, RightCenter}, {"Tax Rate", 1600, LeftCenter}, {"Sub-Total", 1100, RightCenter}},
            2, 2, 350},
        {window.picItemGroups->gItemGroups, {{"Name", 800, CenterTop}}, 0, 0, 400},
        {window.picVendors->gVendors,
            {{"Business Name", 800, CenterTop}, {"Contact Name", 1600, CenterTop}, {"Phone", 1600, CenterTop}}, 0, 0,
            400},
    };
}

void SetUpMainGrids(const MainWindow& window)
{
    for (const MainGrid& main : MainGrids(window))
        SetUpColumns(main.grid, main.columns, main.stretchAtLoad);
    FlexGrid* gInvoices = window.picArrivals->gInvoices;
    for (int col = 0; col < gInvoices->Cols(); ++col)
        gInvoices->SetColAlignment(col, LeftCenter);
}

void StretchMainGrids(const MainWindow& window)
{
    for (const MainGrid& main : MainGrids(window))
        StretchColumn(main.grid, main.stretchAtResize, main.marginAtResize);
}

namespace {

QList<FlexGrid*> GridsInStoreOrder(const MainWindow& window)
{
    return {window.picCustomers->gcust, window.picArrivals->gInvoices, window.picInventory->gInventory,
        window.picNewInvoice->gNewInvoice, window.picVendors->gVendors, window.picItemGroups->gItemGroups};
}

} // namespace

void SaveMainGridWidths(const MainWindow& window)
{
    for (const FlexGrid* grid : GridsInStoreOrder(window))
        SaveGridColumnWidths(grid);
}

void RestoreMainGridWidths(const MainWindow& window)
{
    for (FlexGrid* grid : GridsInStoreOrder(window))
        RestoreGridColumnWidths(grid);
}
