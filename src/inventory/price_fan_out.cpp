#include "inventory/price_fan_out.h"

#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection.h"

#include <QList>

namespace {

constexpr int ItemsBetweenSigns = 2000;

qint64 AddPriceList(const QString& name)
{
    AddRow list(*gConnection, "[PriceList]");
    list.AddNew();
    list.Set("Name", name);
    list.Update();
    return list.Id();
}

QList<qint64> AllItems()
{
    QList<qint64> items;
    for (Recordset rs = gConnection->Execute("SELECT id FROM item;"); !rs.Eof(); rs.MoveNext())
        items.append(rs.Long(0));
    return items;
}

} // namespace

void AddPriceListForEveryItem(const QString& name, const FanOutProgress& progress)
{
    InBatch(*gConnection, [&] {
        const qint64 priceListId = AddPriceList(name);
        const QList<qint64> items = AllItems();

        AddRow price(*gConnection, "ItemPriceList");
        for (int done = 0; done < items.size(); ++done) {
            if (done % ItemsBetweenSigns == 0)
                progress(done, int(items.size()));
            price.AddNew();
            price.Set("Price", 0);
            price.Set("PriceListID", priceListId);
            price.Set("ItemID", items.at(done));
            price.Update();
        }
    });
}

void DeletePriceList(qint64 priceListId)
{
    InBatch(*gConnection, [&] {
        gConnection->Execute(Sql("DELETE FROM [ItemPriceList] WHERE pricelistid = {id}").Number("id", priceListId));
        gConnection->Execute(Sql("DELETE FROM [PriceList] WHERE id = {id}").Number("id", priceListId));
    });
}
