#pragma once

#include "base/currency.h"

#include <optional>

/// The open invoice's line of the item, 0 for none.
qint64 LineOfItem(qint32 itemId);

/// Takes `quantity` units of the item out of stock and puts them on the open invoice, merging with a line of the same
/// item, whose price then holds for all of it. `unitPrice` is before tax and before `discountPercent`; a new line of a
/// warranty invoice is stored at 0.
/// Returns the line; nothing, having written nothing, when fewer than `quantity` units are in stock; and 0, having
/// written nothing either, for an item that is gone or whose tax rate is.
std::optional<qint64> AddNewOrderItemToDB(
    qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice);
