#pragma once

#include "paper/report_design.h"

/// The design `drepPickingList` with the lines of an invoice. Items without a location or warehouse are not on it.
/// Throws RuntimeError when a statement fails.
Report PreparePickingList(qint32 invoiceId);
