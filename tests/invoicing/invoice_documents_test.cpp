#include "config/secondary_tax.h"
#include "invoicing/invoice_documents.h"
#include "invoicing/invoice_report.h"
#include "invoicing/picking_list.h"
#include "paper/preview_window.h"
#include "paper/report_text.h"
#include "support/test.h"

namespace {
class InvoiceDocuments : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        CurrentPrinter().setPageSize(QPageSize(QPageSize::A4));
        LoadSecondaryTax();
        Run("UPDATE settings SET BusinessName = 'Harbour Hardware', Address1 = '1 Quay Street', Address2 = '', City = "
            "'Portsea', State = 'VIC', PostCode = '3944', Country = NULL, Phone = '03 5555 0100'");
        m_gst = TaxRateRow("GST", 10);
    }

    int AnnsInvoice()
    {
        const int ann = Customer("Ann", "O'Brien")
                            .Business("O'Brien & Daughters")
                            .Address("12 Hill Road", "Sorrento", "3943")
                            .Phone("03 5555 0199")
                            .Add();
        const int invoice = Invoice(ann).No("00042").Date(QDate(2026, 3, 4)).SecondTax("$3.21").Add();
        // Lines stand in the order in which they were entered, whatever that of the items.
        const int rope = Item("Chandler's rope, 12 mm").Number("R12").Add();
        Line(invoice, Item("Screws M4").Number("S-4").TaxRate(m_gst).Add(), 3, "9.99");
        Line(invoice, rope, 20, "1.255");
        return invoice;
    }
    void EnableSecondTax()
    {
        Run("UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'PST', SecondaryTaxPercentage = 6");
        LoadSecondaryTax();
    }
    QString SaveLogo()
    {
        QImage logo(200, 80, QImage::Format_RGB32);
        logo.fill(Qt::darkBlue);
        QString path = Folder() + "/logo.png";
        EXPECT_TRUE(logo.save(path));
        return path;
    }

    int m_gst = 0;
};
} // namespace

TEST_F(InvoiceDocuments, AnInvoiceSaysWhatWasSoldToWhomForHowMuchAndHiddenColumnsKeepTheTotals)
{
    const int invoice = AnnsInvoice();
    for (const auto& [hides, golden] : {std::pair("True", "invoice_hidden_columns.txt"), {"False", "invoice.txt"}}) {
        SaveConfig("HideTaxOnInvoice", hides);
        SaveConfig("HideOurPriceOnInvoice", hides);
        ExpectGolden(ReportText(PrepareInvoice(invoice, false)), golden);
        PrepareInvoice(invoice, true); // of which the next one must show nothing
    }
}

TEST_F(InvoiceDocuments, AWarrantyInvoiceWithSecondTaxAndLogo)
{
    EnableSecondTax();
    Run("UPDATE settings SET Logofilename = '" + SaveLogo() + "'");
    const Report report = PrepareInvoice(AnnsInvoice(), true);
    ExpectGolden(ReportText(report), "warranty_invoice.txt");
    EXPECT_EQ(report.title, "Warranty Invoice 00042");
}

TEST_F(InvoiceDocuments, AnInvoiceWithoutLinesAndWithoutBusinessDetails)
{
    Run("UPDATE settings SET BusinessName = NULL, Address1 = NULL, Address2 = NULL, City = NULL, State = NULL, "
        "PostCode = NULL, Country = NULL, Phone = NULL");
    ExpectGolden(
        ReportText(PrepareInvoice(Invoice(Customer("", "").Add()).No("00007").Add(), false)), "invoice_empty.txt");
    Run("DELETE FROM settings");
    EXPECT_FALSE(ReportText(PrepareInvoice(1, false)).contains("lblBusinessAddress"));
    EXPECT_EQ(GetS(Value(QString("Portsea"))) + GetS(Value(QString())) + GetS(Value()), "Portsea\r\n\r\n");
}

TEST_F(InvoiceDocuments, AnyStoredFontSizePrintsAndTheAddressTakesThePlaceOfAMissingLogoSettingButNotOfAMissingFile)
{
    const int invoice = AnnsInvoice();
    for (const auto& [stored, points] :
        {std::pair("14", 14.0), {"8.25", 8.25}, {"0", 8.25}, {"-3", 8.25}, {"1e9", 72.0}, {"abc", 8.25}, {"", 8.25}}) {
        SaveConfig("InvoiceFontSize", stored);
        Report report = PrepareInvoice(invoice, false);
        EXPECT_EQ(report.Control("Label6").font.points, points) << stored;
        EXPECT_EQ(report.Control("lblDate").font.points, points) << stored;
        EXPECT_TRUE(ReportText(report).contains("GrandTotal: $58.07")) << stored;
    }

    EXPECT_EQ(PrepareInvoice(invoice, false).Control("lblBusinessAddress").left, 0);
    EXPECT_LT(PrepareInvoice(invoice, false).Control("txtName").left, 1500) << "behind the short numbers";
    Run("UPDATE settings SET Logofilename = '" + Folder() + "/gone.png'");
    Report report = PrepareInvoice(invoice, false);
    EXPECT_GT(report.Control("lblBusinessAddress").left, 0);
    EXPECT_TRUE(report.Control("imgLogo").picture.isNull());
}

TEST_F(InvoiceDocuments, LongTextsAndManyLinesStayInTheirPlaces)
{
    EnableSecondTax();
    SecondaryTax::SecondaryTaxName = QString(10'000, 'P');
    Run("UPDATE settings SET BusinessName = '" + QString("Very long ").repeated(25) + "'");
    const int customer = Customer(QString(255, 'F'), "L").Business(QString("Long & Sons ").repeated(20)).Add();
    const int invoice = Invoice(customer).No(QString(255, '9')).SecondTax("$1.00").Add();
    const int item = Item(QString("Endless rope ").repeated(19)).Number(QString(255, 'N')).Add();
    for (int i = 0; i < 200; ++i)
        Line(invoice, item, i, "12345678.9");

    ReportLayout layout(PrepareInvoice(invoice, false), {});
    EXPECT_GT(layout.PageCount(), 10);
    const QString first = PageText(layout.Page(0));
    EXPECT_TRUE(first.contains("txtInvoiceNo: 999") && !first.contains("9 / 9"))
        << "the number on one line, beside its label";
    for (int page = 0; layout.HasPage(page); ++page) {
        const ReportPage sheet = layout.Page(page);
        for (size_t i = 0; i < sheet.items.size(); ++i)
            for (size_t j = 0; j < i; ++j)
                EXPECT_FALSE(
                    sheet.items[i].place.adjusted(1, 1, -1, -1).intersects(sheet.items[j].place.adjusted(1, 1, -1, -1)))
                    << sheet.items[i].control->name.toStdString() << sheet.items[j].control->name.toStdString();
        EXPECT_TRUE(PageText(sheet).contains(QString("Page %1 of ").arg(page + 1)));
    }
    EXPECT_TRUE(PageText(layout.Page(1)).startsWith("repInvoice_Header\n  Line1: -----\n  Label4: Quantity\n"))
        << "the column titles come again";
}

TEST_F(InvoiceDocuments, AmountsFollowTheUsersLocaleAlsoWithoutCents)
{
    const int invoice = Invoice(Customer("Uwe", "Roß").Add()).No("00001").Add();
    Line(invoice, Item("Tea").TaxRate(m_gst).Add(), 2, "1234.5");
    const std::pair<const char*, QStringList> locales[] = {
        {"de_DE", {"txttaxsubtotal: 2.715,90\u00A0€", "txtTaxRatePercentage: 10,0%", "lblDate: 14.03.2026"}},
        {"ja_JP", {"txtAmount: ¥1,235\n", "txttaxsubtotal: ¥2,716\n", "Text1: ¥247\n", "Text2: ¥2,716\n"}}};
    for (const auto& [locale, parts] : locales) {
        SetRegional(QLocale(locale));
        const QString text = ReportText(PrepareInvoice(invoice, false));
        for (const QString& part : parts)
            EXPECT_TRUE(text.contains(part)) << part.toStdString() << " in " << text.toStdString();
    }
}

TEST_F(InvoiceDocuments, ThePickingListTellsWhereTheGoodsLie)
{
    const int invoice = AnnsInvoice();
    const int shelf = LocationRow(WarehouseRow("Back store"), "Shelf 3");
    const int lost = Item("No place").Location(9999).Add();
    const int stored = Item("Anchor").Location(shelf).Add();
    Line(invoice, lost, 1, "5");
    Line(invoice, stored, 2, "7");
    Run(QString("UPDATE item SET name = 'Anchor, galvanised' WHERE id = %1").arg(stored));
    ExpectGolden(ReportText(PreparePickingList(invoice)), "picking_list.txt");
}
