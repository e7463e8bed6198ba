#include "invoicing/add_order_line.h"

#include "base/numbers.h"
#include "db/add_row.h"
#include "db/connection.h"
#include "invoicing/open_invoice.h"
#include "invoicing/order_lines.h"

namespace {

/// False also for an item that is gone: there is nothing to run short of.
bool IsShortOfStock(qint32 itemId, qint32 quantity)
{
    const Recordset stock =
        gConnection->Execute(Sql("SELECT noinstock FROM item WHERE id = {itemId}").Number("itemId", itemId));
    return !stock.Eof() && !stock.IsNull(0) && quantity > stock[0].ToDouble();
}

Currency NetOfDiscount(Currency unitPrice, double discountPercent)
{
    if (discountPercent == 0)
        return unitPrice;
    return unitPrice - CCur(unitPrice.ToDouble() * discountPercent / 100);
}

/// The line copies what it needs of the item: later changes of the item or its tax rate leave old invoices alone.
qint64 AddLine(const Recordset& item, qint32 quantity, Currency amount)
{
    AddRow line(*gConnection, "InvoiceLine");
    line.AddNew();
    line.Set("ItemID", item["id"]);
    line.Set("InvoiceID", OpenInvoice::gCurrentInvoiceId);
    line.Set("Quantity", quantity);
    line.Set("Amount", amount);
    line.Set("Description", item["description"]);
    line.Set("Number", item["number"]);
    line.Set("Name", item["name"]);
    line.Set("TaxRateName", item["tname"]);
    line.Set("TaxRatePercentage", item["percentage"]);
    line.Update();
    return line.Id();
}

/// Returns the line, 0 when the item or its tax rate is gone.
qint64 AddNewLine(qint32 itemId, qint32 quantity, Currency amount)
{
    Recordset item = gConnection->Execute(
        Sql("SELECT item.id, [number], item.name, taxrate.percentage, taxrate.name AS tname, description "
            "FROM item, taxrate WHERE item.taxrateid = taxrate.id AND item.id = {itemId}")
            .Number("itemId", itemId));
    if (item.Eof())
        return 0;
    const qint64 line = AddLine(item, quantity, amount);
    item.Close();
    TakeFromStock(itemId, quantity);
    return line;
}

void MergeIntoLine(qint64 lineId, qint64 oldQuantity, qint32 itemId, qint32 quantity)
{
    TakeFromStock(itemId, quantity);
    gConnection->Execute(Sql("UPDATE invoiceline SET quantity = {quantity} WHERE id = {lineId}")
                             .Number("quantity", oldQuantity + quantity)
                             .Number("lineId", lineId));
}

/// Id and quantity.
Recordset LinesOfItem(qint32 itemId)
{
    return gConnection->Execute(
        Sql("SELECT id, quantity FROM invoiceline WHERE invoiceid = {gCurrentInvoiceId} AND itemid = {itemId}")
            .Number("gCurrentInvoiceId", OpenInvoice::gCurrentInvoiceId)
            .Number("itemId", itemId));
}

} // namespace

qint64 LineOfItem(qint32 itemId)
{
    const Recordset line = LinesOfItem(itemId);
    return line.Eof() ? 0 : line.Long(0);
}

std::optional<qint64> AddNewOrderItemToDB(
    qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice)
{
    if (IsShortOfStock(itemId, quantity))
        return std::nullopt;

    Recordset line = LinesOfItem(itemId);
    if (line.Eof())
        return AddNewLine(itemId, quantity, isWarranty ? Currency() : NetOfDiscount(unitPrice, discountPercent));
    const qint64 lineId = line.Long(0);
    const qint64 oldQuantity = line.IsNull(1) ? 0 : line.Long(1);
    line.Close();
    MergeIntoLine(lineId, oldQuantity, itemId, quantity);
    return lineId;
}
