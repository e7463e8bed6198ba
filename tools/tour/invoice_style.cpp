#include "steps.h"

static const Look InvoiceStyle("invoice-style", "mnuConfigure", "mnuConfigInvoiceStyle");
