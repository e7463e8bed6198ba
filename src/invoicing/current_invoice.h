#pragma once

#include <QtGlobal>

/// The invoice and the customer on the invoice page; -1 for none.
extern qint32 gCurrentInvoiceId;
extern qint32 gCurrentCustomerId;
