#pragma once

#include "base/currency.h"
#include "controls/form.h"
#include "records/record_list.h"

#include <QPushButton>

#include <vector>

/// An item of the chosen group that has a price in the chosen list.
struct GroupItem {
    qint32 id;
    qint32 quantity;
    Currency price;
};

/// Chooses an item group to put on the invoice, at the prices of one list. Cancel leaves GroupItems as it is.
class frmAddGroupItems : public Form {
    Q_OBJECT
public:
    /// What the form hands back.
    static std::vector<GroupItem> GroupItems;
    static qint32 GroupItemCount;

    frmAddGroupItems(qint64 priceListId, QWidget* parent);

    CONTROL(RecordList, gItemGroups);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void TakeItems();

    qint64 m_priceListId;
};
