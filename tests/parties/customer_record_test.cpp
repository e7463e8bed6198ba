#include "parties/customer_record.h"
#include "support/test.h"

namespace {

class CustomerRecordTest : public FormTest<frmCustomer> {
protected:
    void Open(int customerId)
    {
        frmCustomer::gEditCustomerId = qint16(customerId);
        FormTest::Open();
    }
};

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

TEST_F(CustomerRecordTest, ADiscountIsReadAsANumberForANewCustomerAndStandsAsTypedInAnEdit)
{
    const QString stored = "SELECT printf('%g', Discount) FROM customer";
    const std::tuple<const char*, const char*, const char*> discounts[] = {{"5%", "0", "0"}, {"-3", "-3", "-3"},
        {"1,5", "15", "error"}, {"1e2", "100", "100"}, {"abc", "0", "0"}, {"", "0", "0"}, {"$5", "5", "error"},
        {"1,234.50", "1234.5", "error"}, {"(5)", "-5", "5"}};
    for (const auto& [typed, added, edited] : discounts) {
        Run("DELETE FROM customer");
        Open(NewRow);
        Type(form->txtDiscount, typed);
        Click(form->cmdOk);
        EXPECT_EQ(Single(stored), added);

        Run("UPDATE customer SET Discount = 7");
        Open(Single("SELECT id FROM customer").toInt());
        EXPECT_EQ(form->txtDiscount->text(), "7");
        Type(form->txtDiscount, typed);
        const ExpectedEnd end;
        Click(form->cmdOk);
        const bool isError = end.Description().startsWith("Syntax error");
        EXPECT_EQ(isError ? "error" : Single(stored), edited) << typed;
        EXPECT_TRUE(!isError || Single(stored) == "7");
    }
}
