#include "sql/schema.h"

#include <algorithm>

namespace {

using enum ColumnKind;

/// `length` is that of a text, 0 for no limit.
ColumnDefinition Column(const char* name, ColumnKind kind, int length = 0)
{
    return {QString::fromLatin1(name), kind, length};
}

QList<ColumnDefinition> Columns(ColumnKind kind, std::initializer_list<const char*> names)
{
    QList<ColumnDefinition> columns;
    for (const char* name : names)
        columns.append(Column(name, kind));
    return columns;
}

TableDefinition Table(const char* name, const QList<ColumnDefinition>& columns)
{
    return {QString::fromLatin1(name), columns};
}

const auto AddressNames = {"Address1", "Address2", "City", "State", "PostCode", "Country", "Phone", "Fax", "Email"};

TableDefinition CustomerTable()
{
    return Table("customer",
        Columns(AutoNumber, {"id"}) + Columns(Text, {"FirstName", "LastName", "BusinessName"})
            + Columns(Text, AddressNames)
            + QList{Column("Discount", Double), Column("PriceListID", Id), Column("SubmittedDate", Date),
                Column("boatname", Text), Column("IsYachtClubMember", Boolean)});
}

TableDefinition InvoiceTable()
{
    return Table("invoice",
        {Column("id", AutoNumber), Column("CustomerID", Id), Column("InvoiceNo", Text), Column("SubmittedDate", Date),
            Column("ShippedDate", Date), Column("PaymentMethod", Text), Column("Paid", Boolean),
            Column("WarrantyInvoice", Boolean), Column("StockReturned", Boolean), Column("Notes", Memo),
            Column("Total2ndTax", Text)});
}

TableDefinition InvoiceLineTable()
{
    return Table("invoiceline",
        {Column("id", AutoNumber), Column("InvoiceID", Id), Column("ItemID", Id), Column("Quantity", Long),
            Column("Amount", Money), Column("Number", Text), Column("Name", Text), Column("Description", Memo),
            Column("TaxRateName", Text), Column("TaxRatePercentage", Double)});
}

TableDefinition ItemTable()
{
    return Table("item",
        QList<ColumnDefinition>{Column("id", AutoNumber), Column("Number", Text, 255), Column("Name", Text, 255),
            Column("Description", Memo), Column("Barcode", Text, 50)}
            + Columns(Id, {"TaxRateID", "LocationID", "SubCategoryID", "VendorID"})
            + Columns(Double, {"NoInStock", "ReorderLevel", "MinStockLevel", "WarrantyReturns"}));
}

TableDefinition VendorTable()
{
    return Table("vendor",
        Columns(AutoNumber, {"id"}) + QList{Column("BusinessName", Text, LongestName), Column("ContactName", Text)}
            + Columns(Text, AddressNames) + Columns(Memo, {"Notes"}));
}

TableDefinition SettingsTable()
{
    return Table("settings",
        Columns(Text, {"BusinessName"}) + Columns(Text, AddressNames)
            + QList{Column("Logofilename", Text), Column("SecondaryTaxEnable", Boolean),
                Column("SecondaryTaxName", Text), Column("SecondaryTaxPercentage", Money),
                Column("webbookingemail", Text), Column("webbookingproviderindex", Long),
                Column("webbookingprovidercustom", Text)});
}

TableDefinition BookingTable()
{
    return Table("Booking",
        Columns(AutoNumber, {"id"}) + Columns(Id, {"customerid"}) + Columns(Double, {"noadults", "nokids"})
            + Columns(Date, {"FromDate", "ToDate"})
            + Columns(Double, {"CostPerNight", "OtherCharges", "SalesTax", "TotalPayable", "AmountPayed"})
            + Columns(Text, {"PaymentMethod", "CreditCardNo", "CreditCardExpiry", "CreditCardType"})
            + Columns(Memo, {"notes"}));
}

TableDefinition NamedTable(const char* name, const QList<ColumnDefinition>& further)
{
    return Table(name, Columns(AutoNumber, {"id"}) + QList{Column("name", Text, LongestName)} + further);
}

QList<TableDefinition> MakeTables()
{
    return {
        CustomerTable(),
        InvoiceTable(),
        InvoiceLineTable(),
        ItemTable(),
        NamedTable("PriceList", {}),
        Table("ItemPriceList",
            Columns(AutoNumber, {"id"}) + Columns(Id, {"ItemID", "PriceListID"}) + Columns(Money, {"Price"})),
        NamedTable("taxrate", Columns(Double, {"percentage"})),
        VendorTable(),
        NamedTable("warehouse", {}),
        NamedTable("location", Columns(Id, {"WarehouseID"})),
        NamedTable("category", {}),
        NamedTable("subcategory", Columns(Id, {"CategoryID"})),
        NamedTable("itemgroup", {}),
        Table("itemgroup_item", Columns(Id, {"itemgroupid", "ItemID"})),
        NamedTable("ItemCustomField", Columns(Text, {"type"}) + Columns(Long, {"pos"})),
        Table("itemCustomFieldOption", Columns(Id, {"itemCustomFieldID"}) + Columns(Text, {"option"})),
        Table("ItemCustomFieldData",
            Columns(AutoNumber, {"id"}) + Columns(Id, {"ItemID", "ItemCustomFieldID"})
                + QList<ColumnDefinition>{Column("Data", Text, 255)}),
        SettingsTable(),
        Table("nextinvoiceno", Columns(Double, {"invoiceno"})),
        Table("nextitemno", Columns(Double, {"itemnumber"})),
        BookingTable(),
        Table("BookingSlip", Columns(Id, {"bookingid", "slipid"})),
        NamedTable("Slip", {}),
    };
}

QString TextDeclaration(const ColumnDefinition& column)
{
    if (column.length == 0)
        return QStringLiteral("TEXT COLLATE NOCASE");
    return QStringLiteral("TEXT(%1) COLLATE NOCASE CHECK(length([%2]) <= %1)").arg(column.length).arg(column.name);
}

QString Declaration(const ColumnDefinition& column)
{
    switch (column.kind) {
    case AutoNumber:
        return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
    case Id:
    case Long:
        return QStringLiteral("INTEGER");
    case Text:
        return TextDeclaration(column);
    case Memo:
        return QStringLiteral("LONGTEXT COLLATE NOCASE");
    case Double:
        return QStringLiteral("DOUBLE");
    case Money:
        return QStringLiteral("CURRENCY");
    case Boolean:
        return QStringLiteral("BOOLEAN");
    case Date:
        return QStringLiteral("DATETIME");
    }
    return {};
}

QString Default(const TableDefinition& table, const ColumnDefinition& column)
{
    const bool dayOfTheRecord =
        table.name == QLatin1String("customer") && column.name == QLatin1String("SubmittedDate");
    return dayOfTheRecord ? QStringLiteral(" DEFAULT (date('now', 'localtime') || ' 00:00:00')") : QString();
}

QString CreateTable(const TableDefinition& table)
{
    QStringList columns;
    for (const ColumnDefinition& column : table.columns)
        columns << QStringLiteral("[%1] %2%3").arg(column.name, Declaration(column), Default(table, column));
    return QStringLiteral("CREATE TABLE [%1] (%2)").arg(table.name, columns.join(QStringLiteral(", ")));
}

IndexDefinition Index(const char* name, const char* table, const char* columns)
{
    return {QString::fromLatin1(name), QString::fromLatin1(table), QString::fromLatin1(columns)};
}

/// One for each lookup and join of the screens.
QList<IndexDefinition> MakeIndexes()
{
    return {
        Index("item_number", "item", "Number"),
        Index("item_name", "item", "Name"),
        Index("item_barcode", "item", "Barcode"),
        Index("item_taxrate", "item", "TaxRateID"),
        Index("item_location", "item", "LocationID"),
        Index("item_subcategory", "item", "SubCategoryID"),
        Index("item_vendor", "item", "VendorID"),
        // With the price the inventory list need not touch the table.
        Index("itempricelist_item", "ItemPriceList", "ItemID, PriceListID, Price"),
        Index("itempricelist_pricelist", "ItemPriceList", "PriceListID"),
        // An invoice's lines come in the order in which they were added, so this one may not sort by item.
        Index("invoiceline_invoice", "invoiceline", "InvoiceID"),
        // With the quantity the sums of an item's sales need not touch the table.
        Index("invoiceline_item", "invoiceline", "ItemID, InvoiceID, Quantity"),
        Index("invoice_customer", "invoice", "CustomerID"),
        Index("invoice_submitteddate", "invoice", "SubmittedDate"),
        // month(SubmittedDate) as the dialect writes it: the popular months are counted in order. The date is there so
        // that the engine finds all it needs in the index.
        Index("invoice_submittedmonth", "invoice", "CAST(substr(SubmittedDate, 6, 2) AS INTEGER), SubmittedDate"),
        Index("customer_name", "customer", "LastName, FirstName"),
        Index("customer_businessname", "customer", "BusinessName"),
        Index("vendor_businessname", "vendor", "BusinessName"),
        Index("location_warehouse", "location", "WarehouseID"),
        Index("location_name", "location", "name"),
        Index("subcategory_category", "subcategory", "CategoryID"),
        Index("subcategory_name", "subcategory", "name"),
        Index("taxrate_name", "taxrate", "name"),
        Index("itemgroup_item_group", "itemgroup_item", "itemgroupid"),
        Index("itemgroup_item_item", "itemgroup_item", "ItemID"),
        Index("itemcustomfielddata_item", "ItemCustomFieldData", "ItemID, ItemCustomFieldID"),
        Index("itemcustomfieldoption_field", "itemCustomFieldOption", "itemCustomFieldID"),
        Index("booking_customer", "Booking", "customerid"),
        Index("bookingslip_booking", "BookingSlip", "bookingid"),
    };
}

/// The names in use are ASCII: one of another length is no such name, and is not compared letter by letter.
bool IsSame(const QString& known, QAnyStringView name)
{
    return known.size() == name.size() && QAnyStringView::compare(name, known, Qt::CaseInsensitive) == 0;
}

} // namespace

const QList<TableDefinition>& SchemaTables()
{
    static const QList<TableDefinition> tables = MakeTables();
    return tables;
}

const QList<IndexDefinition>& SchemaIndexes()
{
    static const QList<IndexDefinition> indexes = MakeIndexes();
    return indexes;
}

QString IndexDefinition::Statement() const
{
    return QStringLiteral("CREATE INDEX %1 ON %2(%3)").arg(name, table, columns);
}

bool IsIndexed(const TableDefinition& table, const ColumnDefinition& column)
{
    return std::any_of(SchemaIndexes().begin(), SchemaIndexes().end(), [&](const IndexDefinition& index) {
        return index.table == table.name && index.columns.section(u',', 0, 0) == column.name;
    });
}

const TableDefinition* FindTable(QAnyStringView name)
{
    for (const TableDefinition& table : SchemaTables()) {
        if (IsSame(table.name, name))
            return &table;
    }
    return nullptr;
}

const ColumnDefinition* FindColumn(const TableDefinition& table, QAnyStringView name)
{
    for (const ColumnDefinition& column : table.columns) {
        if (IsSame(column.name, name))
            return &column;
    }
    return nullptr;
}

QStringList SchemaStatements()
{
    QStringList statements;
    for (const TableDefinition& table : SchemaTables())
        statements << CreateTable(table);
    for (const IndexDefinition& index : SchemaIndexes())
        statements << index.Statement();
    return statements;
}
