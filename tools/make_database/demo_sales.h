#pragma once

#include "demo_stock.h"

/// Adds the customers, and the invoices of the year that ends with `today`. The stock is that after these sales.
void SellForAYear(DataFile& file, Dice& dice, const std::vector<StockedItem>& items, const QDate& today);
