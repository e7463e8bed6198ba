#pragma once

#include "data_file.h"
#include "dice.h"

/// Fills an empty file with an invented hardware and household shop: its stock, its customers and the year of invoices
/// that ends with `today`.
void FillDemoShop(DataFile& file, Dice& dice, const QDate& today);
