#pragma once

#include "db/recordset.h"

#include <map>

/// Columns are named without regard to case, as in statements.
struct ColumnOrder {
    bool operator()(const QString& left, const QString& right) const
    {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    }
};
/// The texts of a customer's or vendor's row, by column.
using PartyTexts = std::map<QString, QString, ColumnOrder>;

/// The texts of all columns of the row; Null reads as "".
PartyTexts ReadTexts(const Recordset& row);
/// "" for a column that is not among them.
QString TextOf(const PartyTexts& texts, const char* column);
