#pragma once

#include "records/record_list.h"

/// The six lists of the main window, which keep their widths between runs.
struct MainGrids {
    RecordList* gInvoices;
    RecordList* gcust;
    RecordList* gInventory;
    RecordList* gNewInvoice;
    RecordList* gItemGroups;
    RecordList* gVendors;

    /// Gives the columns their first widths.
    void SetUpColumns() const;
    /// Lets each list's column for spare width take up what the others leave.
    void Stretch() const;
    /// Stored when the window closes, restored as the last step of the start.
    void SaveWidths() const;
    void RestoreWidths() const;
};
