#pragma once

#include "controls/form.h"
#include "controls/text_box.h"

#include <QCheckBox>

/// How the printed invoice looks. Takes effect on the next invoice that is printed.
class frmConfigInvoice : public Form {
    Q_OBJECT
public:
    explicit frmConfigInvoice(QWidget* parent);

    CONTROL(QCheckBox, chkHideOurPrice);
    CONTROL(QCheckBox, chkHideTaxOnInvoice);
    CONTROL(TextBox, txtFontSize);
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdCancel);

private:
    void Save();
};
