#include "invoicing/order_lines.h"

#include "base/numbers.h"
#include "db/connection.h"
#include "inventory/bar_codes.h"

#include <QRegularExpression>

namespace {

void GiveBackToStock(qint64 itemId, qint64 quantity)
{
    gConnection->Execute(Sql("UPDATE item SET noinstock = noinstock + {quantity} WHERE id = {itemId}")
                             .Number("quantity", quantity)
                             .Number("itemId", itemId));
}

std::optional<qint64> ItemOfLine(qint64 lineId)
{
    const Recordset line =
        gConnection->Execute(Sql("SELECT itemid FROM invoiceline WHERE id = {lineId}").Number("lineId", lineId));
    if (line.Eof() || line.IsNull(0))
        return std::nullopt;
    return line.Long(0);
}

} // namespace

void TakeFromStock(qint64 itemId, qint64 quantity)
{
    gConnection->Execute(Sql("UPDATE item SET noinstock = noinstock - {quantity} WHERE id = {itemId}")
                             .Number("quantity", quantity)
                             .Number("itemId", itemId));
}

void ChangeOrderLine(qint64 lineId, qint32 oldQuantity, qint32 newQuantity, Currency unitPrice)
{
    gConnection->Execute(
        Sql("UPDATE invoiceline SET  quantity = {EditLineQuantity}, amount = '{EditLinePrice}' WHERE id = {lineId}")
            .Number("EditLineQuantity", newQuantity)
            .Text("EditLinePrice", CStr(unitPrice))
            .Number("lineId", lineId));

    const std::optional<qint64> itemId = ItemOfLine(lineId);
    const qint64 taken = qint64(newQuantity) - oldQuantity;
    if (itemId && taken > 0)
        TakeFromStock(*itemId, taken);
    if (itemId && taken < 0)
        GiveBackToStock(*itemId, -taken);
}

void DeleteOrderLine(qint64 lineId, qint32 quantity)
{
    if (const std::optional<qint64> itemId = ItemOfLine(lineId))
        GiveBackToStock(*itemId, quantity);
    gConnection->Execute(Sql("DELETE FROM invoiceline WHERE id = {lineId}").Number("lineId", lineId));
}

std::optional<ScannedItem> FindScannedItem(const QString& text)
{
    // An item without a bar code has an empty one.
    if (text.isEmpty())
        return std::nullopt;
    if (const std::optional<qint32> item = FindItemByBarCode(text))
        return ScannedItem{*item, 1};
    static const QRegularExpression several(QStringLiteral("^([0-9]{1,4})\\*(.+)$"));
    const QRegularExpressionMatch match = several.match(text);
    const int quantity = match.captured(1).toInt();
    if (quantity == 0)
        return std::nullopt;
    const std::optional<qint32> item = FindItemByBarCode(match.captured(2));
    return item ? std::optional(ScannedItem{*item, quantity}) : std::nullopt;
}

Currency ListPrice(qint32 itemId, qint64 priceListId)
{
    const Recordset price =
        gConnection->Execute(Sql("SELECT price FROM itempricelist WHERE itemid = {id} AND pricelistid = {priceListId}")
                                 .Number("id", itemId)
                                 .Number("priceListId", priceListId));
    return CCur(FormatCurrency(price.Eof() || price.IsNull(0) ? Currency() : price.Money(0)));
}
