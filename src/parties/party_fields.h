#pragma once

#include "controls/text_box.h"
#include "db/add_row.h"
#include "db/recordset.h"
#include "sql/sql.h"

#include <QList>

/// What the records of customers and vendors share: each text box edits one column.

struct PartyField {
    const char* column;
    const char* marker; ///< in the form's UPDATE
    TextBox* box;
};
using PartyFields = QList<PartyField>;

/// The columns that both records have alike, in the order in which they are written.
template <typename Record>
PartyFields AddressFields(const Record& record)
{
    return {
        {"Address1", "a1", record.txtAddress1},
        {"Address2", "a2", record.txtAddress2},
        {"City", "city", record.txtCity},
        {"State", "state", record.txtState},
        {"PostCode", "post", record.txtPostcode},
        {"Country", "country", record.txtCountry},
        {"Phone", "phone", record.txtPhone},
        {"Email", "email", record.txtEmail},
    };
}

/// Shows the row's columns in their boxes; Null shows as "".
void ShowFields(const Recordset& row, const PartyFields& fields);
/// Fills the markers of the boxes' texts.
Sql& FillFields(Sql& update, const PartyFields& fields);
/// Sets the fields of a new row, in the order of the list.
void SetFields(AddRow& row, const PartyFields& fields);
