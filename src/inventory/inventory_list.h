#pragma once

#include "controls/combo_box.h"
#include "records/list_panel.h"

#include <QLabel>
#include <QPushButton>

#include <optional>
#include <unordered_set>

/// The inventory view: every item with its price in one chosen price list, its tax rate and its stock. The door to the
/// item record.
class InventoryList : public ListPanel {
    Q_OBJECT
public:
    explicit InventoryList(QWidget* parent = nullptr);

    CONTROL(QLabel, lblInvoicePriceList);
    CONTROL(ComboBox, cboInvoicePriceList);
    CONTROL(QLabel, lblInventoryTotal);
    CONTROL(RecordList, gInventory);
    CONTROL(QPushButton, cmdAddInventory);
    CONTROL(QPushButton, cmdEditInventory);
    CONTROL(QPushButton, cmdDeleteInventory);

    /// Reloads the list under the chosen price list's name. Selects the row whose item is `selectId`, else row number
    /// `row`, pulled back to the last row. Throws RuntimeError when a statement fails or, with items to show, when no
    /// price list is chosen.
    void RefreshInventoryList(int row, qint64 selectId);

    /// Opens the item record for a new item, then reloads the list with that item selected.
    void AddItem();

    /// Reads the price lists anew and selects none.
    void FillInvoicePriceLists();
    /// Selects the first of them, which loads the list where it shows. A failure is dropped: without price lists it
    /// stays empty.
    void ShowFirstPriceList();
    /// Reads the price lists anew and selects the first by name, which reloads the list where it shows. For when price
    /// lists may have changed.
    void RefillInvoicePriceLists();

private:
    void LoadIfSeen();
    void ShowTotal();
    void EditItem();
    void DeleteItem();
    void ShowItemRecord(qint32 itemId);

    std::optional<std::unordered_set<qint64>> m_toReorder; ///< while the list loads
};
