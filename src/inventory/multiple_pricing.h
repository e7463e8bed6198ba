#pragma once

#include "config/key_list.h"
#include "platform/form.h"

#include <QPushButton>

/// Keeps the price lists: adds, renames and removes them. Whoever shows it reads the lists anew afterwards.
class frmMultiplePricing : public Form {
public:
    explicit frmMultiplePricing(QWidget* parent);

    CONTROL(KeyList, lstItems);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(QPushButton, cmdEdit);
    CONTROL(QPushButton, cmdRemove);
    CONTROL(QPushButton, cmdCancel);

private:
    void Setup();
    void AddList();
    void EditList();
    void RemoveList();
    void ShowPriceListDetails(int priceListId);
};
