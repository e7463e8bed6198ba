#pragma once

#include "exchange/import_fields.h"

#include <functional>
#include <optional>

/// The records of a file: rows of texts, counted from 1.
struct ImportRows {
    int count;
    std::function<QString(int row, int col)> cell;
};

/// Told between batches how many of all records are written.
using ImportProgress = std::function<void(int done, int total)>;

struct ImportFailure {
    int record; ///< the row that was not written, from 1
    QString description;
};

/// Adds an item for each record, with a price in each price list, and each location, sub-category, vendor and tax rate
/// of a name that none has yet. A price that is no number is written as 0 to the list with the id 1. Stops at the first
/// failure; what was written before it stays. Commits in chunks of whole records.
std::optional<ImportFailure> ImportRecords(
    const ImportRows& rows, const QList<ImportField>& fields, const ImportProgress& progress);
