#include "exchange/csv_export_commands.h"
#include "exchange/csv_exports.h"
#include "exchange/exchange_test.h"

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

} // namespace

TEST_F(CsvExportTest, WritesEachByteAsTold)
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
    QString written;
    for (const auto& command : {ExportInvoices, ExportInventory, ExportCustomers, ExportTodaysInvoices}) {
        told.clear();
        RunTo(File(), command);
        EXPECT_EQ(told, "Saved as " + File());
        written += QString::fromUtf8(Text()).replace('\r', "\\r") + "==\n";
    }
    ExpectGolden(written, "exports.txt");
    Run("UPDATE customer SET IsYachtClubMember = 1");
    EXPECT_NE(TodaysInvoicesCsv().find(R"(,"Yes","A7",)"), std::string::npos);
}

TEST_F(CsvExportTest, EmptyTablesGiveTheHeaderAloneAndNumbersAndDatesAreTheUsers)
{
    Run("DELETE FROM PriceList");
    EXPECT_TRUE(QByteArray::fromStdString(InventoryCsv()).endsWith("description, TaxRateID\r\n"));
    EXPECT_EQ(InvoicesCsv(), "id, notes, submitteddate, invoiceno\r\n");

    PriceListRow("Sale Price");
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

TEST_F(CsvExportTest, ACancelWritesNothingAndOnlyTheInventoryReadsItsRowsBeforeTheOldFileGoes)
{
    for (const auto& command : {ExportInvoices, ExportInventory, ExportCustomers, ExportTodaysInvoices})
        RunTo("", command);
    EXPECT_EQ(Text(), "old file");

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

TEST_F(CsvExportTest, ABadTargetIsToldAndNothingElseIsTouched)
{
    ForBadTargets([this](const QString& path) {
        for (const auto& command : {ExportInvoices, ExportInventory, ExportCustomers}) {
            answers.ExpectSaveFile(path);
            answers.ExpectMessage(Failure, Icon::Critical);
            command();
        }
        EXPECT_THROW(RunTo(path, ExportTodaysInvoices), RuntimeError);
        EXPECT_EQ(QDir(Folder()).entryList(QDir::Files).filter("written.txt"), QStringList{"written.txt"});
    });
    EXPECT_EQ(Single("PRAGMA quick_check"), "ok");
}

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
