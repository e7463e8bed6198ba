#include "invoice_page_fixture.h"
#include "invoicing/add_group_items.h"
#include "invoicing/add_order_item.h"
#include "invoicing/item_quantity.h"

namespace {

class LineCommands : public InvoicePageTest {
protected:
    void SetUp() override
    {
        InvoicePageTest::SetUp();
        screws = Item("Screws").Stock(10).Price("4").Add();
        nails = Item("Nails").Stock(1).Price("7").Add();
        invoice = Invoice(Customer("Ada", "Byron").Discount(25).Add()).No("00009").Add();
    }
    void OpenWithLine(int quantity, const char* amount)
    {
        line = Line(invoice, screws, quantity, amount);
        Open(invoice);
        page->cmdEditOrderItem->setFocus();
    }
    Table Lines() const { return Rows("SELECT quantity, amount FROM invoiceline ORDER BY id"); }
    /// The next save shows by the invoice number: it is changed behind the focus.
    void ChangeNumberUnseen() { page->lblInvoiceNo->setText("saved"); }
    bool WasSaved() const { return Single("SELECT InvoiceNo FROM invoice") == "saved"; }
    void AddKit(const QList<int>& items) const
    {
        Run("INSERT INTO itemgroup (id, name) VALUES (7, 'Kit')");
        for (const int item : items)
            Run(QStringLiteral("INSERT INTO itemgroup_item VALUES (7, %1)").arg(item));
    }

    int screws = 0, nails = 0;
    int invoice = 0, line = 0;
};

TEST_F(LineCommands, AnItemFromTheDialogTakesDiscountAndWarrantyFromThePage)
{
    OpenWithLine(1, "1");
    Run("DELETE FROM invoiceline");
    Press(page->gNewInvoice, Qt::Key_Slash);
    Type(Find<TextBox>(page, "txtFilter"), "zzz");
    ChangeNumberUnseen();
    WhenFormShows<frmAddOrderItem>([](frmAddOrderItem& form) {
        Type(form.txtItemNumber, "");
        Type(form.txtItemName, "Screws");
        Click(form.cmdSearch);
        Type(form.txtQuantityToAdd, "3");
        Type(form.txtItemPrice, "8");
        Click(form.cmdOk);
    });
    Click(page->cmdAddOrderItem);
    EXPECT_EQ(Lines(), Table({{"3", "6"}}));
    EXPECT_EQ(Stock(screws), 7);
    EXPECT_EQ(page->lblTotal->text(), "$18.00");
    EXPECT_TRUE(WasSaved());
    EXPECT_EQ(page->gNewInvoice->ShownRows(), 1) << "the filter does not hide what was added";
    Open(invoice);
    EXPECT_EQ(page->gNewInvoice->Filter(), "");
}

TEST_F(LineCommands, AGroupIsChargedInFullAndWhatIsShortOfStockIsSaid)
{
    const int unpriced = Item("Unpriced").Stock(5).Add();
    Run(QStringLiteral("DELETE FROM itempricelist WHERE itemid = %1").arg(unpriced));
    Run("UPDATE item SET noinstock = 0 WHERE name = 'Nails'");
    AddKit({nails, unpriced, screws});
    Open(invoice);
    Click(page->chkWarrantyInvoice);
    ChangeNumberUnseen();

    ScriptedAnswers answers;
    answers.ExpectMessage("Not all items have enough stock to be added to the invoice.", Icon::Information);
    WhenFormShows<frmAddGroupItems>([](frmAddGroupItems& form) {
        CheckForm(form);
        EXPECT_EQ(GridRows(form.gItemGroups), QList<QStringList>{{"Kit"}});
        Click(form.cmdOk);
    });
    Click(page->cmdAddGroupItems);

    EXPECT_EQ(Lines(), Table({{"1", "4"}})) << "neither discount nor warranty touch a group";
    EXPECT_EQ(Stock(screws), 9);
    EXPECT_EQ(Stock(unpriced), 5);
    EXPECT_TRUE(WasSaved());
}

// The line starts as 3 at 2.345, shown as $2.35, with 10 left in stock.
TEST_F(LineCommands, AnEditedLineMovesTheStockByTheDifference)
{
    const struct {
        const char* quantity;
        const char* price;
        bool ok;
        QStringList stored; ///< the line's quantity and amount, and the stock
    } edits[] = {{"20", "$2.35", true, {"20", "2.35", "-7"}}, {"1", "$1,000.5", true, {"1", "1000.5", "12"}},
        {"4.5", "2", true, {"4", "2", "9"}}, {"0", "2", true, {"0", "2", "13"}}, {"-1", "9", true, {"3", "2.35", "10"}},
        {"few", "9", true, {"3", "2.35", "10"}}, {"9", "9", false, {"3", "2.35", "10"}}};
    for (const auto& edit : edits) {
        SCOPED_TRACE(edit.quantity);
        Run("DELETE FROM invoiceline; UPDATE item SET NoInStock = 10 WHERE name = 'Screws'");
        OpenWithLine(3, "2.345");
        ChangeNumberUnseen();
        WhenFormShows<frmItemQuantity>([&edit](frmItemQuantity& form) {
            CheckForm(form);
            EXPECT_EQ(form.txtQuantityToAdd->selectedText(), "3");
            EXPECT_EQ(form.txtItemPrice->text(), "$2.35");
            Type(form.txtQuantityToAdd, edit.quantity);
            Type(form.txtItemPrice, edit.price);
            Click(edit.ok ? form.cmdOk : form.cmdCancel);
        });
        DoubleClickRow(page->gNewInvoice, 1);
        EXPECT_EQ(Lines(), Table({edit.stored.first(2)}));
        EXPECT_EQ(Stock(screws), edit.stored.last().toDouble());
        EXPECT_TRUE(WasSaved());
        Run("UPDATE invoice SET InvoiceNo = ''");
    }
}

TEST_F(LineCommands, WithoutALineAllOfThemOnlySave)
{
    Open(invoice);
    for (QPushButton* button :
        {page->cmdAddOrderItem, page->cmdAddGroupItems, page->cmdEditOrderItem, page->cmdDeleteOrderItem}) {
        Run("UPDATE invoice SET InvoiceNo = ''");
        ChangeNumberUnseen();
        ScriptedAnswers answers;
        if (button == page->cmdAddOrderItem)
            WhenFormShows<frmAddOrderItem>([](frmAddOrderItem& form) { Click(form.cmdCancel); });
        if (button == page->cmdAddGroupItems) {
            answers.ExpectMessage(
                "No Item Group has been selected. Please select an Item Group to add then try again.", Icon::Critical);
            WhenFormShows<frmAddGroupItems>([](frmAddGroupItems& form) {
                Click(form.cmdOk);
                EXPECT_TRUE(form.isVisible());
                Press(&form, Qt::Key_Escape);
            });
        }
        Click(button);
        EXPECT_EQ(Count("invoiceline"), 0);
        EXPECT_TRUE(WasSaved()) << button->objectName().toStdString();
    }
}

TEST_F(LineCommands, ADeletedLineGivesItsGoodsBackOnYesAndStaysOnNo)
{
    OpenWithLine(3, "2.5");
    ScriptedAnswers answers;
    answers.Expect("Delete item from invoice?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(page->cmdDeleteOrderItem);
    EXPECT_EQ(Count("invoiceline"), 1);

    answers.Expect("Delete item from invoice?", Icon::Question, Buttons::YesNo, Answer::Yes);
    Click(page->cmdDeleteOrderItem);
    EXPECT_EQ(Count("invoiceline"), 0);
    EXPECT_EQ(Stock(screws), 13);
    EXPECT_EQ(page->gNewInvoice->Rows(), 1);
    EXPECT_EQ(page->lblTotal->text(), "$0.00");
}

TEST_F(LineCommands, ACancelledInvoiceGivesEveryLineBackAndGoes)
{
    Line(invoice, nails, 2, "7");
    OpenWithLine(3, "2.5");
    ScriptedAnswers answers;
    answers.Expect("Cancel invoice?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(page->cmdCancelInvoice);
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, invoice);

    answers.Expect("Cancel invoice?", Icon::Question, Buttons::YesNo, Answer::Yes);
    page->txtFirstname->setFocus();
    Press(page->cmdCancelInvoice, Qt::Key_Space);
    EXPECT_EQ(Stock(screws), 13);
    EXPECT_EQ(Stock(nails), 3);
    EXPECT_EQ(Count("invoice") + Count("invoiceline"), 0);
    EXPECT_EQ(Count("customer"), 1) << "putting the page away adds no customer";
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, -1);
    EXPECT_EQ(Single("SELECT invoiceno FROM nextinvoiceno").toDouble(), 1);
    EXPECT_EQ(timesLeft, 1);
}

} // namespace
