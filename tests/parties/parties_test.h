#pragma once

#include "db/new_row.h"
#include "parties/customer_record.h"
#include "support/form_test.h"

/// The first column of a list.
inline QStringList FirstColumn(const FlexGrid* grid)
{
    QStringList texts;
    for (const QStringList& row : GridRows(grid))
        texts.append(row.first());
    return texts;
}
