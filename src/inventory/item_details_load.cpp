#include "base/numbers.h"
#include "db/connection.h"
#include "inventory/item_details.h"
#include "records/lists.h"

namespace {

// The row of each key table that stands for no choice.
constexpr qint64 NoChoice = 1;

/// What another program left out is no choice.
qint64 ChoiceOf(const Value& id)
{
    return id.IsNull() ? NoChoice : id.ToLong();
}

QString PriceOf(qint32 itemId, const QString& priceListId)
{
    const Recordset price =
        gConnection->Execute(Sql("SELECT price FROM itempricelist WHERE itemid = {gEditItemId} AND pricelistid = {Tag}")
                                 .Number("gEditItemId", itemId)
                                 .Raw("Tag", priceListId));
    return FormatCurrency(price.Eof() || price.IsNull(0) ? Currency() : price.Money(0));
}

} // namespace

void frmItemDetails::FillLists()
{
    cboCategory->AddItem(tr("N/A"), NoChoice);
    FillCombo(cboCategory, Sql("SELECT id, name FROM category WHERE id<>1 ORDER BY name"));
    cboVendor->AddItem(tr("N/A"), NoChoice);
    FillCombo(cboVendor, Sql("SELECT id, businessname FROM vendor WHERE id<>1 ORDER BY businessname"));
    FillCombo(cboWarehouse, Sql("SELECT id, name FROM Warehouse ORDER BY name"));
    cboTaxRate->AddItem(tr("N/A"), NoChoice);
    FillCombo(cboTaxRate, Sql("SELECT id, name FROM taxrate WHERE id<>1 ORDER BY name"));
}

void frmItemDetails::ShowSubCategories()
{
    cboSubCategory->Clear();
    cboSubCategory->AddItem(tr("All Sub-Categories"), NoChoice);
    const qint64 categoryId = cboCategory->SelectedData();
    if (categoryId != NoChoice)
        FillCombo(cboSubCategory,
            Sql("SELECT id, name FROM subcategory WHERE subcategory.id<>1 AND categoryid = {categoryId} ORDER BY name")
                .Number("categoryId", categoryId));
    cboSubCategory->SetListIndex(cboSubCategory->ListCount() > 1 ? 1 : 0);
}

void frmItemDetails::ShowLocations()
{
    cboStorage->Clear();
    cboStorage->AddItem(tr("N/A"), NoChoice);
    FillCombo(cboStorage,
        Sql("SELECT id, name FROM location WHERE id<>1 AND warehouseid = {warehouseId} ORDER BY name")
            .Number("warehouseId", cboWarehouse->SelectedData()));
    cboStorage->SetListIndex(0);
}

void frmItemDetails::ProposeNewItem()
{
    for (ComboBox* list : {cboCategory, cboVendor, cboTaxRate, cboWarehouse})
        list->SetListIndex(0);

    const Recordset next = gConnection->Execute("SELECT itemnumber FROM nextitemno");
    if (!next.Eof())
        m_number->setText(NullToText(next["itemnumber"]));
    ShowSubCategories();

    for (const PriceBox& price : m_prices)
        price.box->setText(FormatCurrency(Currency()));
}

void frmItemDetails::ShowStoredItem()
{
    const Recordset item = gConnection->Execute(
        Sql("SELECT id, Number, WarrantyReturns, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, "
            "VendorID, NoInStock, name, description, TaxRateID FROM item WHERE id = {gEditItemId}")
            .Number("gEditItemId", gEditItemId));
    if (!item.Eof())
        ShowItem(item);
    ShowPrices();
    m_customFields.Load(gEditItemId);
}

void frmItemDetails::ShowItem(const Recordset& item)
{
    m_number->setText(NullToText(item["Number"]));
    m_barcode->setText(NullToText(item["Barcode"]));

    const qint64 subCategoryId = ChoiceOf(item["SubCategoryID"]);
    const Recordset category = gConnection->Execute(
        Sql("SELECT categoryid FROM subcategory WHERE id = {SubCategoryID}").Number("SubCategoryID", subCategoryId));
    if (!category.Eof())
        SelectComboByData(cboCategory, ChoiceOf(category["categoryid"]));
    SelectComboByData(cboSubCategory, subCategoryId);
    SelectComboByData(cboVendor, ChoiceOf(item["VendorID"]));
    SelectComboByData(cboTaxRate, ChoiceOf(item["TaxRateID"]));

    m_noInStock->ShowWhole(item["NoInStock"].ToText());
    m_reorderLevel->ShowWhole(item["ReorderLevel"].ToText());
    m_minStockLevel->ShowWhole(item["MinStockLevel"].ToText());
    m_description->ShowWhole(NullToText(item["description"]));
    m_name->setText(NullToText(item["name"]));
    const Value returns = item["WarrantyReturns"];
    m_warrantyReturns->ShowWhole(returns.IsNull() ? QStringLiteral("0") : returns.ToText());

    ShowStorage(NullToText(item["LocationID"]));
}

void frmItemDetails::ShowStorage(const QString& locationId)
{
    const Recordset location = gConnection->Execute(
        Sql("SELECT warehouseid FROM location WHERE id = {LocationID}").Raw("LocationID", locationId));
    const qint64 warehouseId = ChoiceOf(location["warehouseid"]);
    SelectComboByData(cboWarehouse, warehouseId == 0 ? 1 : warehouseId);
    SelectComboByData(cboStorage, locationId.toLongLong());
}

void frmItemDetails::ShowPrices()
{
    for (const PriceBox& price : m_prices)
        price.box->ShowWhole(PriceOf(gEditItemId, price.box->property("Tag").toString()));
}
