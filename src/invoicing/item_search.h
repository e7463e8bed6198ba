#pragma once

#include "sql/sql.h"

/// What the search for an item goes by: texts that are part of its name, description or number ("" for any), and a
/// sub-category or a whole category (0 for all).
struct ItemSearch {
    QString name;
    QString description;
    QString number;
    qint64 subCategoryId = 0;
    qint64 categoryId = 0;
};

/// The statement that finds the items: id, number, name, description and stock on hand.
Sql ItemSearchStatement(const ItemSearch& search);
