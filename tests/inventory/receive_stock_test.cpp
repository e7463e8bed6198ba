#include "inventory/inventory_list.h"
#include "inventory/receive_stock.h"
#include "inventory_test.h"

namespace {

class ReceiveStock : public FormTest<frmReceiveStock> {
protected:
    /// What a scanner does: keys to whatever has the focus, then Enter.
    void Enter(const QString& keys)
    {
        QTest::keyClicks(QApplication::focusWidget(), keys);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    void Scan(const QString& barcode)
    {
        form->txtBarcode->FocusAll();
        Enter(barcode);
    }
    void Receive(const QString& quantity)
    {
        Type(form->txtAddQuantity, quantity);
        Press(form->txtAddQuantity, Qt::Key_Return);
    }
};

TEST_F(ReceiveStock, AScannerDrivesTheFormAlone)
{
    const int saw = Item("Saw").Barcode("111").Stock(5).Add();
    const int drill = Item("Drill").Barcode("222").Add();
    Open();
    Enter("111");
    EXPECT_TRUE(form->txtAddQuantity->hasFocus());
    EXPECT_EQ(form->gInventory->CurrentRowData(), saw);
    Enter("7");
    EXPECT_TRUE(form->txtBarcode->hasFocus());
    EXPECT_EQ(form->txtAddQuantity->text(), "0");
    EXPECT_EQ(form->gInventory->CurrentRowData(), saw) << "the row stays selected";
    EXPECT_EQ(form->gInventory->TextMatrix(form->gInventory->Row(), 2), "12");
    Enter("222");
    Enter("0.5");
    EXPECT_EQ(Stock(saw), 12);
    EXPECT_EQ(Stock(drill), 0.5);

    EXPECT_EQ(GridRows(form->gInventory), Table({{"", "Drill", "0.5"}, {"", "Saw", "12"}}));
    Run("UPDATE item SET NoInStock = 40 WHERE id = " + QString::number(saw));
    Enter("222");
    Enter("1");
    EXPECT_EQ(GridColumn(form->gInventory, 2), QStringList({"1.5", "40"})) << "another program wrote the other one";
    Run("UPDATE item SET NoInStock = 0.5 WHERE id = " + QString::number(drill));

    answers.ExpectMessage("Item not found.", Icon::Critical);
    Enter("333");
    EXPECT_TRUE(form->txtBarcode->hasFocus());
    EXPECT_EQ(form->txtBarcode->selectedText(), "333");

    Type(form->txtAddQuantity, "9");
    Press(form->gInventory, Qt::Key_Return);
    EXPECT_EQ(Stock(drill), 0.5) << "Enter books in from the quantity box alone";
}

TEST_F(ReceiveStock, AScanInTheQuantityBoxFindsItsItemAndBooksNothing)
{
    const int saw = Item("Saw").Barcode("4006381333931").Stock(5).Add();
    const int drill = Item("Drill").Barcode("100000").Stock(5).Add();
    QString told;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, qApp, [&told](const QString& text) { told = text; });
    Open();
    for (const auto& [code, item] : {std::pair("4006381333931", saw), std::pair("100000", drill)}) {
        ScannerTypes(code);
        EXPECT_TRUE(form->txtAddQuantity->hasFocus());
        EXPECT_EQ(form->txtAddQuantity->selectedText(), "0");
        EXPECT_EQ(form->gInventory->CurrentRowData(), item);
        EXPECT_EQ(told.contains("Nothing of Saw was received"), item == drill);
        HandTypes("3");
    }
    ScannerTypes("100000");
    EXPECT_EQ(form->txtAddQuantity->selectedText(), "3") << "the same item";
    form->txtAddQuantity->setText("0");
    answers.ExpectMessage("Item not found.", Icon::Critical);
    ScannerTypes("4012345678901");
    EXPECT_EQ(form->txtAddQuantity->text(), "0");
    EXPECT_EQ(Single("SELECT sum(NoInStock) FROM item"), "10.0");

    form->txtAddQuantity->selectAll();
    HandTypes("100000\n");
    EXPECT_EQ(Stock(drill), 100005) << "by hand it is a quantity";
    EXPECT_EQ(told, "100000 x Drill received, now 100005");
    form->gInventory->SetFilter("5");
    Receive("4");
    EXPECT_EQ(told, "4 x Drill received, now 100009") << "though the filter hides it now";
    EXPECT_EQ(form->gInventory->CurrentRowData(), drill);
    QObject::disconnect(&StatusLine::Get(), nullptr, qApp, nullptr);
}

TEST_F(ReceiveStock, QuantitiesThatAreNoNumberAreRefusedAndAStockOfNullStaysNullAndAnEmptyListBooksNothing)
{
    Open();
    Receive("5");
    EXPECT_EQ(form->txtAddQuantity->text(), "5") << "nothing was booked";

    Item("Saw").Add();
    Run("UPDATE item SET NoInStock = NULL");
    Open();
    Receive("5");
    EXPECT_EQ(Single("SELECT NoInStock FROM item"), "NULL");
    EXPECT_EQ(form->gInventory->TextMatrix(1, 2), "");
    Run("DELETE FROM item");
    const int saw = Item("Saw").Stock(5).Add();
    Open();
    for (const char* text : {"", "abc", "1 2"}) {
        answers.ExpectMessage(
            "No valid number has been entered to update. Please enter a valid number and try again.", Icon::Critical);
        Receive(text);
        EXPECT_TRUE(form->txtAddQuantity->hasFocus());
    }
    EXPECT_EQ(Stock(saw), 5);
    Receive("-2.5");
    EXPECT_EQ(Stock(saw), 2.5);
    Receive("(2)");
    EXPECT_EQ(Stock(saw), 4.5) << "brackets only group in a statement";
    Receive("0");
    EXPECT_EQ(Stock(saw), 4.5);
}

TEST_F(ReceiveStock, EntriesThatTheStatementCannotTakeEndTheProgramWithNothingWritten)
{
    const int saw = Item("Saw").Barcode("111").Stock(5).Add();
    const auto expectEnd = [&](const char* box, const char* text) {
        Open();
        ExpectedEnd end;
        Type(Find<TextBox>(form.get(), box), text);
        Press(Find<TextBox>(form.get(), box), Qt::Key_Return);
        EXPECT_TRUE(end.Ended()) << text;
        EXPECT_EQ(Stock(saw), 5) << text;
    };
    expectEnd("txtBarcode", "O'Brien");
    expectEnd("txtBarcode", "' OR '1'='1'; DELETE FROM item");
    for (const char* quantity : {"1,000", "$5", "5-"})
        expectEnd("txtAddQuantity", quantity);
}

TEST_F(ReceiveStock, OddBarCodesAreLookedUpAsTheyAre)
{
    const int empty = Item("Empty code").Barcode("").Add();
    const int percent = Item("Percent").Barcode("50%").Add();
    Open();
    for (const QString& missing : {QString("%"), QString("5_%"), QString(300, '7')}) {
        answers.ExpectMessage("Item not found.");
        Scan(missing);
    }
    Scan("50%");
    EXPECT_EQ(form->gInventory->CurrentRowData(), percent);
    Type(form->txtBarcode, "");
    Enter("");
    EXPECT_EQ(form->gInventory->CurrentRowData(), empty);
}

TEST_F(ReceiveStock, ListsEveryItemOnceAndTheMainListShowsTheOldLevelUntilItsNextLoad)
{
    Item("Saw").Number("2").Stock(1.5).TaxRate(999).Add(); // without a tax rate
    Item("drill").Number("1").Stock(5).Add();
    InventoryList list;
    list.RefillInvoicePriceLists();
    list.RefreshInventoryList(1, 0);
    Open();
    CheckForm(*form);
    EXPECT_EQ(GridRows(form->gInventory), Table({{"1", "drill", "5"}, {"2", "Saw", "1.5"}}));
    Receive("3");
    Click(form->cmdCancel);
    EXPECT_EQ(list.gInventory->TextMatrix(1, 4), "5");
    list.RefreshInventoryList(1, 0);
    EXPECT_EQ(list.gInventory->TextMatrix(1, 4), "8");
}

} // namespace
