#include "inventory_test.h"

namespace {

class ItemSave : public ItemFormTest {
protected:
    Table SavedItem() const
    {
        return Rows("SELECT Number, Name, Description, Barcode, LocationID, SubCategoryID, VendorID, TaxRateID, "
                    "CAST(NoInStock AS TEXT), CAST(ReorderLevel AS TEXT), CAST(MinStockLevel AS TEXT), "
                    "CAST(WarrantyReturns AS TEXT) FROM item ORDER BY id DESC LIMIT 1");
    }
    Table Prices() const
    {
        return Rows("SELECT PriceListID, ItemID, printf('%.4f', Price) FROM ItemPriceList WHERE ItemID = (SELECT "
                    "MAX(id) FROM item) ORDER BY 1");
    }
};

TEST_F(ItemSave, AnEmptyNewItemIsSavedWithDefaultsAndTheProposedNumber)
{
    const int trade = PriceListRow("Trade");
    Run("UPDATE nextitemno SET itemnumber = 42");
    Open(NewRow);
    for (NumberBox* price : {form->txtPriceList_0, Member<NumberBox>("txtPriceList_1")})
        Type(price, "");
    SaveAndClose();

    EXPECT_EQ(SavedItem(), Table({{"42", "No Name", "", "", "1", "1", "1", "1", "0.0", "0.0", "0.0", "0.0"}}));
    EXPECT_EQ(Single("SELECT id FROM item"), QString::number(frmItemDetails::gEditItemId));
    const QString id = QString::number(frmItemDetails::gEditItemId);
    EXPECT_EQ(Prices(), Table({{"1", id, "0.0000"}, {QString::number(trade), id, "0.0000"}}));
    EXPECT_EQ(Single("SELECT itemnumber FROM nextitemno").toDouble(), 43);
}

TEST_F(ItemSave, AllFieldsOfAnEditedItemAreWritten)
{
    const int tools = CategoryRow("Tools");
    const int saws = SubCategoryRow(tools, "Saws");
    const int shed = WarehouseRow("Shed");
    const int bin = LocationRow(shed, "Bin 1");
    const int vat = TaxRateRow("VAT", 17.5);
    VendorRow("Acorn"); // so that no two ids are alike
    const int acme = VendorRow("Acme");
    const int trade = PriceListRow("Trade");
    Item("Without number or bar code").Add();
    const int item = Item("{number}").Number("1").Price("3").Add();
    Run(QString("DELETE FROM ItemPriceList WHERE PriceListID = %1").arg(trade));
    Open(item);
    Pick(form->cboCategory, "Tools");
    Pick(form->cboWarehouse, "Shed");
    Pick(form->cboStorage, "Bin 1");
    Pick(form->cboTaxRate, "VAT");
    Pick(form->cboVendor, "Acme");
    Type(form->txtFields_6, "-2.5");
    Type(form->txtFields_7, "lots");
    Type(form->txtFields_4, "1e2");
    Type(form->txtFields_2, "");
    Type(form->txtPriceList_0, "$1,234.5");
    Type(Member<TextBox>("txtPriceList_1"), "gratis");
    SaveAndClose();

    EXPECT_EQ(SavedItem(),
        Table({{"1", "{number}", "", "", QString::number(bin), QString::number(saws), QString::number(acme),
            QString::number(vat), "-2.5", "0.0", "100.0", "0.0"}}));
    EXPECT_EQ(Prices(),
        Table({{"1", QString::number(item), "1234.5000"}, {QString::number(trade), QString::number(item), "0.0000"}}));
}

TEST_F(ItemSave, NumberBarCodeAndNameInUseAreAskedForInThisOrder)
{
    Item("saw").Number("o'7").Barcode("400").Add();
    Open(NewRow);
    Type(form->txtFields_3, "O'7");
    Type(form->txtFields_0, "400");
    Type(form->txtFields_5, "Saw");
    Type(form->txtFields_6, "many");

    const QString number = "The Item Number is already in use. Continue anyway?";
    const QString barcode = "The Barcode is already in use. Continue anyway?";
    const QString name = "The Name is already in use. Continue anyway?";
    QStringList answeredYes;
    for (const QString& question : {number, barcode, name}) {
        for (const QString& before : answeredYes)
            answers.Expect(before, Answer::Yes);
        answers.Expect(
            question, Icon::Exclamation, Buttons::YesNoCancel, question == number ? Answer::Cancel : Answer::No);
        Click(form->cmdOk);
        answeredYes.append(question);
    }
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(Count("item"), 1);
    EXPECT_EQ(form->txtFields_6->text(), "many") << "entries are repaired after the last question";

    for (const QString& question : answeredYes)
        answers.Expect(question, Answer::Yes);
    SaveAndClose();
    EXPECT_EQ(Count("item"), 2);
}

TEST_F(ItemSave, NumbersAreReadByTheNumberRulesInANewItemAndByTheStatementInAnEditedOne)
{
    const std::tuple<const char*, const char*, const char*> numbers[] = {{"1e3", "1000.0", "1000.0"},
        {"(5)", "-5.0", "5.0"}, {" 7 ", "7.0", "7.0"}, {"\u0663", "0.0", "0.0"}, {"1,234", "1234.0", "the end"},
        {"$ 3", "3.0", "the end"}, {"5-", "-5.0", "the end"}};
    for (const auto& [text, inNewItem, inEditedItem] : numbers) {
        SCOPED_TRACE(text);
        Run("DELETE FROM item");
        Open(NewRow);
        Type(form->txtFields_6, text);
        SaveAndClose();
        EXPECT_EQ(SavedItem()[0][8], inNewItem);

        Open(frmItemDetails::gEditItemId);
        Type(form->txtFields_6, text);
        Type(form->txtPriceList_0, "99");
        ExpectedEnd end;
        Click(form->cmdOk);
        EXPECT_EQ(end.Ended() ? "the end" : SavedItem()[0][8], inEditedItem);
        EXPECT_TRUE(!end.Ended() || SavedItem()[0][8] == inNewItem);
        EXPECT_EQ(Prices()[0][2], end.Ended() ? "0.0000" : "99.0000") << "nothing is written after the failure";
    }
}

TEST_F(ItemSave, TextsOfAnyKindAreStoredWholeUpToTheirLengthInANewItemAndInAnEditedOne)
{
    const QString odd = QString::fromUtf8("O'Zoë's \xF0\x9F\xAA\x9A 50% [a] #1# \"x\" ") + QChar(1) + "\t{name}";
    const QString lines = "it's\r\ntwo\nthree" + QString(300, 'x');
    const Table stored{{"N'1", odd, lines.left(255), "''" + QString(48, '7')}};
    const auto save = [&](qint32 item) {
        Open(item);
        Type(form->txtFields_3, "N'1");
        form->txtFields_5->setText(odd);
        form->txtFields_1->SetText(lines);
        form->txtFields_0->setText("''" + QString(60, '7'));
        SaveAndClose();
        EXPECT_EQ(Rows("SELECT Number, Name, Description, Barcode FROM item"), stored);
        EXPECT_EQ(Single("SELECT itemnumber FROM nextitemno").toDouble(), 2) << "raised once, though typed over";
    };
    save(NewRow);
    Run("UPDATE item SET Number = 'x', Name = '{locationId}', Description = 'x', Barcode = 'x'");
    save(frmItemDetails::gEditItemId);
    Open(frmItemDetails::gEditItemId);
    EXPECT_EQ(form->txtFields_5->text(), odd);
    EXPECT_EQ(form->txtFields_1->Text(), lines.left(255));
}

TEST_F(ItemSave, WhatTheRecordShowsIsSavedAgainInEveryLengthAndLocale)
{
    const QString description(400, 'x');
    Open(Item("Yacht").Number("1").Price("-123456.78").Stock(1234567.125).Description(description).Add());
    SaveAndClose();
    EXPECT_EQ(Prices()[0][2], "-123456.7800");
    EXPECT_EQ(SavedItem()[0][8], "1234567.125");
    EXPECT_EQ(SavedItem()[0][2], description);

    SetRegional(QLocale("de_DE"));
    Open(Item("Draht").Stock(2.5).Price("1.25").Add());
    EXPECT_EQ(form->txtFields_6->text(), "2,5");
    Type(form->txtFields_7, "1.000,75");
    SaveAndClose();
    EXPECT_EQ(SavedItem()[0].mid(8, 2), QStringList({"2.5", "1000.75"}));
    EXPECT_EQ(Prices()[0][2], "1.2500");
}

} // namespace
