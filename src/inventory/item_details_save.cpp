#include "base/numbers.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "inventory/item_details.h"

namespace {

/// False when another item has this value and the user does not want it twice. An empty value is never in use.
/// `count` is the statement that counts items with the value, `question` what to ask.
bool MayBeUsed(const QString& value, const char* count, const QString& question)
{
    if (value.isEmpty())
        return true;
    Sql items = Sql(count).Text("value", value);
    if (frmItemDetails::gEditItemId != NewRow)
        items.Append(QStringLiteral(" AND id<>{gEditItemId}")).Number("gEditItemId", frmItemDetails::gEditItemId);
    if (gConnection->Execute(items)[0].ToLong() == 0)
        return true;
    return MsgBox(question, Icon::Exclamation, Buttons::YesNoCancel) == Answer::Yes;
}

void SavePrice(const QString& price, const QString& priceListId)
{
    const Recordset stored = gConnection->Execute(
        Sql("SELECT id, price FROM itempricelist WHERE itemid = {gEditItemId} AND pricelistid = {Tag}")
            .Number("gEditItemId", frmItemDetails::gEditItemId)
            .Raw("Tag", priceListId));
    if (!stored.Eof()) {
        gConnection->Execute(
            Sql("UPDATE itempricelist SET price = '{text}' WHERE itemid = {gEditItemId} AND pricelistid = {Tag}")
                .Text("text", price)
                .Number("gEditItemId", frmItemDetails::gEditItemId)
                .Raw("Tag", priceListId));
        return;
    }
    AddRow row(*gConnection, "ItemPriceList");
    row.AddNew();
    row.Set("Price", price);
    row.Set("PriceListID", priceListId);
    row.Set("ItemID", frmItemDetails::gEditItemId);
    row.Update();
}

} // namespace

void frmItemDetails::Save()
{
    if (!MayBeSaved())
        return;
    RepairEntries();

    InBatch(*gConnection, [&] {
        if (gEditItemId == NewRow)
            AddNewItem();
        else
            UpdateItem();
        SavePrices();
        m_customFields.Save(gEditItemId);
    });

    accept();
    ShowStatus(tr("Item %1 saved").arg(m_name->text()));
}

bool frmItemDetails::MayBeSaved() const
{
    return MayBeUsed(m_number->text(), "SELECT COUNT(*) FROM item WHERE [number]='{value}'",
               tr("The Item Number is already in use. Continue anyway?"))
        && MayBeUsed(m_barcode->text(), "SELECT COUNT(*) FROM item WHERE [barcode]='{value}'",
            tr("The Barcode is already in use. Continue anyway?"))
        && MayBeUsed(m_name->text(), "SELECT COUNT(*) FROM item WHERE [name]='{value}'",
            tr("The Name is already in use. Continue anyway?"));
}

void frmItemDetails::RepairEntries()
{
    for (TextBox* box : {m_noInStock, m_reorderLevel, m_minStockLevel, m_warrantyReturns})
        if (!IsNumeric(box->text()))
            box->setText(QStringLiteral("0"));
    if (m_name->text().isEmpty())
        m_name->setText(QStringLiteral("No Name"));
    for (const PriceBox& price : m_prices)
        if (!IsNumeric(price.box->text()))
            price.box->setText(FormatCurrency(Currency()));
}

void frmItemDetails::UpdateItem() const
{
    // The numbers go in as typed: one that the statement cannot take ends the program here, with nothing written.
    gConnection->Execute(
        Sql("UPDATE Item SET [Number] = '{number}', Name = '{name}', Description = '{description}', "
            "Barcode = '{barcode}', LocationID = {locationId}, SubCategoryID = {subCategoryId}, VendorID = {vendorId}, "
            "TaxRateID = {taxRateId}, NoInStock = {noInStock}, ReorderLevel = {reorderLevel}, "
            "WarrantyReturns = {warrantyReturns}, MinStockLevel = {minStockLevel} WHERE ID = {gEditItemId};")
            .Text("number", m_number->text())
            .Text("name", m_name->text())
            .Text("description", m_description->Text())
            .Text("barcode", m_barcode->text())
            .Number("locationId", cboStorage->SelectedData())
            .Number("subCategoryId", cboSubCategory->SelectedData())
            .Number("vendorId", cboVendor->SelectedData())
            .Number("taxRateId", cboTaxRate->SelectedData())
            .Raw("noInStock", m_noInStock->text())
            .Raw("reorderLevel", m_reorderLevel->text())
            .Raw("warrantyReturns", m_warrantyReturns->text())
            .Raw("minStockLevel", m_minStockLevel->text())
            .Number("gEditItemId", gEditItemId));
}

void frmItemDetails::AddNewItem() const
{
    AddRow item(*gConnection, "Item");
    item.AddNew();
    item.Set("Number", m_number->text());
    item.Set("Barcode", m_barcode->text());
    item.Set("LocationID", cboStorage->SelectedData());
    item.Set("SubCategoryID", cboSubCategory->SelectedData());
    item.Set("VendorID", cboVendor->SelectedData());
    item.Set("TaxRateID", cboTaxRate->SelectedData());
    item.Set("NoInStock", m_noInStock->text());
    item.Set("ReorderLevel", m_reorderLevel->text());
    item.Set("MinStockLevel", m_minStockLevel->text());
    item.Set("Description", m_description->Text());
    item.Set("Name", m_name->text());
    item.Set("WarrantyReturns", m_warrantyReturns->text());
    item.Update();
    gEditItemId = qint32(item.Id());
    gConnection->Execute("UPDATE nextitemno SET itemnumber=itemnumber+1");
}

void frmItemDetails::SavePrices() const
{
    for (const PriceBox& price : m_prices)
        SavePrice(price.box->text(), price.box->property("Tag").toString());
}
