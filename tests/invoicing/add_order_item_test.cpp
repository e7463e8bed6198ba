#include "invoicing/add_order_item.h"
#include "invoicing/item_search.h"
#include "support/test.h"

namespace {

class AddOrderItem : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        frmAddOrderItem::SelectedItemID = -1;
        frmAddOrderItem::SelectedItemQuantity = 0;
        frmAddOrderItem::SelectedItemPrice = Currency();
        tools = CategoryRow("Tools");
        hand = SubCategoryRow(tools, "Hand tools");
        power = SubCategoryRow(tools, "Power tools");
        trade = PriceListRow("Trade");
        hammer = Item("Hammer").Number("H-1").Description("steel").Stock(5).Price("12.50").SubCategory(hand).Add();
        drill = Item("Drill").Number("D-1").Description("for O'Brien").Stock(2).Price("99").SubCategory(power).Add();
        Run("UPDATE itempricelist SET price = 80 WHERE price = 0 AND itemid = (SELECT max(id) FROM item)");
        Item("Glue").Number("G-1").Description("steel and wood").Stock(0).Price("3").SubCategory(1).Add();
        Run("DELETE FROM itempricelist WHERE itemid = (SELECT max(id) FROM item) AND pricelistid <> 1");
    }

    std::unique_ptr<frmAddOrderItem> Form(qint64 priceList = 1) const
    {
        auto form = std::make_unique<frmAddOrderItem>(priceList, nullptr);
        Shown(form.get());
        return form;
    }
    /// The names of the items found, sorted: the statement leaves their order open.
    static QStringList Found(const frmAddOrderItem& form)
    {
        QStringList names = GridColumn(form.gItems, 1);
        names.sort();
        return names;
    }
    static void SelectItem(frmAddOrderItem& form, const QString& name)
    {
        ClickRow(form.gItems, 1 + int(GridColumn(form.gItems, 1).indexOf(name)));
    }

    int tools = 0, hand = 0, power = 0, trade = 0;
    int hammer = 0, drill = 0;
};

TEST_F(AddOrderItem, OpensWithAllItemsAtThePricesOfTheInvoicesList)
{
    const auto form = Form(trade);
    EXPECT_EQ(form->cboPriceList->Text(), "Trade");
    EXPECT_EQ(Found(*form), (QStringList{"Drill", "Glue", "Hammer"}));
    EXPECT_EQ(form->lblItemMatches->text(), "3 Item Matches:");
    EXPECT_EQ(form->txtQuantityToAdd->text(), "1");
    EXPECT_EQ(form->gItems->Row(), 1);
    EXPECT_EQ(form->txtItemPrice->text(), form->gItems->TextMatrix(1, 4));
    SelectItem(*form, "Drill");
    EXPECT_EQ(GridRows(form->gItems).at(form->gItems->Row() - 1),
        (QStringList{"D-1", "Drill", "for O'Brien", "2", "$80.00"}));
    SelectItem(*form, "Glue");
    EXPECT_EQ(form->txtItemPrice->text(), "$0.00") << "an item without a price in the list";
    ClickRow(form->gItems, 1);
    Press(form->gItems, Qt::Key_Down);
    EXPECT_EQ(form->txtItemPrice->text(), form->gItems->TextMatrix(2, 4)) << "the price follows the arrow keys";
    CheckForm(*form);

    const auto other = Form(4711);
    EXPECT_EQ(other->cboPriceList->SelectedData(), 1) << "the list was deleted";
    Pick(other->cboPriceList, "Trade");
    Click(other->cmdSearch);
    EXPECT_EQ(GridRows(other->gItems), GridRows(form->gItems)) << "the same search at other prices";
}

TEST_F(AddOrderItem, SearchesByCategoryAndByEnterInAField)
{
    const auto form = Form();
    EXPECT_EQ(Entries(form->cboCategory), (QStringList{"All Categories", "No Category", "Tools"}));
    EXPECT_EQ(Entries(form->cboSubCategory), QStringList{"All Sub-Categories"});
    Pick(form->cboCategory, "Tools");
    EXPECT_EQ(Entries(form->cboSubCategory), (QStringList{"All Sub-Categories", "Hand tools", "Power tools"}));
    EXPECT_EQ(Found(*form).size(), 3) << "only the button searches";
    Click(form->cmdSearch);
    EXPECT_EQ(Found(*form), (QStringList{"Drill", "Hammer"}));
    Pick(form->cboSubCategory, "Hand tools");
    Click(form->cmdSearch);
    EXPECT_EQ(Found(*form), QStringList{"Hammer"});
    Pick(form->cboCategory, "No Category");
    EXPECT_EQ(form->cboSubCategory->Text(), "All Sub-Categories");
    Click(form->cmdSearch);
    EXPECT_EQ(Found(*form), QStringList{"Glue"});

    Pick(form->cboCategory, "All Categories");
    Type(form->txtItemDescription, "o'brien");
    Press(form->txtItemDescription, Qt::Key_Return);
    EXPECT_EQ(Found(*form), QStringList{"Drill"});
    EXPECT_EQ(form->txtItemPrice->text(), "$99.00");
    Type(form->txtItemDescription, "nothing like it");
    Press(form->txtItemDescription, Qt::Key_Return);
    EXPECT_EQ(form->lblItemMatches->text(), "0 Item Matches:");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(AddOrderItem, ATypedPriceOverridesTheListAndEnterAddsTheItem)
{
    const auto form = Form();
    SelectItem(*form, "Hammer");
    EXPECT_EQ(form->txtItemPrice->text(), "$12.50");
    Type(form->txtItemPrice, "$10.25");
    Type(form->txtQuantityToAdd, "2.5");
    Press(form->txtQuantityToAdd, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, hammer);
    EXPECT_EQ(frmAddOrderItem::SelectedItemQuantity, 2) << "half to even";
    EXPECT_EQ(frmAddOrderItem::SelectedItemPrice, Money("10.25"));

    const auto again = Form();
    Type(again->txtQuantityToAdd, "abc");
    Type(again->txtItemPrice, "dear");
    Click(again->cmdOk);
    EXPECT_EQ(frmAddOrderItem::SelectedItemQuantity, 1) << "bad numbers count as one piece at no price";
    EXPECT_EQ(frmAddOrderItem::SelectedItemPrice, Currency());
}

TEST_F(AddOrderItem, MoreThanIsInStockIsRefused)
{
    ScriptedAnswers answers;
    const auto form = Form();
    SelectItem(*form, "Drill");
    Type(form->txtQuantityToAdd, "3");
    answers.ExpectMessage(
        "This item does not have enough items in stock. To add this item first increase the total number in stock.",
        Icon::Critical);
    Click(form->cmdOk);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, -1);
    Type(form->txtQuantityToAdd, "2");
    DoubleClickRow(form->gItems, form->gItems->Row());
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, drill);
    EXPECT_EQ(frmAddOrderItem::SelectedItemQuantity, 2);
}

TEST_F(AddOrderItem, CancelSelectsNothingAndAnEmptyListItemNought)
{
    auto form = Form();
    frmAddOrderItem::SelectedItemID = 7;
    Press(form->txtItemName, Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, -1);

    form = Form();
    form->gItems->SetFilter("zzz");
    Click(form->cmdOk);
    EXPECT_TRUE(form->isVisible()) << "the filter hides all items";
    Type(form->txtItemName, "no such item");
    Click(form->cmdSearch);
    Click(form->cmdOk);
    EXPECT_EQ(frmAddOrderItem::SelectedItemID, 0);
}

TEST(ItemSearchStatements, EndInTheClausesOfTheFieldsThatAreFilled)
{
    const QString head =
        "SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category "
        "WHERE (item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id) ";
    const std::pair<ItemSearch, QString> searches[] = {{{}, " AND item.id = item.id "},
        {{"screw", "", ""}, " AND item.name LIKE '%screw%'"}, {{"", "", "A-1"}, " AND [number] LIKE '%A-1%'"},
        {{"screw", "brass", ""}, " AND item.name LIKE '%screw%' OR description LIKE '%brass%'"},
        {{"a", "b", "c", 5, 2},
            " AND item.name LIKE '%a%' OR description LIKE '%b%' OR [number] LIKE '%c%' AND  subcategoryid = 5"},
        {{"", "", "", 0, 2}, " AND  category.id = 2"}, {{"O'Brien's", "", ""}, " AND item.name LIKE '%O''Brien''s%'"},
        {{"{description}", "{name}", ""}, " AND item.name LIKE '%{description}%' OR description LIKE '%{name}%'"}};
    for (const auto& [search, clauses] : searches)
        EXPECT_EQ(ItemSearchStatement(search).Filled(), head + clauses);
}

} // namespace
