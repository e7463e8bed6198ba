#include "invoicing/current_invoice.h"

qint32 gCurrentInvoiceId = -1;
qint32 gCurrentCustomerId = -1;
