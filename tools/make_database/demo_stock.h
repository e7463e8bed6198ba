#pragma once

#include "data_file.h"
#include "dice.h"

#include <array>
#include <vector>

/// What a line of an invoice copies from an item, and its price in each price list.
struct StockedItem {
    qint64 id;
    QString number, name, description;
    QString taxRateName;
    double taxRatePercentage;
    std::array<Currency, 3> prices; ///< by price list: sale, trade, staff
};

/// Adds tax rates, price lists, warehouses, categories, vendors, the items of the catalogue with their custom fields,
/// and the item groups. Stock and levels are such that the reorder reports have rows.
std::vector<StockedItem> StockTheShop(DataFile& file, Dice& dice);
