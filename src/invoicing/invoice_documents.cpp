#include "invoicing/invoice_documents.h"

#include "controls/hourglass.h"
#include "invoicing/invoice_report.h"
#include "invoicing/picking_list.h"
#include "paper/preview_window.h"

#include <QCoreApplication>

namespace {

/// What is said of the documents.
struct InvoiceDocuments {
    Q_DECLARE_TR_FUNCTIONS(InvoiceDocuments)
};

} // namespace

void ShowInvoiceDocument(qint32 invoiceId, bool isWarranty)
{
    const Hourglass hourglass(InvoiceDocuments::tr("Preparing the document..."));
    ShowPreview(PrepareInvoice(invoiceId, isWarranty));
}

void ShowPickingList(qint32 invoiceId)
{
    const Hourglass hourglass(InvoiceDocuments::tr("Preparing the document..."));
    ShowPreview(PreparePickingList(invoiceId));
}
