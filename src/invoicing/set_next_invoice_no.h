#pragma once

#include "controls/form.h"
#include "controls/text_box.h"

/// Sets the number that the next invoice takes. Invoices that have a number keep it.
class frmSetNextInvoiceNo : public Form {
    Q_OBJECT
public:
    explicit frmSetNextInvoiceNo(QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void ShowNextNumber();
    void Save();
};
