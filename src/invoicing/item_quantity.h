#pragma once

#include "base/currency.h"
#include "controls/form.h"
#include "controls/number_box.h"
#include "controls/text_box.h"

#include <QPushButton>

/// Asks for a line's new quantity and price. OK hands them over when the quantity is a number and not
/// negative; a price that is no number then ends the program. Everything else hands back what came in.
class frmItemQuantity : public Form {
    Q_OBJECT
public:
    /// The quantity and unit price of the order line being edited, in and out of the form.
    static qint32 EditLineQuantity;
    static Currency EditLinePrice;

    frmItemQuantity(const QString& quantity, const QString& price, QWidget* parent);

    CONTROL(NumberBox, txtQuantityToAdd);
    CONTROL(NumberBox, txtItemPrice);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void TakeOver();
};
