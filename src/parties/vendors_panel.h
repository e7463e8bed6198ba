#pragma once

#include "records/list_panel.h"

#include <QPushButton>

/// The vendor list of the main window. The row that stands for no vendor is left out.
class VendorsPanel : public ListPanel {
    Q_OBJECT
public:
    explicit VendorsPanel(QWidget* parent = nullptr);

    /// Refills the list and selects the row of `selectId`, else row number `row`. Throws RuntimeError when a statement
    /// fails.
    void RefreshVendorList(int row, qint64 selectId);

    /// Shows the vendor record for a new vendor and reloads the list.
    void AddVendor();

    CONTROL(RecordList, gVendors);
    CONTROL(QPushButton, cmdVendorEdit);
    CONTROL(QPushButton, cmdVendorNew);
    CONTROL(QPushButton, cmdVendorDelete);

private:
    void EditSelected();
    void ShowVendorRecord(qint32 vendorId);
    void DeleteSelected();
};
