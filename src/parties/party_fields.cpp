#include "parties/party_fields.h"

void ShowFields(const Recordset& row, const PartyFields& fields)
{
    for (const PartyField& field : fields) {
        field.box->setText(NullToText(row[field.column]));
        field.box->home(false); // a long text shows its beginning
    }
}

Sql& FillFields(Sql& update, const PartyFields& fields)
{
    for (const PartyField& field : fields)
        update.Text(field.marker, field.box->text());
    return update;
}

void SetFields(AddRow& row, const PartyFields& fields)
{
    for (const PartyField& field : fields)
        row.Set(field.column, field.box->text());
}
