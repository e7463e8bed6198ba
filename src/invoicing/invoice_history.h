#pragma once

#include "controls/combo_box.h"
#include "records/list_panel.h"

#include <QPushButton>

/// Deletes the invoice and its lines. Throws RuntimeError when a statement fails.
void DoDelete(qint64 invoiceId);

/// The list of all invoices that have a customer. It is what shows when an invoice has ended.
class InvoiceHistory : public ListPanel {
    Q_OBJECT
public:
    explicit InvoiceHistory(QWidget* parent);

    /// The entries of the filter, with none selected.
    void FillInvoiceFilter();
    /// Selects the filter's first entry and fills the list. A failure is dropped.
    void ShowAllInvoices();

    /// Refills the list. The invoice `selectId` is selected, else row `selectRow` or the last one.
    void RefreshInvoiceList(int selectRow, qint64 selectId);

    CONTROL(ComboBox, cboInvoiceFilter);
    CONTROL(RecordList, gInvoices);
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
