#pragma once

#include "records/name_form.h"

/// Names a new price list, which gets a price of 0 for every item, or renames one.
class frmAddPriceList : public NameForm {
    Q_OBJECT
public:
    /// The price list to edit, NewRow for a new one. 16 bits wide: set it through ToInteger16.
    static int gEditPriceListId;
    static const KeyTable& Table();

    explicit frmAddPriceList(QWidget* parent);

protected:
    void Add(const QString& name) override;
};
