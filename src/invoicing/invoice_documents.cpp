#include "invoicing/invoice_documents.h"

#include "controls/hourglass.h"
#include "invoicing/invoice_report.h"
#include "invoicing/picking_list.h"
#include "paper/preview_window.h"

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
