#pragma once

#include "paper/report_design.h"
#include "sql/value.h"

#include <QString>

/// The value as a line of the address block: with a line break behind it, but "" for an empty text. Null is an empty
/// line.
QString GetS(const Value& value);

/// The invoice as it is printed now: the design with its rows, the business details, the settings of the invoice style
/// and of the second tax. Each preparation starts from the design. Throws RuntimeError when a statement fails; a logo
/// that does not load is left out.
Report PrepareInvoice(qint32 invoiceId, bool isWarranty);
