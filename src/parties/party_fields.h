#pragma once

#include "controls/text_box.h"
#include "db/add_row.h"
#include "parties/party_texts.h"
#include "sql/sql.h"

#include <QList>

/// What the records of customers and vendors and the invoice page share: each text box edits one column.

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

/// The twelve text boxes of a customer; the discount, a number, is not among them.
template <typename Screen>
PartyFields CustomerFields(const Screen& screen)
{
    const PartyFields names{{"FirstName", "first", screen.txtFirstname}, {"LastName", "last", screen.txtLastname}};
    const PartyFields further{{"BusinessName", "business", screen.txtBusinessName}, {"Fax", "fax", screen.txtFax}};
    return names + AddressFields(screen) + further;
}

/// Shows the columns in their boxes, long texts from their beginning; a column that is not among `texts` shows as "".
void ShowTexts(const PartyTexts& texts, const PartyFields& fields);
/// What the boxes hold.
PartyTexts TextsOf(const PartyFields& fields);
/// Fills the markers of the boxes' texts.
Sql& FillFields(Sql& update, const PartyFields& fields);
/// Sets the fields of a new row, in the order of the list.
void SetFields(AddRow& row, const PartyFields& fields);
