#include "inventory_test.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace {

class ItemDetails : public ItemFormTest {
protected:
    QString Values() const { return ScreenValues(form->Controls()); }
};

QStringList Entries(const ComboBox* combo, const QList<qint64>& data)
{
    for (int i = 0; i < data.size(); ++i)
        EXPECT_EQ(combo->ItemData(i), data[i]) << qPrintable(combo->List(i));
    return Entries(combo);
}

TEST_F(ItemDetails, ANewItemStartsWithTheNextNumberAndNothingChosen)
{
    Run("UPDATE nextitemno SET itemnumber = 42");
    const int tools = CategoryRow("Tools");
    const int shed = WarehouseRow("A Shed");
    VendorRow("Acme");
    Open(NewRow);
    ExpectGolden(Values(), "new_item.txt");
    Entries(form->cboCategory, {1, tools});
    Entries(form->cboWarehouse, {shed, 1});
    EXPECT_TRUE(form->txtFields_3->hasFocus());
    CheckForm(*form);
    Click(form->cmdCancel);
    EXPECT_EQ(Single("SELECT itemnumber FROM nextitemno").toDouble(), 42);
}

TEST_F(ItemDetails, ACategoryPreselectsItsFirstSubCategoryAndAWarehouseNoLocation)
{
    const int tools = CategoryRow("Tools");
    CategoryRow("Empty");
    const int saws = SubCategoryRow(tools, "Saws");
    const int drills = SubCategoryRow(tools, "Drills");
    const int bin = LocationRow(WarehouseRow("Shed"), "Bin 1");
    Open(NewRow);

    Pick(form->cboCategory, "Tools");
    EXPECT_EQ(Entries(form->cboSubCategory, {1, drills, saws}), QStringList({"All Sub-Categories", "Drills", "Saws"}));
    EXPECT_EQ(form->cboSubCategory->Text(), "Drills");
    for (const char* category : {"Empty", "N/A"}) {
        Pick(form->cboCategory, category);
        EXPECT_EQ(Entries(form->cboSubCategory, {1}), QStringList({"All Sub-Categories"}));
        EXPECT_EQ(form->cboSubCategory->ListIndex(), 0);
    }

    Pick(form->cboWarehouse, "Shed");
    EXPECT_EQ(Entries(form->cboStorage, {1, bin}), QStringList({"N/A", "Bin 1"}));
    EXPECT_EQ(form->cboStorage->ListIndex(), 0);
    Pick(form->cboStorage, "Bin 1");
    Pick(form->cboWarehouse, "Default Warehouse");
    EXPECT_EQ(form->cboStorage->Text(), "N/A");
}

TEST_F(ItemDetails, AStoredItemShowsWhole)
{
    const int tools = CategoryRow("Tools");
    SubCategoryRow(tools, "Drills");
    const int saws = SubCategoryRow(tools, "Saws");
    const int bin = LocationRow(WarehouseRow("Shed"), "Bin 1");
    const int trade = PriceListRow("A & B <trade>");
    const int item = Item("Saw")
                         .Number("007")
                         .Barcode("4006381333931")
                         .Description("Sharp.\r\nVery.")
                         .Stock(1234.5)
                         .ReorderLevel(3)
                         .MinStockLevel(2)
                         .SubCategory(saws)
                         .Location(bin)
                         .Vendor(VendorRow("O'Brien"))
                         .TaxRate(TaxRateRow("VAT", 17.5))
                         .Price("1234.5")
                         .Add();
    Run(QString("DELETE FROM ItemPriceList WHERE PriceListID = %1").arg(trade));
    Run("UPDATE item SET WarrantyReturns = NULL");
    Open(item);

    ExpectGolden(Values(), "stored_item.txt");
    EXPECT_EQ(Member<QLabel>("lblPriceList_0")->text(), "A && B <trade>:") << "lists stand in order of name";
    CheckForm(*form);
}

TEST_F(ItemDetails, ALocationWithoutAWarehouseShowsTheDefaultOneAndANullOrALocationThatIsGoneEndsTheProgram)
{
    WarehouseRow("A Shed");
    Open(Item("Saw").Location(LocationRow(0, "Nowhere")).SubCategory(999).Add());
    EXPECT_EQ(form->cboCategory->Text() + form->cboSubCategory->Text(), "") << "the sub-category is gone";
    EXPECT_EQ(form->cboWarehouse->Text() + form->cboStorage->Text(), "Default WarehouseN/A");
    const auto errorOf = [this](const char* column, const char* value) {
        const int item = Item("Saw").Add();
        Run(QString("UPDATE item SET %1 = %2 WHERE id = %3").arg(column, value).arg(item));
        ExpectedEnd end;
        Guarded([&] { Open(item); });
        return end.Number();
    };
    for (const char* level : {"NoInStock", "ReorderLevel", "MinStockLevel"})
        EXPECT_EQ(errorOf(level, "NULL"), 94) << level;
    EXPECT_EQ(errorOf("LocationID", "999"), 3021);
    for (const char* id : {"SubCategoryID", "VendorID", "TaxRateID"})
        EXPECT_EQ(errorOf(id, "NULL"), 0) << id;
    EXPECT_EQ(form->cboCategory->Text() + form->cboVendor->Text() + form->cboTaxRate->Text(), "N/AN/AN/A");

    Run("UPDATE ItemPriceList SET Price = NULL");
    Open(Single("SELECT MAX(id) FROM item").toInt());
    EXPECT_EQ(form->txtPriceList_0->text(), "$0.00");
}

TEST_F(ItemDetails, EnterAfterABarCodeMovesOnAndSavesNothing)
{
    Open(NewRow);
    for (QWidget* control : QList<QWidget*>{form->txtFields_3, form->cboVendor, form->cmdOk}) {
        control->setFocus();
        ScannerTypes("4006381333931");
        EXPECT_EQ(form->txtFields_0->selectedText(), "4006381333931");
    }
    EXPECT_FALSE(form->txtFields_3->text().contains("4006381333931"));
    Press(form->txtFields_0, Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(form->txtPriceList_0->hasFocus());
    Press(form->txtPriceList_0, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Single("SELECT barcode FROM item"), "4006381333931");
}

TEST_F(ItemDetails, FortyPriceListsAndFortyFieldsScrollOnTheScreen)
{
    for (int i = 2; i <= 40; ++i)
        PriceListRow(QString("List %1").arg(i, 2, 10, QChar('0')));
    for (int i = 1; i <= 40; ++i)
        Run(QString("INSERT INTO ItemCustomField (name, type, pos) VALUES ('Field %1', 'text', %1)").arg(i));
    Open(NewRow);

    EXPECT_TRUE(form->screen()->availableGeometry().size().boundedTo(form->size()) == form->size());
    const auto* area = form->findChild<QScrollArea*>();
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);

    // Walking by keyboard brings each control into view, custom fields after the last list.
    form->cboStorage->setFocus();
    Tab();
    EXPECT_EQ(form->focusWidget()->objectName(), "txtCustom_0");
    BackTab();
    const QRect seen(form->cboStorage->mapTo(area->viewport(), QPoint()), form->cboStorage->size());
    EXPECT_TRUE(area->viewport()->rect().contains(seen));
}

} // namespace
