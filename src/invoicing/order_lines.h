#pragma once

#include "base/currency.h"

#include <QString>

#include <optional>

/// The lines of invoices and the stock that they hold. Stock moves together with the line, not when the invoice is
/// completed. All of these throw RuntimeError when a statement fails; what was written before it stays.

/// Takes `quantity` units of the item out of stock.
void TakeFromStock(qint64 itemId, qint64 quantity);

/// Gives the line its new quantity and unit price, and the stock the difference. Stock may fall below zero.
void ChangeOrderLine(qint64 lineId, qint32 oldQuantity, qint32 newQuantity, Currency unitPrice);

/// Gives `quantity` units back to the line's item, if that still exists, and deletes the line.
void DeleteOrderLine(qint64 lineId, qint32 quantity);

/// An item and how many of it are to go on the invoice.
struct ScannedItem {
    qint32 itemId = 0;
    qint32 quantity = 0;
};
/// What a text from the bar code box names: an item by its code, or several of it by a number of at most four digits
/// and a star before the code ("5*4006381333931"). A bar code that reads so itself comes first. "" names nothing. As
/// for FindItemByBarCode, a quote makes the statement fail.
std::optional<ScannedItem> FindScannedItem(const QString& text);

/// The item's price in the list, rounded to the digits of currency text; 0 when the list has no price for it.
Currency ListPrice(qint32 itemId, qint64 priceListId);
