#pragma once

#include <QString>

#include <functional>

/// Told now and then while prices are added: how many of `total` items have one.
using FanOutProgress = std::function<void(int done, int total)>;

/// Adds a price list and, for every item, a price of 0 in it.
void AddPriceListForEveryItem(const QString& name, const FanOutProgress& progress);

/// Deletes the list and all its prices. Customers who have it keep its id.
void DeletePriceList(qint64 priceListId);
