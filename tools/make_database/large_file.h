#pragma once

#include "data_file.h"
#include "dice.h"

struct LargeFileSize {
    int items = 0;
    int customers = 0;
    int invoices = 0;
};

/// Fills an empty file for measurements: items in three price lists, customers, and invoices of five lines spread over
/// the year that ends with `today`.
void FillLargeFile(DataFile& file, Dice& dice, const LargeFileSize& size, const QDate& today);
