#pragma once

#include "controls/combo_box.h"
#include "controls/flex_grid.h"
#include "controls/form.h"

#include <QPushButton>

/// Deletes the invoice and its lines. Throws RuntimeError when a statement fails.
void DoDelete(qint64 invoiceId);

/// The list of all invoices that have a customer. It is what shows when an invoice has ended.
///
/// The main window fills cboInvoiceFilter and sets up the columns of gInvoices when it loads.
class InvoiceHistory : public Panel {
    Q_OBJECT
public:
    explicit InvoiceHistory(QWidget* parent);

    /// Refills the list. The invoice `selectId` is selected, else row `selectRow` or the last one.
    void RefreshInvoiceList(int selectRow, qint64 selectId);

    CONTROL(ComboBox, cboInvoiceFilter);
    CONTROL(FlexGrid, gInvoices);
    CONTROL(QPushButton, cmdViewDetails);
    CONTROL(QPushButton, cmdAddReservation);
    CONTROL(QPushButton, cmdSimpleCalCancel);

signals:
    /// The invoice is to be opened on the invoice page.
    void OpenInvoice(qint32 invoiceId);
    /// The invoice page is to be shown as it stands: with the open invoice, or a new one.
    void NewInvoice();

private:
    /// The id of the current row; 0, having said so, when no invoice is selected.
    qint64 SelectedInvoice() const;
    void ViewDetails();
    void DeleteInvoice();
};
