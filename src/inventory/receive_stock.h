#pragma once

#include "controls/form.h"
#include "controls/number_box.h"
#include "controls/text_box.h"
#include "db/file_changes.h"
#include "records/record_list.h"

#include <QPushButton>

/// Books goods in: pick an item or scan its bar code, enter the quantity, and it is added to the item's stock. A
/// scanner that ends its text with Enter drives the form alone, as Enter searches in one box and books in from the
/// other.
class frmReceiveStock : public Form {
    Q_OBJECT
public:
    explicit frmReceiveStock(QWidget* parent);

    CONTROL(TextBox, txtBarcode);
    CONTROL(QPushButton, cmdAddBarCodeItem);
    CONTROL(RecordList, gInventory);
    CONTROL(NumberBox, txtAddQuantity);
    CONTROL(QPushButton, cmdUpdateStockLevel);
    CONTROL(QPushButton, cmdCancel);

private:
    /// Selects the row of `selectId`, else row number `row`; reads the items anew when they may have changed.
    void RefreshInventoryList(int row, qint64 selectId);
    void LoadItems(int row, qint64 selectId);
    void DropQuantityOfOther(qint64 itemId);
    void AddToStock(qint64 itemId, const QString& quantity);
    static void TellUnknownCode();
    void FindByBarcode();
    void UpdateStockLevel();

    FileChanges m_file; ///< since the list shows it
};
