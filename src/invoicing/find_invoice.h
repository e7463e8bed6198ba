#pragma once

#include "controls/date_picker.h"
#include "controls/form.h"
#include "records/record_list.h"

#include <QLabel>
#include <QPushButton>

/// Finds invoices by their date and picks one of them to open. Its ids are 16 bits wide: picking an invoice with a
/// greater one is an overflow.
class frmFindInvoice : public Form {
    Q_OBJECT
public:
    /// What the form hands back. The caller resets both (-1, false) before it shows the form.
    static qint16 SelectedInvoiceID;
    static bool InvoiceSelected;

    explicit frmFindInvoice(QWidget* parent);

    CONTROL(DatePicker, dtFromDate);
    CONTROL(DatePicker, dtToDate);
    CONTROL(QPushButton, cmdOk);
    CONTROL(RecordList, gres);
    CONTROL(QLabel, lblTotalCustomers);
    CONTROL(QPushButton, cmdEditCustomer);
    CONTROL(QPushButton, cmdCancel);

private:
    void Search();
    void TakeInvoice();
};
