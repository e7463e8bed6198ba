#include "parties_test.h"

namespace {

class CustomerRecordTest : public FormTest<frmCustomer> {
protected:
    void Open(int customerId)
    {
        frmCustomer::gEditCustomerId = qint16(customerId);
        FormTest::Open();
    }
};

struct Discount {
    const char* typed;
    const char* added;
    const char* edited; ///< nullptr: the statement fails
};

class CustomerDiscountTest : public CustomerRecordTest, public ::testing::WithParamInterface<Discount> { };

} // namespace

TEST_F(CustomerRecordTest, ANewCustomerAndAnEditStoreEachBoxInItsColumn)
{
    const QString columns = "FirstName, LastName, BusinessName, Address1, Address2, City, State, Country, PostCode, "
                            "Phone, Fax, Email, printf('%g', Discount), PriceListID";
    Open(NewRow);
    CheckForm(*form);
    EXPECT_EQ(form->txtDiscount->text(), "0");
    for (QWidget* box : form->Controls())
        if (qobject_cast<QLineEdit*>(box) && box != form->txtDiscount)
            Type(box, box->objectName().mid(3) + "'s");
    Press(form->txtDiscount, Qt::Key_Return);
    QStringList stored{"Firstname's", "Lastname's", "BusinessName's", "Address1's", "Address2's", "City's", "State's",
        "Country's", "Postcode's", "Phone's", "Fax's", "Email's", "0", "NULL"};
    EXPECT_EQ(Rows("SELECT " + columns + " FROM customer"), Table({stored}));

    Open(Single("SELECT id FROM customer").toInt());
    EXPECT_EQ(form->txtEmail->cursorPosition(), 0) << "a long text shows its beginning";
    Type(form->txtFax, "O'F");
    Press(form->txtFax, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    stored[10] = "O'F";
    EXPECT_EQ(Rows("SELECT " + columns + " FROM customer"), Table({stored}));
}

TEST_F(CustomerRecordTest, NullsShowEmptyAndAVanishedRowAsEmptyBoxesThatSaveNothing)
{
    Run("INSERT INTO customer (LastName, Discount) VALUES ('Lee', NULL)");
    const int id = Single("SELECT id FROM customer").toInt();
    Open(id);
    EXPECT_EQ(form->txtFirstname->text() + '|' + form->txtLastname->text() + '|' + form->txtDiscount->text(), "|Lee|0");
    Run("DELETE FROM customer");
    Open(id);
    EXPECT_EQ(form->txtLastname->text() + '|' + form->txtDiscount->text(), "|");
    Click(form->cmdOk);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(Count("customer"), 0);
}

TEST_F(CustomerRecordTest, TheEmailLinkWritesToTheAddressInTheBoxByMouseAndByKey)
{
    Open(NewRow);
    Type(form->txtEmail, "ann@lee.ie");
    for (int i = 0; i < 3; ++i)
        answers.ExpectLink("mailto:ann@lee.ie");
    Click(form->lblEmail);
    form->txtEmail->setFocus();
    Tab();
    EXPECT_TRUE(form->lblEmail->hasFocus());
    Press(form->lblEmail, Qt::Key_Return);
    Press(form->lblEmail, Qt::Key_Space);
    EXPECT_TRUE(form->isVisible()) << "Enter on the link is not OK";
}

TEST_P(CustomerDiscountTest, IsReadAsANumberForANewCustomerAndStandsAsTypedInAnEdit)
{
    const Discount& discount = GetParam();
    const QString stored = "SELECT printf('%g', Discount) FROM customer";
    Open(NewRow);
    Type(form->txtDiscount, discount.typed);
    Click(form->cmdOk);
    EXPECT_EQ(Single(stored), QString(discount.added));

    Run("UPDATE customer SET Discount = 7");
    Open(Single("SELECT id FROM customer").toInt());
    EXPECT_EQ(form->txtDiscount->text(), "7");
    Type(form->txtDiscount, discount.typed);
    const ExpectedEnd end;
    Click(form->cmdOk);
    EXPECT_EQ(end.Description().startsWith("Syntax error"), discount.edited == nullptr)
        << qPrintable(end.Description());
    EXPECT_EQ(Single(stored), QString(discount.edited ? discount.edited : "7"));
}

INSTANTIATE_TEST_SUITE_P(Discounts, CustomerDiscountTest,
    ::testing::Values(Discount{"5%", "0", "0"}, Discount{"-3", "-3", "-3"}, Discount{"1,5", "15", nullptr},
        Discount{"1e2", "100", "100"}, Discount{"abc", "0", "0"}, Discount{"", "0", "0"}, Discount{"$5", "5", nullptr},
        Discount{"1,234.50", "1234.5", nullptr}, Discount{"(5)", "-5", "5"}));
