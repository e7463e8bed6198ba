#pragma once

#include "base/currency.h"
#include "controls/flex_grid.h"
#include "controls/form.h"

#include <QPushButton>

#include <vector>

/// What frmAddGroupItems hands back: the items of the chosen group that have a price in the chosen list.
struct GroupItem {
    qint32 id;
    qint32 quantity;
    Currency price;
};
extern std::vector<GroupItem> GroupItems;
extern qint32 GroupItemCount;

/// Chooses an item group to put on the invoice, at the prices of one list. Cancel leaves GroupItems as it is.
class frmAddGroupItems : public Form {
    Q_OBJECT
public:
    frmAddGroupItems(qint64 priceListId, QWidget* parent);

    CONTROL(FlexGrid, gItemGroups);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void TakeItems();

    qint64 m_priceListId;
};
