#include "exchange/import_fields.h"

#include "db/connection.h"

#include <QCoreApplication>

namespace {

/// The context of the captions.
struct ImportFields {
    Q_DECLARE_TR_FUNCTIONS(ImportFields)
};

constexpr struct {
    const char* caption;
    const char* columnName;
    enum ImportField::Kind kind;
    qint16 limit;
} ItemFields[] = {
    {QT_TRANSLATE_NOOP("ImportFields", "Item Name"), "Name", ImportField::Text, 255},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Ref. Number"), "Number", ImportField::Text, 50},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Description"), "Description", ImportField::Text, 255},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Barcode"), "Barcode", ImportField::Text, 50},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Location"), "LocationID", ImportField::LookedUpName, 50},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Sub-Category"), "SubCategoryID", ImportField::LookedUpName, 50},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Vendor"), "VendorID", ImportField::LookedUpName, 100},
    {QT_TRANSLATE_NOOP("ImportFields", "Item Tax Rate"), "TaxRateID", ImportField::LookedUpName, 50},
    {QT_TRANSLATE_NOOP("ImportFields", "Number in Stock"), "NoInStock", ImportField::Number, 4},
    {QT_TRANSLATE_NOOP("ImportFields", "Reorder Level"), "ReorderLevel", ImportField::Number, 4},
    {QT_TRANSLATE_NOOP("ImportFields", "Minimum Stock Level"), "MinStockLevel", ImportField::Number, 4},
    {QT_TRANSLATE_NOOP("ImportFields", "Warranty Returns"), "WarrantyReturns", ImportField::Number, 4},
};
constexpr qint16 PriceLimit = 12;

} // namespace

QList<ImportField> BuildImportFields()
{
    QList<ImportField> fields;
    for (const auto& field : ItemFields)
        fields.append({ImportFields::tr(field.caption), QLatin1String(field.columnName), field.kind, field.limit});
    for (Recordset list = gConnection->Execute("SELECT id, name FROM PriceList ORDER BY name;"); !list.Eof();
         list.MoveNext()) {
        const QString name = NullToText(list["name"]);
        fields.append({name, PriceOf(name), ImportField::Price, PriceLimit});
    }
    return fields;
}

QString PriceOf(const QString& priceList)
{
    return QStringLiteral("PriceList.") + priceList;
}
