#pragma once

#include "paper/report_design.h"

/// The design `drepInvoice` as it is before the preparation of an invoice.
Report InvoiceDesign();
