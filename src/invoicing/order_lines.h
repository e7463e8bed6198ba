#pragma once

#include "base/currency.h"

#include <QString>

#include <optional>

/// The lines of the open invoice and the stock that they hold. Stock moves together with the line, not when the invoice
/// is completed. All of these throw RuntimeError when a statement fails; what was written before it stays.

/// Takes `quantity` units of the item out of stock and puts them on the open invoice, merging with a line of the same
/// item, whose price then holds for all of it. `unitPrice` is before tax and before `discountPercent`; a new line of a
/// warranty invoice is stored at 0.
/// Returns false, having written nothing, when fewer than `quantity` units are in stock. An item that is gone, or whose
/// tax rate is, adds nothing and returns true.
bool AddNewOrderItemToDB(qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice);

/// Gives the line its new quantity and unit price, and the stock the difference. Stock may fall below zero.
void ChangeOrderLine(qint64 lineId, qint32 oldQuantity, qint32 newQuantity, Currency unitPrice);

/// Gives `quantity` units back to the line's item, if that still exists, and deletes the line.
void DeleteOrderLine(qint64 lineId, qint32 quantity);

/// The first item with this bar code. The code goes into the statement as it was scanned, so one with a quote makes the
/// statement fail.
std::optional<qint32> FindItemByBarCode(const QString& code);

/// The item's price in the list, rounded to the digits of currency text; 0 when the list has no price for it.
Currency ListPrice(qint32 itemId, qint64 priceListId);
