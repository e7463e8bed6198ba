#include "inventory/bar_codes.h"

#include "base/retail_code.h"
#include "db/connection.h"

namespace {

std::optional<qint32> FirstItem(const QString& code)
{
    const Recordset item = gConnection->Execute(Sql("SELECT id FROM item WHERE barcode = '{code}'").Raw("code", code));
    if (item.Eof())
        return std::nullopt;
    return qint32(item.Long(0));
}

} // namespace

std::optional<qint32> FindItemByBarCode(const QString& code)
{
    const std::optional<qint32> item = FirstItem(code);
    const QString twin = TwinOfRetailCode(code);
    return item || twin.isEmpty() ? item : FirstItem(twin);
}
