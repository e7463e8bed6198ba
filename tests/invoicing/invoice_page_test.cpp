#include "invoice_page_fixture.h"
#include "invoicing/invoice_page.h"

namespace {

class Page : public InvoicePageTest {
protected:
    bool SaysThatItIsGone() const
    {
        for (const QLabel* label : page->findChildren<QLabel*>())
            if (label->isVisible() && label->text().startsWith("This invoice no longer exists"))
                return true;
        return false;
    }
};

TEST_F(Page, ANewInvoiceIsEmptyAndTheOneThatNewInvoiceShowsAgain)
{
    page->txtBarcode->setText("kept");
    page->txtNotes->SetText("old");
    page->dtShippedDate->SetValue(QDateTime(QDate(2001, 2, 3), {}));
    OpenNew();
    EXPECT_EQ(page->Title(), "New Invoice");
    EXPECT_EQ(page->lblInvoiceNo->text(), "00001");
    EXPECT_EQ(page->txtNotes->Text() + page->txtBarcode->text(), "kept");
    EXPECT_TRUE(page->txtFirstname->hasFocus());
    EXPECT_EQ(page->dtShippedDate->Value(), std::nullopt);
    Click(Find<QCheckBox>(page, "dtShippedDate_check"));
    EXPECT_EQ(page->dtShippedDate->Value()->date(), QDate(2026, 3, 14)) << "a tick starts from today";

    const qint32 left = OpenInvoice::gCurrentInvoiceId;
    page->hide();
    Open(left);
    EXPECT_EQ(page->Title(), "Edit Invoice");
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, left);
    EXPECT_EQ(Count("invoice"), 1);
}

TEST_F(Page, AnOldInvoiceComesBackAsItWasSaved)
{
    PriceListRow("Alpha");
    const int trade = PriceListRow("Trade");
    const QString longName = QString("B & Sons ").repeated(20);
    const int ada = Customer("Ada", "O'Byron").Business(longName).Discount(2.5).PriceList(trade).Add();
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

    EXPECT_EQ(page->txtBusinessName->cursorPosition(), 0) << "a long text shows its beginning";
    ExpectGolden(ScreenValues(page->Controls()), "old_invoice.txt");
    const QList<QStringList> lines = GridRows(page->gNewInvoice);
    Pick(page->cboPriceList, "Alpha");
    EXPECT_EQ(GridTitles(page->gNewInvoice).at(3), "Alpha");
    EXPECT_EQ(GridRows(page->gNewInvoice), lines) << "the list decides about lines to come";

    Run("UPDATE pricelist SET name = 'Main' WHERE id = 1");
    Run("DELETE FROM pricelist WHERE name = 'Alpha'");
    page->RefillPriceLists();
    EXPECT_EQ(Entries(page->cboPriceList), (QStringList{"Main", "Trade"}));
    EXPECT_EQ(GridTitles(page->gNewInvoice).at(3), "Main") << "in place of the list that is gone";
    Run("UPDATE pricelist SET id = 4711 WHERE name = 'Trade'");
    Run("INSERT INTO pricelist (name) VALUES ('Alpha')");
    Open(invoice);
    EXPECT_EQ(page->cboPriceList->Text(), "Main");
}

TEST_F(Page, WhatAnotherProgramLeftOutCountsAsNothing)
{
    const int invoice = Invoice(Customer("Ada", "Byron").Add()).Add();
    Line(invoice, Item("Screws").Add(), 3, "9.9");
    Run("UPDATE invoice SET SubmittedDate = NULL, InvoiceNo = NULL, PaymentMethod = NULL");
    Run("UPDATE invoiceline SET ItemID = NULL, quantity = NULL, number = NULL, name = NULL, amount = NULL, "
        "taxratename = NULL, taxratepercentage = NULL");
    Open(invoice);
    EXPECT_EQ(page->lblInvoiceDate->Value()->date(), QDate(2026, 3, 14));
    EXPECT_EQ(GridRows(page->gNewInvoice), QList<QStringList>({{"", "", "", "$0.00", " (0%)", "$0.00"}}));
    ScriptedAnswers answers;
    answers.Expect("Delete item from invoice?", Answer::Yes);
    Click(page->cmdDeleteOrderItem);
    EXPECT_EQ(Count("invoiceline"), 0);
}

TEST_F(Page, AnInvoiceThatIsGoneLeavesThePageAsItWasAndIsSaid)
{
    Item("Screws").Barcode("1").Stock(9).Add();
    PriceListRow("Alpha");
    const int ada = Customer("Ada", "Byron").PriceList(PriceListRow("Trade")).Add();
    Open(Invoice(ada).Add());
    EXPECT_FALSE(SaysThatItIsGone());
    Run("DELETE FROM invoice");
    Scan("1");
    EXPECT_TRUE(SaysThatItIsGone());
    Open(Invoice(ada).Add());
    EXPECT_FALSE(SaysThatItIsGone());
    Run("DELETE FROM invoice");
    Open(OpenInvoice::gCurrentInvoiceId);
    EXPECT_EQ(page->Title() + page->txtFirstname->text() + page->cboPriceList->Text(), "Edit InvoiceAdaTrade");
    EXPECT_TRUE(SaysThatItIsGone());
}

TEST_F(Page, OnlyWhatWasTypedAndNotLeftIsSavedBeforeAnotherInvoiceShows)
{
    OpenNew();
    page->SaveWhatIsBeingTyped();
    EXPECT_EQ(Count("customer"), 0) << "a second New Invoice adds no nameless customer";
    Type(page->txtFirstname, "Ada");
    page->SaveWhatIsBeingTyped();
    EXPECT_EQ(Single("SELECT FirstName FROM customer"), "Ada");
    Run("UPDATE customer SET FirstName = 'Grace'");
    page->SaveWhatIsBeingTyped();
    EXPECT_EQ(Single("SELECT FirstName FROM customer"), "Grace") << "saved already";
    Type(page->txtNotes, "Gift");
    page->SaveWhatIsBeingTyped();
    EXPECT_EQ(Single("SELECT Notes FROM invoice"), "Gift");
    Run("UPDATE customer SET FirstName = 'Grace'");
    page->ShowCustomerAnew();
    EXPECT_EQ(page->txtFirstname->text(), "Grace") << "edited in another form meanwhile";
}

TEST_F(Page, AnAccessKeyLeavesTheControlThatHasTheFocusAndGoesBeforeTheMenus)
{
    auto* menus = new QMenuBar(&window);
    menus->addMenu("&Reports");
    menus->show();
    OpenNew();
    Type(page->txtFirstname, "Ada");
    ScriptedAnswers answers;
    for (int time = 0; time < 2; ++time)
        answers.Expect("Clear customer details?", Icon::None, Buttons::YesNo, Answer::No);
    for (int time = 0; time < 2; ++time) {
        page->txtLastname->setFocus();
        Type(page->txtLastname, QString::number(time));
        Press(page->txtLastname, Qt::Key_R, Qt::AltModifier);
        EXPECT_EQ(Single("SELECT LastName FROM customer"), QString::number(time));
        EXPECT_EQ(page->txtLastname->text(), QString::number(time));
        // Qt shows the button pressed for a moment before it clicks.
        EXPECT_TRUE(QTest::qWaitFor([this] { return !page->cmdNewInvoiceCustReset->isDown(); }));
    }
}

} // namespace
