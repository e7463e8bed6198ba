#include "make_database/arguments.h"
#include "make_database/database_maker.h"
#include "make_database/ean13.h"
#include "support/test.h"

namespace {

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
    arguments.today = QDate(2024, 5, 31);
    return arguments;
}

class MakeDatabaseFile : public testing::Test {
protected:
    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    QTemporaryDir m_folder;
};

/// Everything a person reads in the file.
Table ContentsOf(const QString& path)
{
    return PlainRows(path,
        "SELECT number || name || noinstock FROM item UNION ALL "
        "SELECT coalesce(firstname, '') || coalesce(lastname, '') || city FROM customer UNION ALL "
        "SELECT customerid || submitteddate || paymentmethod FROM invoice UNION ALL "
        "SELECT invoiceid || itemid || quantity || amount FROM invoiceline");
}

} // namespace

TEST(MakeDatabaseArguments, AskForSeedRowsOrForALargeFileAndWrongOnesAreToldToTheirAuthor)
{
    EXPECT_EQ(ReadArguments({"shop/db.mdb"}).file, "shop/db.mdb");
    EXPECT_EQ(ReadArguments({"shop/db.mdb"}).contents, Contents::SeedRows);
    const Arguments large =
        ReadArguments(Words("--items 7 --customers 2 --invoices 3 --seed 9 --today 2024-02-29 big.mdb"));
    EXPECT_EQ(large.contents, Contents::LargeFile);
    EXPECT_EQ(large.size.items * 100 + large.size.customers * 10 + large.size.invoices, 723);
    EXPECT_EQ(large.seed, 9U);
    EXPECT_EQ(large.today, QDate(2024, 2, 29));

    for (const char* line : {"", "one.mdb two.mdb", "--demo", "--demonstration db.mdb", "--items db.mdb",
             "--items many db.mdb", "--items -1 db.mdb", "--items 5 --demo db.mdb", "--invoices 5 db.mdb",
             "--seed x --demo db.mdb", "--today 2023-02-29 --demo db.mdb", "--today yesterday --demo db.mdb"})
        EXPECT_THROW(ReadArguments(Words(line)), UsageError) << line;
}

TEST_F(MakeDatabaseFile, NeverTouchesAFileThatIsThereAndALargeOneHasTheRowsThatWereAskedFor)
{
    EXPECT_ANY_THROW(MakeDatabaseWith(Demo(Path("missing/db.mdb"), 1)));
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
    WriteFile(Path("db.mdb"), "a year of work");
    EXPECT_ANY_THROW(MakeDatabaseWith(Demo(Path("db.mdb"), 1)));
    EXPECT_EQ(ReadFile(Path("db.mdb")), "a year of work");
    EXPECT_EQ(Files(), QStringList("db.mdb"));

    Arguments arguments = Demo(Path("large.mdb"), 1);
    arguments.contents = Contents::LargeFile;
    arguments.size = {40, 10, 20};
    MakeDatabaseWith(arguments);
    EXPECT_EQ(PlainRows(arguments.file,
                  "SELECT (SELECT count(*) FROM item), (SELECT count(*) FROM itempricelist), "
                  "(SELECT count(*) FROM customer), invoiceno, "
                  "(SELECT count(*) FROM invoice JOIN customer ON customer.id = customerid), "
                  "(SELECT count(*) FROM invoiceline JOIN item ON item.id = itemid) FROM nextinvoiceno"),
        Table({{"40", "120", "10", "21.0", "20", "100"}}));
}

TEST_F(MakeDatabaseFile, ADemoShopIsASoundOneAndTheSameForTheSameSeedOnly)
{
    const QString shop = Path("db.mdb");
    MakeDatabaseWith(Demo(shop, 1));
    ExpectCases("demo_shop.txt",
        [&shop](const QString&, const QString& query) { return PlainRows(shop, query).value(0).join(' '); });
    EXPECT_EQ(ShopEan13(9'999'999'999), "2099999999998");
    for (const QStringList& row : PlainRows(shop, "SELECT barcode FROM item")) {
        int sum = 0;
        for (int i = 0; i < 13; ++i)
            sum += row[0][i].digitValue() * (i % 2 ? 3 : 1);
        EXPECT_EQ(sum % 10, 0) << row[0].toStdString();
    }
    MakeDatabaseWith(Demo(Path("same.mdb"), 1));
    MakeDatabaseWith(Demo(Path("other.mdb"), 2));
    EXPECT_EQ(ContentsOf(Path("same.mdb")), ContentsOf(shop));
    EXPECT_NE(ContentsOf(Path("other.mdb")), ContentsOf(shop));
}
