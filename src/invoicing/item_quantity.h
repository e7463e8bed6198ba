#pragma once

#include "base/currency.h"
#include "controls/form.h"
#include "controls/text_box.h"

#include <QPushButton>

/// The quantity and unit price of the order line being edited, in and out of frmItemQuantity.
extern qint32 EditLineQuantity;
extern Currency EditLinePrice;

/// Asks for a line's new quantity and price. OK puts them into the globals when the quantity is a number and not
/// negative; a price that is no number then ends the program. Everything else leaves the globals as they were.
class frmItemQuantity : public Form {
    Q_OBJECT
public:
    frmItemQuantity(const QString& quantity, const QString& price, QWidget* parent);

    CONTROL(TextBox, txtQuantityToAdd);
    CONTROL(TextBox, txtItemPrice);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void TakeOver();
};
