#pragma once

#include "base/dates.h"
#include "records/record_list.h"

#include <string>

/// Cells that the lists of invoices share, without a text object for each row, since a list may be long.

/// First and last name with a blank between them. The field is the first name, and the last name follows it.
struct FullNameCell {
    void operator()(const Recordset& row, int firstName, GridFill& fill)
    {
        const int lastName = firstName + 1;
        name.assign(row.Text(firstName)).append(1, ' ').append(row.Text(lastName));
        fill.Add(name);
    }

    std::string name;
};

/// A date in the user's short form, "" for Null.
struct ShortDateCell {
    void operator()(const Recordset& row, int date, GridFill& fill) { fill.Add(shortDate(row.StoredText(date))); }

    ShortDateWriter shortDate;
};
