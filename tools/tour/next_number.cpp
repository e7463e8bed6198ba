#include "steps.h"

static const Look NextNumber("set-next-invoice-number", "mnuReservations", "mnuInvoiceSetInvoiceNo");
