#include "invoicing/invoice_documents.h"

#include "invoicing/invoice_report.h"
#include "invoicing/picking_list.h"
#include "platform/hourglass.h"
#include "platform/preview_window.h"

void ShowInvoiceDocument(qint32 invoiceId, bool isWarranty)
{
    Hourglass hourglass;
    ShowPreview(PrepareInvoice(invoiceId, isWarranty));
}

void ShowPickingList(qint32 invoiceId)
{
    Hourglass hourglass;
    ShowPreview(PreparePickingList(invoiceId));
}
