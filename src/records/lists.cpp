#include "records/lists.h"

void FillCombo(ComboBox* combo, const Sql& sql)
{
    QList<std::pair<QString, qint64>> entries;
    for (Recordset rs = gConnection->Execute(sql); !rs.Eof(); rs.MoveNext()) {
        const std::string_view text = rs.Text(1);
        entries.emplaceBack(QString::fromUtf8(text.data(), qsizetype(text.size())), rs.Long(0));
    }
    combo->AddItems(entries);
}

void FillPriceLists(ComboBox* combo)
{
    combo->Clear();
    FillCombo(combo, Sql("SELECT id, name FROM PriceList ORDER BY name"));
}
