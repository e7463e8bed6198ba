#include "base/regional.h"
#include "base/settings_store.h"
#include "controls/status_line.h"
#include "exchange/csv_export_commands.h"
#include "exchange/csv_exports.h"
#include "exchange/exchange_test.h"
#include "support/file_size_limit.h"

#include <QApplication>

namespace {

constexpr const char* Failure = "Unable to write to file, please check you have permissions and try again.";

class CsvExportTest : public ExchangeTest {
protected:
    /// Runs an export to this file.
    void RunTo(const QString& file, void (*command)())
    {
        answers.ExpectSaveFile(file);
        command();
    }
};

struct Golden {
    const char* name;
    void (*command)();
    const char* bytes;
};
void PrintTo(const Golden& golden, std::ostream* out)
{
    *out << golden.name;
}

class GoldenExportTest : public CsvExportTest, public ::testing::WithParamInterface<Golden> { };

} // namespace

TEST_P(GoldenExportTest, WritesEachByteAsTold)
{
    for (const char* table : {"item", "ItemPriceList", "customer"})
        Run(QString("DELETE FROM %1").arg(table));
    PriceListRow("Trade \"B\", Web");
    PriceListRow("Club");
    const int lamp = Item("Lamp, 12\"").Barcode("2000009990003").Stock(7.5).Description("two\r\nlines").Add();
    const int rope = Item("Côté Rope").Price("2.50").Price("Club", "1234.5").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1").arg(lamp));
    Run(QString("DELETE FROM ItemPriceList WHERE ItemID = %1 AND PriceListID = 2").arg(rope));
    const int ann = Customer("Ann", "O'Brien").Address("1 \"Dock\" St", "Cork", "T12").Set("boatname", "Gull").Add();
    Run("UPDATE customer SET SubmittedDate = '2026-03-14 00:00:00', IsYachtClubMember = NULL");
    Invoice(ann).No("00002").Notes("said \"yes\"").Date(QDateTime(QDate(2026, 3, 2), QTime(9, 30))).Add();
    Invoice(ann).No("00001").Date(QDate(2026, 3, 1)).Add();
    Run("UPDATE invoice SET Notes = NULL WHERE InvoiceNo = '00001'");
    Run("INSERT INTO Slip (id, name) VALUES (7, 'A7')");
    Run("INSERT INTO Booking (id, customerid, FromDate, ToDate) VALUES (3, 1, '1999-07-04 00:00:00', NULL)");
    Run(QString("UPDATE Booking SET customerid = %1").arg(ann));
    Run("INSERT INTO BookingSlip (bookingid, slipid) VALUES (3, 7)");

    QString told;
    const QObject reader;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, &reader, [&](const QString& text) { told = text; });
    RunTo(File(), GetParam().command);
    EXPECT_EQ(told, "Saved as " + File());
    EXPECT_EQ(Text(), GetParam().bytes);
    Run("UPDATE customer SET IsYachtClubMember = 1");
    EXPECT_NE(TodaysInvoicesCsv().find(R"(,"Yes","A7",)"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Exports, GoldenExportTest,
    ::testing::Values(Golden{"Invoices", ExportInvoices,
                          "id, notes, submitteddate, invoiceno\r\n"
                          "\"2\",\"\",\"3/1/2026\",\"00001\"\r\n"
                          "\"1\",\"said \"yes\"\",\"3/2/2026 9:30:00 AM\",\"00002\"\r\n"},
        Golden{"Inventory", ExportInventory,
            "id, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, NoInStock, name, "
            "description, TaxRateID, Sale Price, Trade \"B\", Web, Club\r\n"
            "\"1\",\"0\",\"0\",\"2000009990003\",\"1\",\"1\",\"1\",\"7.5\",\"Lamp, 12\"\",\"two\r\nlines\",\"1\"\r\n"
            "\"2\",\"0\",\"0\",\"\",\"1\",\"1\",\"1\",\"0\",\"Côté Rope\",\"\",\"1\",\"2.5\",\"1234.5\"\r\n"},
        Golden{"Customers", ExportCustomers,
            "\"FirstName\", \"LastName\", \"Address1\", \"Address2\", \"City\", \"State\", \"PostCode\", \"Country\", "
            "\"Phone\", \"Email\", \"BusinessName\", \"SubmittedDate\"\r\n"
            "\"Ann\",\"O'Brien\",\"1 \"Dock\" St\",\"\",\"Cork\",\"\",\"T12\",\"\",\"\",\"\",\"\",\"3/14/2026\"\r\n"},
        Golden{"Today", ExportTodaysInvoices,
            "\"First Name\", Last Name, Boat Name, Phone, Business Name, Yacht Club Member, Slip, From Date, To "
            "Date\r\n"
            "\"Ann\",\"O'Brien\",\"Gull\",\"\",\"\",\"No\",\"A7\",\"7/4/1999\",\"\"\r\n"}),
    [](const auto& golden) { return std::string(golden.param.name); });

TEST_F(CsvExportTest, EmptyTablesGiveTheHeaderAlone)
{
    Run("DELETE FROM PriceList");
    EXPECT_TRUE(QByteArray::fromStdString(InventoryCsv()).endsWith("description, TaxRateID\r\n"));
    EXPECT_EQ(InvoicesCsv(), "id, notes, submitteddate, invoiceno\r\n");
}

TEST_F(CsvExportTest, NumbersAndDatesAreTheUsers)
{
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    Item("Rope").Price("2.50").Add();
    Invoice(1).No("7").Date(QDate(2026, 12, 31)).Add();
    EXPECT_TRUE(QByteArray::fromStdString(InventoryCsv()).endsWith(",\"1\",\"2,5\"\r\n"));
    EXPECT_TRUE(QByteArray::fromStdString(InvoicesCsv()).endsWith(",\"31.12.2026\",\"7\"\r\n"));
}

TEST_F(CsvExportTest, TheSettingNamesTheEncoding)
{
    const std::pair<const char*, QByteArray> encodings[] = {
        {"", "\"Zo\xc3\xab \xc5\x81\xf0\x9f\x99\x82\""},
        {"no such encoding", "\"Zo\xc3\xab \xc5\x81\xf0\x9f\x99\x82\""},
        {"UTF-8 with BOM", "\xef\xbb\xbf\"Zo\xc3\xab \xc5\x81\xf0\x9f\x99\x82\""},
        {"windows-1252", "\"Zo\xeb ??\""},
        {"ISO-8859-2", "\"Zo\xeb \xa3?\""},
    };
    for (const auto& [name, bytes] : encodings) {
        SaveConfig("Export Encoding", name);
        WriteCsv(File(), QuoteCsvField("Zoë Ł🙂"));
        EXPECT_EQ(Text(), bytes) << name;
    }
}

TEST_F(CsvExportTest, ACancelWritesNothingAndGivesTheMousePointerBack)
{
    for (const auto& command : {ExportInvoices, ExportInventory, ExportCustomers, ExportTodaysInvoices})
        RunTo("", command);
    EXPECT_EQ(Text(), "old file");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(CsvExportTest, OnlyTheInventoryReadsItsRowsBeforeTheOldFileGoes)
{
    for (const char* table : {"PriceList", "customer", "invoice"})
        Run(QString("DROP TABLE %1").arg(table));
    answers.ExpectSaveFile(File());
    answers.ExpectMessage(Failure, Icon::Critical);
    ExportInventory();
    EXPECT_EQ(Text(), "old file");
    for (const auto& command : {ExportInvoices, ExportCustomers}) {
        answers.ExpectSaveFile(File());
        answers.ExpectMessage(Failure, Icon::Critical);
        command();
        EXPECT_EQ(Text(), "no file");
    }
    EXPECT_THROW(RunTo(File(), ExportTodaysInvoices), RuntimeError);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

namespace {
class BadExportTest : public CsvExportTest, public ::testing::WithParamInterface<BadTarget> { };
} // namespace

TEST_P(BadExportTest, IsToldAndNothingElseIsTouched)
{
    const QString path = Folder() + "/" + GetParam().path;
    GetParam().make(path);
    for (const auto& command : {ExportInvoices, ExportInventory, ExportCustomers}) {
        answers.ExpectSaveFile(path);
        answers.ExpectMessage(Failure, Icon::Critical);
        command();
    }
    EXPECT_THROW(RunTo(path, ExportTodaysInvoices), RuntimeError);
    EXPECT_EQ(QFileInfo::exists(path), GetParam().stays);
    EXPECT_EQ(Single("PRAGMA quick_check"), "ok");
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files).filter("written.txt"), QStringList{"written.txt"});
}

INSTANTIATE_TEST_SUITE_P(Targets, BadExportTest, ::testing::ValuesIn(BadTargets));

TEST_F(CsvExportTest, AFullDiskLeavesNothingOfTheFile)
{
    Customer(QString(5000, u'a'), "B").Add();
    const QStringList files = QDir(Folder()).entryList(QDir::Files);
    answers.ExpectSaveFile(File());
    answers.ExpectMessage(Failure, Icon::Critical);
    const FileSizeLimit limit(1000);
    ExportCustomers();
    EXPECT_EQ(Text(), "no file");
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files).size(), files.size() - 1);
}
