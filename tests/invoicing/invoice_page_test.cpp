#include "invoicing/invoice_page.h"

#include "invoice_page_fixture.h"
#include "support/form_check.h"

namespace {

class Page : public InvoicePageTest { };

TEST_F(Page, OwesItsUserWhatEveryScreenOwes)
{
    OpenNew();
    CheckScreen(page, page->Controls(), {"lblLabels_26", "lblSecondTax"});
}

TEST_F(Page, ANewInvoiceHasItsRowAtOnceAndNoCustomer)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 123456");
    page->txtBarcode->setText("kept");
    page->txtNotes->SetText("old");
    OpenNew();
    EXPECT_EQ(page->Title(), "New Invoice");
    EXPECT_EQ(page->lblInvoiceNo->text(), "123456");
    EXPECT_EQ(Rows("SELECT id, CustomerID, InvoiceNo, SubmittedDate, StockReturned, Paid, Notes FROM invoice"),
        Table({{QString::number(OpenInvoice::gCurrentInvoiceId), "NULL", "123456", "2026-03-14 10:30:00", "0", "NULL",
            "NULL"}}));
    EXPECT_EQ(Count("customer"), 0);
    EXPECT_EQ(page->txtNotes->Text(), "");
    EXPECT_EQ(page->txtBarcode->text(), "kept");
    EXPECT_TRUE(page->txtFirstname->hasFocus());
    EXPECT_EQ(Single("SELECT invoiceno FROM nextinvoiceno").toDouble(), 123456);
}

TEST_F(Page, AnInvoiceLeftOpenIsTheOneThatNewInvoiceShowsAgain)
{
    OpenNew();
    const qint32 left = OpenInvoice::gCurrentInvoiceId;
    page->hide();
    Open(OpenInvoice::gCurrentInvoiceId);
    EXPECT_EQ(page->Title(), "Edit Invoice");
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, left);
    EXPECT_EQ(Count("invoice"), 1);
}

TEST_F(Page, AnInvoiceThatWasNeverSavedOpensWithoutACustomer)
{
    OpenNew();
    const qint32 unsaved = OpenInvoice::gCurrentInvoiceId;
    OpenInvoice::gCurrentCustomerId = 99;
    Open(unsaved);
    EXPECT_EQ(OpenInvoice::gCurrentCustomerId, -1);
}

TEST_F(Page, AnOldInvoiceComesBackAsItWasSaved)
{
    const int trade = PriceListRow("Trade");
    const int ada = Customer("Ada", "O'Byron").Business("B & Sons").Discount(2.5).PriceList(trade).Add();
    const int invoice = Invoice(ada)
                            .No("00042")
                            .Date(QDate(2025, 7, 4))
                            .Shipped(QDate(2025, 7, 9))
                            .Paid(true)
                            .Warranty(true)
                            .Notes("two\nlines")
                            .PaymentMethod("Cash")
                            .Add();
    Line(invoice, Item("Screws").Number("S-04").TaxRate(TaxRateRow("VAT", 17.5)).Add(), 3, "9.9");
    page->txtAmountPayed->setText("5");
    Open(invoice);

    EXPECT_EQ(page->txtLastname->text() + page->txtBusinessName->text(), "O'ByronB & Sons");
    EXPECT_EQ(page->txtDiscount->text(), "2.5");
    EXPECT_EQ(page->cboPriceList->Text(), "Trade");
    EXPECT_EQ(GridTitles(page->gNewInvoice).at(3), "Trade");
    EXPECT_EQ(page->lblInvoiceNo->text(), "00042");
    EXPECT_EQ(page->lblInvoiceDate->Value()->date(), QDate(2025, 7, 4));
    EXPECT_EQ(page->dtShippedDate->Value()->date(), QDate(2025, 7, 9));
    EXPECT_TRUE(page->chkPaid->isChecked() && page->chkWarrantyInvoice->isChecked());
    EXPECT_EQ(page->txtNotes->Text(), "two\nlines");
    EXPECT_EQ(page->cboPaymentMethod->Text(), "Cash");
    EXPECT_EQ(page->txtAmountPayed->text(), "");
    EXPECT_EQ(
        GridRows(page->gNewInvoice), (QList<QStringList>{{"3", "S-04", "Screws", "$9.90", "VAT (17.5%)", "$34.90"}}));
    EXPECT_EQ(page->lblTotal->text(), "$34.90");
}

TEST_F(Page, ACustomerWithoutPriceListOrRowShowsTheDefaultList)
{
    PriceListRow("Alpha");
    const int ada = Customer("Ada", "Byron").Add();
    Run("UPDATE customer SET PriceListID = NULL, Discount = NULL");
    Open(Invoice(ada).Add());
    EXPECT_EQ(page->cboPriceList->SelectedData(), 1);
    EXPECT_EQ(page->txtDiscount->text(), "0");
    page->cboPriceList->SetListIndex(0);
    page->LoadCustomerDetailsIntoInvoice(4711);
    EXPECT_EQ(page->txtFirstname->text(), "");
    EXPECT_EQ(page->cboPriceList->SelectedData(), 1);
}

TEST_F(Page, AnInvoiceThatIsGoneLeavesThePageAsItWas)
{
    Open(Invoice(Customer("Ada", "Byron").Add()).Add());
    Run("DELETE FROM invoice");
    Open(OpenInvoice::gCurrentInvoiceId);
    EXPECT_EQ(page->Title(), "Edit Invoice");
    EXPECT_EQ(page->txtFirstname->text(), "Ada");
}

TEST_F(Page, AnotherPriceListChangesTheTitleAndNoLine)
{
    PriceListRow("Trade");
    const int invoice = Invoice(Customer("Ada", "Byron").Add()).Add();
    Line(invoice, Item("Screws").Price("Trade", "1").Add(), 1, "9.99");
    Open(invoice);
    Pick(page->cboPriceList, "Trade");
    EXPECT_EQ(GridTitles(page->gNewInvoice).at(3), "Trade");
    EXPECT_EQ(GridRows(page->gNewInvoice).constFirst().at(3), "$9.99");
}

} // namespace
