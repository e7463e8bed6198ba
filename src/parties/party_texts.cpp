#include "parties/party_texts.h"

PartyTexts ReadTexts(const Recordset& row)
{
    PartyTexts texts;
    for (int column = 0; column < row.FieldCount(); ++column)
        texts.emplace(row.FieldName(column), NullToText(row[column]));
    return texts;
}

QString TextOf(const PartyTexts& texts, const char* column)
{
    const auto text = texts.find(QLatin1String(column));
    return text == texts.end() ? QString() : text->second;
}
