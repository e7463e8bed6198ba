#pragma once

#include "controls/flex_grid.h"
#include "db/recordset.h"

#include <optional>

/// How the customer finders list a match: name, address, post code and phone, from a statement that selects `id`,
/// `firstname`, `lastname`, `address1`, `address2`, `postcode` and `phone`. Null shows as "". Returns the id.
std::optional<qint64> AddMatchCells(const Recordset& customer, GridFill& fill);
