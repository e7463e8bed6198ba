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

void SelectPriceList(ComboBox* combo, qint64 id)
{
    constexpr qint64 DefaultList = 1;
    for (const qint64 wanted : {id, DefaultList}) {
        SelectComboByData(combo, wanted);
        if (combo->ListIndex() >= 0 && combo->SelectedData() == wanted)
            return;
    }
    // The program never deletes the default list, but another one may have.
    if (combo->ListIndex() < 0 && combo->ListCount() > 0)
        combo->SetListIndex(0);
}
