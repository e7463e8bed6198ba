#include "exchange/import_records.h"
#include "support/test.h"

namespace {

class ImportRecordsTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        PriceListRow("Trade");
    }

    /// Imports the rows, whose cells feed these columns. Returns the failure, "" when there was none.
    static QString Import(const QStringList& columns, const Table& rows)
    {
        QList<ImportField> fields = BuildImportFields();
        for (ImportField& field : fields)
            field.SourceColumn = qint16(columns.indexOf(field.ColumnName));
        const auto failure =
            ImportRecords({int(rows.size()), [&rows](int row, int col) { return rows.at(row - 1).at(col); }}, fields,
                [](int, int) {});
        return failure ? QString("%1: %2").arg(failure->record).arg(failure->description) : QString();
    }

    /// Without the seed rows.
    Table Made(const QString& columns, const QString& table) const
    {
        return Rows("SELECT " + columns + " FROM " + table + " WHERE id > 1 ORDER BY id");
    }
    Table Prices() const { return Rows("SELECT ItemID, PriceListID, Price FROM ItemPriceList ORDER BY id"); }
};

constexpr auto TooLong = "The field is too small to accept the amount of data you attempted to add. Try inserting or "
                         "pasting less data.";

} // namespace

TEST_F(ImportRecordsTest, ARowWithNothingToTakeIsAnItemWithoutName)
{
    EXPECT_EQ(Import({"Name", "NoInStock", "VendorID", "PriceList.Trade"}, {{"", "", "", ""}}), "");
    EXPECT_EQ(Import({}, {{"unread"}}), "");
    const QStringList nothing = {"No Name", "", "", "", "1", "1", "1", "1", "0.0", "0.0", "0.0", "0.0"};
    EXPECT_EQ(Rows("SELECT Name, Number, Description, Barcode, LocationID, SubCategoryID, VendorID, TaxRateID, "
                   "NoInStock, ReorderLevel, MinStockLevel, WarrantyReturns FROM item"),
        Table({nothing, nothing}));
    EXPECT_EQ(Prices(), Table({{"1", "1", "0"}, {"1", "2", "0"}, {"2", "1", "0"}, {"2", "2", "0"}}));
}

TEST_F(ImportRecordsTest, NamesAreLookedUpAndThoseThatNobodyHasAreMade)
{
    const int shelf = LocationRow(1, "Shelf");
    const QStringList columns = {"Name", "Number", "Description", "Barcode", "LocationID", "SubCategoryID", "VendorID",
        "TaxRateID", "NoInStock", "ReorderLevel", "MinStockLevel", "WarrantyReturns"};
    const QString odd = QString::fromUtf8("O'Hara \"{name}\" %1 é");
    EXPECT_EQ(Import(columns,
                  {{"Nut", "7", "Brass", "200", "SHELF", "Small", odd, "GST", "5", "4", "3", "2"},
                      {odd, odd, odd, odd, "Bin", "Small", odd, "GST", "1", "1", "1", "1"}}),
        "");
    EXPECT_EQ(Rows("SELECT Name, Number, Description, Barcode, LocationID, SubCategoryID, VendorID, TaxRateID, "
                   "NoInStock, ReorderLevel, MinStockLevel, WarrantyReturns FROM item"),
        Table({{"Nut", "7", "Brass", "200", QString::number(shelf), "2", "2", "2", "5.0", "4.0", "3.0", "2.0"},
            {odd, odd, odd, odd, QString::number(shelf + 1), "2", "2", "2", "1.0", "1.0", "1.0", "1.0"}}));
    EXPECT_EQ(Made("name, WarehouseID", "location"), Table({{"Shelf", "1"}, {"Bin", "1"}}));
    EXPECT_EQ(Made("name, CategoryID", "subcategory"), Table({{"Small", "1"}}));
    EXPECT_EQ(Made("name, percentage", "taxrate"), Table({{"GST", "0.0"}}));
    EXPECT_EQ(Made("BusinessName, ContactName, notes, Address1, City, PostCode, Fax", "vendor"),
        Table({{odd, "", "", "", "", "", ""}}));

    const QString withNull = QString("a") + QChar(0);
    EXPECT_EQ(Import({"Name", "VendorID"}, {{withNull, withNull + "b"}}), "");
    EXPECT_EQ(
        Rows("SELECT hex(Name), hex(BusinessName) FROM item JOIN vendor ON VendorID = vendor.id WHERE item.id > 2"),
        Table({{"6100", "610062"}}));
}

TEST_F(ImportRecordsTest, NumbersAreTakenFromFourCharactersAndTextsCut)
{
    QStringList stock;
    const QStringList cells = {"12345", "2.5", "3.5", "-0", "(5)", "$1,234.50", "1.5e3", "1e3", "abc", "12x"};
    for (const QString& cell : cells)
        ASSERT_EQ(Import({"NoInStock"}, {{cell}}), "");
    for (const QStringList& row : Rows("SELECT NoInStock FROM item ORDER BY id"))
        stock += row;
    EXPECT_EQ(stock, QStringList({"1234.0", "2.0", "4.0", "0.0", "-5.0", "12.0", "0.0", "1000.0", "0.0", "0.0"}));

    const QString name(254, u'n');
    const QString longText = QString::fromUtf8("😀").repeated(200);
    EXPECT_EQ(Import({"Name", "Number", "Description", "Barcode"}, {{name + "😀n", longText, longText, longText}}), "");
    EXPECT_EQ(
        Rows("SELECT Name, length(Number), length(Description), length(Barcode) FROM item ORDER BY id DESC LIMIT 1"),
        Table({{name, "25", "127", "25"}}));
}

TEST_F(ImportRecordsTest, EveryPriceListGetsAPrice)
{
    const std::tuple<const char*, const char*, Table> cells[] = {{"$1,234.50", "0", {{"1", "1234.5"}, {"2", "0"}}},
        {"1.5e3", "-0", {{"1", "1500"}, {"2", "0"}}}, {"", "(2)", {{"1", "0"}, {"2", "-2"}}},
        // What is no number goes to the first list, whichever it was for.
        {"abc", "", {{"1", "0"}, {"2", "0"}}}, {"3", "abc", {{"1", "3"}, {"1", "0"}}}};
    for (const auto& [first, second, prices] : cells) {
        Run("DELETE FROM ItemPriceList");
        EXPECT_EQ(Import({"PriceList.Sale Price", "PriceList.Trade"}, {{first, second}}), "");
        EXPECT_EQ(Rows("SELECT PriceListID, Price FROM ItemPriceList ORDER BY id"), prices) << first << ", " << second;
    }
}

TEST_F(ImportRecordsTest, TheFirstFailureEndsItAndWhatWasWrittenStays)
{
    const QString tooLong(256, u'v');
    EXPECT_EQ(Import({"Name", "LocationID", "VendorID"}, {{"a", "", ""}, {"b", "Bin", tooLong}, {"c", "", ""}}),
        "2: " + QString(TooLong));
    EXPECT_EQ(Import({"NoInStock"}, {{"1"}, {"9e9"}}), "2: Overflow");
    EXPECT_EQ(Rows("SELECT Name, NoInStock FROM item"), Table({{"a", "0.0"}, {"No Name", "1.0"}}));
    EXPECT_EQ(Made("name", "location"), Table({{"Bin"}}));
    EXPECT_EQ(Import({"PriceList.Sale Price"}, {{"1e15"}}), "1: Overflow");
    EXPECT_EQ(Count("item"), 3);
    EXPECT_EQ(Count("ItemPriceList"), 4);
}

TEST_F(ImportRecordsTest, AFullDiskKeepsTheRecordsBeforeTheOneThatItNames)
{
    Table rows;
    for (int i = 0; i < 3000; ++i)
        rows.append({QString("Item %1").arg(i) + QString(200, u'x')});
    QString failure;
    {
        const FileSizeLimit limit(QFileInfo(DatabasePath()).size() + 600'000);
        failure = Import({"Name"}, rows);
    }
    const qint64 written = Count("item");
    EXPECT_EQ(failure.section(u':', 0, 0), QString::number(written + 1)) << qPrintable(failure);
    EXPECT_GT(written, 500);
    EXPECT_EQ(Count("ItemPriceList"), 2 * written);
}
