#pragma once

#include "records/name_form.h"

/// The price list that the form edits, NewRow for a new one. 16 bits wide: set it through ToInteger16.
extern int gEditPriceListId;

/// The price lists as a key table.
const KeyTable& PriceLists();

/// Names a new price list, which gets a price of 0 for every item, or renames one.
class frmAddPriceList : public NameForm {
public:
    explicit frmAddPriceList(QWidget* parent);

protected:
    void Add(const QString& name) override;
};
