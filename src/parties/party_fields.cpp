#include "parties/party_fields.h"

void ShowTexts(const PartyTexts& texts, const PartyFields& fields)
{
    for (const PartyField& field : fields) {
        field.box->ShowWhole(TextOf(texts, field.column));
    }
}

PartyTexts TextsOf(const PartyFields& fields)
{
    PartyTexts texts;
    for (const PartyField& field : fields)
        texts.emplace(QLatin1String(field.column), field.box->text());
    return texts;
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
