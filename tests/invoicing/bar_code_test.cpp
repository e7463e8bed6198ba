#include "invoice_page_fixture.h"

namespace {

class BarCode : public InvoicePageTest {
protected:
    Table Lines() const { return Rows("SELECT quantity, amount FROM invoiceline ORDER BY id"); }
};

TEST_F(BarCode, EveryScanAddsOneAtTheListPriceNetOfDiscount)
{
    const int trade = PriceListRow("Trade");
    const int screws = Item("Screws").Barcode("4006381333931").Stock(2).Price("3").Price("Trade", "9.994").Add();
    Open(Invoice(Customer("Ada", "Byron").Discount(10).PriceList(trade).Add()).Add());

    Scan("4006381333931");
    EXPECT_EQ(Lines(), Table({{"1", "8.991"}}));
    EXPECT_EQ(page->txtBarcode->text(), "");
    EXPECT_FALSE(page->txtBarcode->isUndoAvailable()) << "the scans of a day gather";
    EXPECT_TRUE(page->txtBarcode->hasFocus());
    Scan("4006381333931");
    EXPECT_EQ(Lines(), Table({{"2", "8.991"}}));
    EXPECT_EQ(GridRows(page->gNewInvoice).constFirst().constFirst(), "2");
    EXPECT_EQ(Stock(screws), 0);

    Scan("4006381333931");
    EXPECT_EQ(Lines(), Table({{"2", "8.991"}})) << "out of stock adds nothing and says nothing";
    EXPECT_EQ(page->txtBarcode->text(), "");

    ScriptedAnswers answers;
    Item("Without code").Barcode("").Stock(1).Add();
    for (const char* code : {"", "999"}) {
        answers.ExpectMessage("Item not found.", Icon::Critical);
        Scan(code);
    }
    EXPECT_TRUE(page->txtBarcode->hasFocus());
    EXPECT_EQ(page->txtBarcode->selectedText(), "999") << "it stands selected for the next scan";
}

TEST_F(BarCode, TheTotalsFollowAScanAndAreStoredWithTheNextSave)
{
    Run("UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'GST & PST', SecondaryTaxPercentage = 5");
    LoadSecondaryTax();
    page->ShowSecondaryTax();
    EXPECT_EQ(page->lblLabels_26->text(), "GST & PST:");
    Item("Screws").Barcode("1").Stock(9).Price("20").Add();
    Item("Spares").Barcode("2").Stock(1).Price("20").Add();
    OpenNew();
    Scan("1");
    Click(page->chkWarrantyInvoice);
    Scan("2");
    EXPECT_EQ(Lines(), Table({{"1", "20"}, {"1", "0"}})) << "under warranty a new line is free";
    Run("UPDATE invoice SET Total2ndTax = '$0.00'");
    EXPECT_EQ(page->lblSecondTax->text(), "$1.00");
    EXPECT_EQ(page->lblTotal->text(), "$21.00");
    Scan("1");
    EXPECT_EQ(Single("SELECT Total2ndTax FROM invoice"), "$0.00");
    page->txtFirstname->setFocus();
    Tab();
    EXPECT_EQ(Single("SELECT Total2ndTax FROM invoice"), "$2.00");
}

TEST_F(BarCode, ACodeWithAQuoteEndsTheProgramAndNothingIsWrittenAfterIt)
{
    OpenNew();
    Type(page->txtFirstname, "Ada");
    page->txtBarcode->setFocus();
    ExpectedEnd end;
    Scan("40'63");
    EXPECT_TRUE(end.Ended());
    Type(page->txtFirstname, "Grace");
    Tab();
    Click(page->cmdCloseInvoice);
    EXPECT_EQ(Single("SELECT FirstName FROM customer"), "Ada");
    EXPECT_EQ(timesLeft, 0);
}

} // namespace
