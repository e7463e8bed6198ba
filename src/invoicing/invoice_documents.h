#pragma once

#include <QtGlobal>

/// The printed forms of an invoice, shown in a preview window that does not block the main window.

/// `isWarranty` gives the document the title of a warranty invoice.
void ShowInvoiceDocument(qint32 invoiceId, bool isWarranty);
void ShowPickingList(qint32 invoiceId);
