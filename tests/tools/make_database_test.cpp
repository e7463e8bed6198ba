#include "make_database/arguments.h"
#include "make_database/database_maker.h"
#include "make_database/ean13.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sqlite3.h>

#include <set>
#include <string>
#include <vector>

namespace {

const QDate Today(2024, 5, 31);

QStringList Words(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

Arguments Demo(const QString& file, quint64 seed)
{
    Arguments arguments;
    arguments.file = file;
    arguments.contents = Contents::DemoShop;
    arguments.seed = seed;
    arguments.today = Today;
    return arguments;
}

/// Reads a made file with the engine alone, as any other program would.
class MadeFile {
public:
    explicit MadeFile(const QString& path)
    {
        sqlite3_open_v2(qPrintable(path), &m_handle, SQLITE_OPEN_READONLY, nullptr);
    }
    ~MadeFile() { sqlite3_close(m_handle); }
    MadeFile(const MadeFile&) = delete;
    MadeFile& operator=(const MadeFile&) = delete;

    std::vector<std::string> Column(const std::string& query) const
    {
        sqlite3_stmt* statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(m_handle, query.c_str(), -1, &statement, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_handle);
        std::vector<std::string> values;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            const unsigned char* text = sqlite3_column_text(statement, 0);
            values.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
        }
        sqlite3_finalize(statement);
        return values;
    }

    long Count(const std::string& from) const { return std::stol(Column("SELECT count(*) FROM " + from).at(0)); }

private:
    sqlite3* m_handle = nullptr;
};

} // namespace

TEST(MakeDatabaseArguments, AFileAloneAsksForTheSeedRows)
{
    const Arguments arguments = ReadArguments({"shop/db.mdb"});
    EXPECT_EQ(arguments.file, "shop/db.mdb");
    EXPECT_EQ(arguments.contents, Contents::SeedRows);
}

TEST(MakeDatabaseArguments, SizesAskForALargeFile)
{
    const Arguments arguments =
        ReadArguments(Words("--items 7 --customers 2 --invoices 3 --seed 9 --today 2024-02-29 big.mdb"));
    EXPECT_EQ(arguments.contents, Contents::LargeFile);
    EXPECT_EQ(arguments.size.items, 7);
    EXPECT_EQ(arguments.size.customers, 2);
    EXPECT_EQ(arguments.size.invoices, 3);
    EXPECT_EQ(arguments.seed, 9U);
    EXPECT_EQ(arguments.today, QDate(2024, 2, 29));
}

class WrongArguments : public testing::TestWithParam<const char*> { };

TEST_P(WrongArguments, AreToldToTheirAuthor)
{
    EXPECT_THROW(ReadArguments(Words(GetParam())), UsageError);
}

INSTANTIATE_TEST_SUITE_P(MakeDatabase, WrongArguments,
    testing::Values("", "one.mdb two.mdb", "--demo", "--demonstration db.mdb", "--items db.mdb", "--items many db.mdb",
        "--items -1 db.mdb", "--items 5 --demo db.mdb", "--invoices 5 db.mdb", "--seed x --demo db.mdb",
        "--today 2023-02-29 --demo db.mdb", "--today yesterday --demo db.mdb"));

TEST(Ean13, CarriesItsCheckDigit)
{
    EXPECT_EQ(ShopEan13(0), "2000000000008");
    EXPECT_EQ(ShopEan13(1), "2000000000015");
    EXPECT_EQ(ShopEan13(9'999'999'999), "2099999999998");
}

TEST(MakeDatabase, NeverTouchesAFileThatIsThere)
{
    const QTemporaryDir folder;
    QFile existing(folder.filePath("db.mdb"));
    ASSERT_TRUE(existing.open(QFile::ReadWrite));
    existing.write("a year of work");
    existing.flush();

    EXPECT_ANY_THROW(MakeDatabaseWith(Demo(existing.fileName(), 1)));

    existing.seek(0);
    EXPECT_EQ(existing.readAll(), "a year of work");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("db.mdb"));
}

TEST(MakeDatabase, LeavesNothingBehindWhereItCannotWrite)
{
    const QTemporaryDir folder;
    EXPECT_ANY_THROW(MakeDatabaseWith(Demo(folder.filePath("missing/db.mdb"), 1)));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(MakeDatabase, ALargeFileHasTheRowsThatWereAskedFor)
{
    const QTemporaryDir folder;
    Arguments arguments = Demo(folder.filePath("db.mdb"), 1);
    arguments.contents = Contents::LargeFile;
    arguments.size = {40, 10, 20};
    MakeDatabaseWith(arguments);

    const MadeFile file(arguments.file);
    EXPECT_EQ(file.Count("item"), 40);
    EXPECT_EQ(file.Count("itempricelist"), 120);
    EXPECT_EQ(file.Count("customer"), 10);
    EXPECT_EQ(file.Count("invoice JOIN customer ON customer.id = customerid"), 20);
    EXPECT_EQ(file.Count("invoiceline JOIN item ON item.id = itemid"), 100);
    EXPECT_EQ(file.Column("SELECT invoiceno FROM nextinvoiceno").at(0), "21.0");
}

class DemoShop : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        Folder = std::make_unique<QTemporaryDir>();
        MakeDatabaseWith(Demo(Folder->filePath("db.mdb"), 1));
        Shop = std::make_unique<MadeFile>(Folder->filePath("db.mdb"));
    }
    static void TearDownTestSuite()
    {
        Shop.reset();
        Folder.reset();
    }

    /// Everything a person reads in the file, as one text.
    static std::vector<std::string> Contents(const MadeFile& file)
    {
        return file.Column("SELECT number || name || noinstock FROM item UNION ALL "
                           "SELECT coalesce(firstname, '') || coalesce(lastname, '') || city FROM customer UNION ALL "
                           "SELECT customerid || submitteddate || paymentmethod FROM invoice UNION ALL "
                           "SELECT invoiceid || itemid || quantity || amount FROM invoiceline");
    }

    static inline std::unique_ptr<QTemporaryDir> Folder;
    static inline std::unique_ptr<MadeFile> Shop;
};

TEST_F(DemoShop, IsASoundFileOfTheToldSize)
{
    EXPECT_EQ(Shop->Column("PRAGMA integrity_check"), std::vector<std::string>{"ok"});
    EXPECT_NEAR(double(Shop->Count("item")), 300, 15);
    EXPECT_EQ(Shop->Count("customer"), 150);
    EXPECT_EQ(Shop->Count("vendor WHERE id <> 1"), 12);
    EXPECT_EQ(Shop->Count("PriceList"), 3);
    EXPECT_EQ(Shop->Count("warehouse"), 4);
    EXPECT_EQ(Shop->Count("taxrate WHERE id <> 1"), 4);
    EXPECT_GT(Shop->Count("invoice"), 500);
    EXPECT_GT(Shop->Count("item WHERE noinstock < reorderlevel"), 10);
    EXPECT_GT(Shop->Count("invoice WHERE paid = 0"), 10);
}

TEST_F(DemoShop, GivesEachItemAnEan13OfItsOwn)
{
    std::set<std::string> seen;
    for (const std::string& code : Shop->Column("SELECT barcode FROM item")) {
        ASSERT_EQ(code.size(), 13U);
        int sum = 0;
        for (size_t i = 0; i < code.size(); ++i)
            sum += (code[i] - '0') * (i % 2 ? 3 : 1);
        EXPECT_EQ(sum % 10, 0) << code;
        EXPECT_TRUE(seen.insert(code).second) << code << " twice";
    }
}

TEST_F(DemoShop, GoesOnNumberingWhereTheInventedRowsEnd)
{
    EXPECT_EQ(
        Shop->Column("SELECT invoiceno - (SELECT max(CAST(invoiceno AS INTEGER)) FROM invoice) FROM nextinvoiceno"),
        std::vector<std::string>{"1.0"});
    EXPECT_EQ(Shop->Column("SELECT itemnumber - (SELECT max(CAST(number AS INTEGER)) FROM item) FROM nextitemno"),
        std::vector<std::string>{"1.0"});
}

TEST_F(DemoShop, HasTheVarietyOfARealOne)
{
    EXPECT_GT(Shop->Count("customer WHERE lastname LIKE '%''%'"), 0);
    EXPECT_GT(Shop->Count("customer WHERE firstname GLOB '*[^ -~]*'"), 10);
    EXPECT_GT(Shop->Count("customer WHERE coalesce(businessname, '') = ''"), 30);
    EXPECT_GT(Shop->Count("customer WHERE coalesce(email, '') = ''"), 10);
    EXPECT_GT(Shop->Count("item WHERE length(name) > 150"), 0);
    EXPECT_EQ(Shop->Column("SELECT lower(type) FROM ItemCustomField ORDER BY 1"),
        (std::vector<std::string>{"checkbox", "combobox", "textbox"}));
}

TEST_F(DemoShop, IsTheSameForTheSameSeedOnly)
{
    MakeDatabaseWith(Demo(Folder->filePath("same.mdb"), 1));
    MakeDatabaseWith(Demo(Folder->filePath("other.mdb"), 2));
    EXPECT_EQ(Contents(MadeFile(Folder->filePath("same.mdb"))), Contents(*Shop));
    EXPECT_NE(Contents(MadeFile(Folder->filePath("other.mdb"))), Contents(*Shop));
}

struct Flaw {
    const char* name;
    const char* rows;
};

class DemoShopFlaws : public DemoShop, public testing::WithParamInterface<Flaw> { };

TEST_P(DemoShopFlaws, AreAbsent)
{
    EXPECT_EQ(Shop->Count(GetParam().rows), 0);
}

INSTANTIATE_TEST_SUITE_P(MakeDatabase, DemoShopFlaws,
    testing::Values(Flaw{"InvoiceWithoutCustomer",
                        "invoice WHERE customerid IS NULL OR customerid NOT IN (SELECT id FROM customer)"},
        Flaw{"InvoiceWithoutLine", "invoice WHERE id NOT IN (SELECT invoiceid FROM invoiceline)"},
        Flaw{"InvoiceOutsideTheYear",
            "invoice WHERE submitteddate NOT BETWEEN '2023-06-02 00:00:00' AND '2024-05-31 00:00:00'"},
        Flaw{"ShippedBeforeItWasSold",
            "invoice WHERE shippeddate < submitteddate OR shippeddate > '2024-05-31 00:00:00'"},
        Flaw{"SoldToAStranger",
            "invoice JOIN customer ON customer.id = customerid WHERE customer.submitteddate > invoice.submitteddate"},
        Flaw{"PaidWithoutAMethod", "invoice WHERE paid <> 0 AND paymentmethod IN ('N/A', 'Charge to Account')"},
        Flaw{"LineWithoutInvoice", "invoiceline WHERE invoiceid NOT IN (SELECT id FROM invoice)"},
        Flaw{"ItemTwiceOnAnInvoice", "(SELECT 1 FROM invoiceline GROUP BY invoiceid, itemid HAVING count(*) > 1)"},
        Flaw{"LineThatIsNoCopyOfItsItem",
            "invoiceline AS line LEFT JOIN item ON item.id = itemid LEFT JOIN taxrate ON taxrate.id = "
            "taxrateid WHERE item.name IS NOT line.name OR item.number IS NOT line.number OR taxrate.name IS NOT "
            "taxratename OR "
            "taxrate.percentage IS NOT taxratepercentage"},
        Flaw{"ItemWithoutAPriceInEachList",
            "item WHERE (SELECT count(DISTINCT pricelistid) FROM itempricelist WHERE itemid = item.id) <> 3"},
        Flaw{"PriceOfNoItem", "itempricelist WHERE itemid NOT IN (SELECT id FROM item) OR price <= 0"},
        Flaw{"ItemWithoutItsPlace",
            "item WHERE vendorid NOT IN (SELECT id FROM vendor) OR locationid NOT IN (SELECT id FROM location) "
            "OR subcategoryid NOT IN (SELECT id FROM subcategory) OR taxrateid NOT IN (SELECT id FROM taxrate)"},
        Flaw{"CategoryWithoutANoneRow",
            "category WHERE id NOT IN (SELECT categoryid FROM subcategory WHERE name = 'None')"},
        Flaw{"GroupThatCannotBeSold",
            "itemgroup_item LEFT JOIN item ON item.id = itemid WHERE coalesce(noinstock, 0) < 5"},
        Flaw{"CustomValueThatIsNoOption",
            "ItemCustomFieldData JOIN ItemCustomField ON ItemCustomField.id = ItemCustomFieldID WHERE "
            "type = 'combobox' AND data NOT IN (SELECT option FROM itemCustomFieldOption)"}),
    [](const auto& test) { return test.param.name; });
