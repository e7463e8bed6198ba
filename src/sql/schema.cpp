#include "sql/schema.h"

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

/// One for each lookup and join of the screens.
QStringList Indexes()
{
    return {
        QStringLiteral("CREATE INDEX item_number ON item(Number)"),
        QStringLiteral("CREATE INDEX item_name ON item(Name)"),
        QStringLiteral("CREATE INDEX item_barcode ON item(Barcode)"),
        QStringLiteral("CREATE INDEX item_taxrate ON item(TaxRateID)"),
        QStringLiteral("CREATE INDEX item_location ON item(LocationID)"),
        QStringLiteral("CREATE INDEX item_subcategory ON item(SubCategoryID)"),
        QStringLiteral("CREATE INDEX item_vendor ON item(VendorID)"),
        // With the price the inventory list need not touch the table.
        QStringLiteral("CREATE INDEX itempricelist_item ON ItemPriceList(ItemID, PriceListID, Price)"),
        QStringLiteral("CREATE INDEX itempricelist_pricelist ON ItemPriceList(PriceListID)"),
        // An invoice's lines come in the order in which they were added, so this one may not sort by item.
        QStringLiteral("CREATE INDEX invoiceline_invoice ON invoiceline(InvoiceID)"),
        // With the quantity the sums of an item's sales need not touch the table.
        QStringLiteral("CREATE INDEX invoiceline_item ON invoiceline(ItemID, InvoiceID, Quantity)"),
        QStringLiteral("CREATE INDEX invoice_customer ON invoice(CustomerID)"),
        QStringLiteral("CREATE INDEX invoice_submitteddate ON invoice(SubmittedDate)"),
        // month(SubmittedDate) as the dialect writes it: the popular months are counted in order. The date is there so
        // that the engine finds all it needs in the index.
        QStringLiteral("CREATE INDEX invoice_submittedmonth ON invoice(CAST(substr(SubmittedDate, 6, 2) AS INTEGER), "
                       "SubmittedDate)"),
        QStringLiteral("CREATE INDEX customer_name ON customer(LastName, FirstName)"),
        QStringLiteral("CREATE INDEX customer_businessname ON customer(BusinessName)"),
        QStringLiteral("CREATE INDEX vendor_businessname ON vendor(BusinessName)"),
        QStringLiteral("CREATE INDEX location_warehouse ON location(WarehouseID)"),
        QStringLiteral("CREATE INDEX location_name ON location(name)"),
        QStringLiteral("CREATE INDEX subcategory_category ON subcategory(CategoryID)"),
        QStringLiteral("CREATE INDEX subcategory_name ON subcategory(name)"),
        QStringLiteral("CREATE INDEX taxrate_name ON taxrate(name)"),
        QStringLiteral("CREATE INDEX itemgroup_item_group ON itemgroup_item(itemgroupid)"),
        QStringLiteral("CREATE INDEX itemgroup_item_item ON itemgroup_item(ItemID)"),
        QStringLiteral("CREATE INDEX itemcustomfielddata_item ON ItemCustomFieldData(ItemID, ItemCustomFieldID)"),
        QStringLiteral("CREATE INDEX itemcustomfieldoption_field ON itemCustomFieldOption(itemCustomFieldID)"),
        QStringLiteral("CREATE INDEX booking_customer ON Booking(customerid)"),
        QStringLiteral("CREATE INDEX bookingslip_booking ON BookingSlip(bookingid)"),
    };
}

} // namespace

const QList<TableDefinition>& SchemaTables()
{
    static const QList<TableDefinition> tables = MakeTables();
    return tables;
}

const TableDefinition* FindTable(QStringView name)
{
    for (const TableDefinition& table : SchemaTables()) {
        if (name.compare(table.name, Qt::CaseInsensitive) == 0)
            return &table;
    }
    return nullptr;
}

const ColumnDefinition* FindColumn(const TableDefinition& table, QStringView name)
{
    for (const ColumnDefinition& column : table.columns) {
        if (name.compare(column.name, Qt::CaseInsensitive) == 0)
            return &column;
    }
    return nullptr;
}

QStringList SchemaStatements()
{
    QStringList statements;
    for (const TableDefinition& table : SchemaTables())
        statements << CreateTable(table);
    return statements + Indexes();
}
