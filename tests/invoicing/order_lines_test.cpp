#include "invoicing/add_order_line.h"
#include "invoicing/open_invoice.h"
#include "invoicing/order_lines.h"
#include "support/test.h"

namespace {

class OrderLines : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        OpenInvoice::gCurrentInvoiceId = Invoice(Customer("Ada", "Byron").Add()).Add();
    }
    Table Lines() const { return Rows("SELECT quantity, amount FROM invoiceline ORDER BY id"); }
};

TEST_F(OrderLines, AmountsAreNetOfDiscountAndNothingUnderWarrantyAndTheSameItemKeepsItsFirstPrice)
{
    const int screws = Item("Screws").Stock(10).Add();

    AddNewOrderItemToDB(screws, 3, 0, false, Money("2.5"));
    AddNewOrderItemToDB(screws, 4, 50, true, Money("9.99"));

    EXPECT_EQ(Lines(), Table({{"7", "2.5"}}));
    EXPECT_EQ(Stock(screws), 3);

    OpenInvoice::gCurrentInvoiceId = Invoice(1).Add();
    AddNewOrderItemToDB(screws, 1, 0, false, Money("4"));
    EXPECT_EQ(Lines(), Table({{"7", "2.5"}, {"1", "4"}})) << "another invoice has a line of its own";

    const std::tuple<const char*, double, bool, const char*> sales[] = {{"9.99", 10, false, "8.991"},
        {"9.99", 0, false, "9.99"}, {"9.99", 10, true, "0"}, {"10", -5, false, "10.5"}, {"0.07", 33, false, "0.0469"}};
    for (const auto& [price, discount, warranty, amount] : sales) {
        Run("DELETE FROM invoiceline");
        const int sold = Item("Screws").Stock(10).Add();
        AddNewOrderItemToDB(sold, 2, discount, warranty, Money(price));
        EXPECT_EQ(Lines(), Table({{"2", amount}}));
        EXPECT_EQ(Stock(sold), 8);
    }
}

TEST_F(OrderLines, ANewLineIsASnapshotOfTheItemAndOneThatIsGoneOrHasNoTaxRateAddsNothing)
{
    const int vat = TaxRateRow("VAT", 17.5);
    const int snapped = Item("Screws 'M4'").Number("S-04").Description("Box of 50").Stock(10).TaxRate(vat).Add();

    EXPECT_TRUE(AddNewOrderItemToDB(snapped, 3, 0, false, Money("2.5")));
    Run("UPDATE item SET name = 'Nails', noinstock = 99");
    Run("UPDATE taxrate SET percentage = 20");

    EXPECT_EQ(Rows("SELECT InvoiceID, ItemID, Quantity, Amount, Description, Number, Name, TaxRateName, "
                   "TaxRatePercentage FROM invoiceline"),
        Table({{QString::number(OpenInvoice::gCurrentInvoiceId), QString::number(snapped), "3", "2.5", "Box of 50",
            "S-04", "Screws 'M4'", "VAT", "17.5"}}));
    Run("DELETE FROM invoiceline");
    const int odd = Item("Odd").Stock(4).TaxRate(77).Add();
    EXPECT_TRUE(AddNewOrderItemToDB(4711, 1, 0, false, Money("1")));
    EXPECT_TRUE(AddNewOrderItemToDB(odd, 1, 0, false, Money("1")));
    EXPECT_EQ(Count("invoiceline"), 0);
    EXPECT_EQ(Stock(odd), 4);

    // A list price is rounded as it would be shown.
    const int screws = Item("Screws").Price("1.2345").Add();
    EXPECT_EQ(ListPrice(screws, 1), Money("1.23"));
    EXPECT_EQ(ListPrice(screws, 99), Currency());
    const int line = Line(OpenInvoice::gCurrentInvoiceId, Item("Nails").Stock(1).Add(), 1, "2.5");
    Run("DELETE FROM item");
    DeleteOrderLine(line, 1);
    EXPECT_EQ(Count("invoiceline"), 0);
}

} // namespace
