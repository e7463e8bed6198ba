#include "invoice_page_fixture.h"

#include <QDateEdit>

namespace {

struct Typed {
    const char* control;
    const char* text;
    const char* column;
    const char* stored;
};
void PrintTo(const Typed& typed, std::ostream* out)
{
    *out << typed.control;
}

class SaveTriggers : public InvoicePageTest {
protected:
    /// The value of a column of the only customer or of the invoice.
    QString Stored(const QString& column) const { return Single("SELECT " + column); }
};
class TextTriggers : public SaveTriggers, public ::testing::WithParamInterface<Typed> { };

TEST_P(TextTriggers, WriteThroughWhenTheFocusLeaves)
{
    const auto& [control, text, column, stored] = GetParam();
    OpenNew();
    auto* box = Find<QWidget>(page, control);

    Type(box, text);
    EXPECT_NE(Stored(column), stored);
    Tab();
    EXPECT_EQ(Stored(column), stored);

    // The row exists by now, so the next leaving updates it.
    Type(box, "");
    Type(box, text);
    BackTab();
    EXPECT_EQ(Stored(column), stored);
    EXPECT_EQ(Count("customer"), 1);
}

INSTANTIATE_TEST_SUITE_P(Controls, TextTriggers,
    ::testing::Values(Typed{"txtFirstname", "Zoë", "FirstName FROM customer", "Zoë"},
        Typed{"txtLastname", "O'Brien {first}", "LastName FROM customer", "O'Brien {first}"},
        Typed{"txtBusinessName", "'Quote''s'", "BusinessName FROM customer", "'Quote''s'"},
        Typed{"txtAddress1", "1 Quay", "Address1 FROM customer", "1 Quay"},
        Typed{"txtAddress2", "Flat #3", "Address2 FROM customer", "Flat #3"},
        Typed{"txtCity", "Cork", "City FROM customer", "Cork"}, Typed{"txtState", "TX", "State FROM customer", "TX"},
        Typed{"txtPostcode", "01234", "PostCode FROM customer", "01234"},
        Typed{"txtCountry", "Ireland", "Country FROM customer", "Ireland"},
        Typed{"txtPhone", "555 0100", "Phone FROM customer", "555 0100"},
        Typed{"txtFax", "555 0101", "Fax FROM customer", "555 0101"},
        Typed{"txtEmail", "a@b.example", "Email FROM customer", "a@b.example"},
        Typed{"txtDiscount", "12.5", "Discount FROM customer", "12.5"},
        Typed{"txtNotes", "It's urgent", "Notes FROM invoice", "It's urgent"},
        Typed{"lblInvoiceNo", "A'17", "InvoiceNo FROM invoice", "A'17"}));

TEST_F(SaveTriggers, ADiscountThatIsNoNumberBecomesZero)
{
    OpenNew();
    Type(page->txtDiscount, "ten");
    Tab();
    EXPECT_EQ(page->txtDiscount->text(), "0");
    EXPECT_EQ(Stored("Discount FROM customer").toDouble(), 0);
}

TEST_F(SaveTriggers, ListsAreSavedWhenTheFocusLeavesThem)
{
    const int trade = PriceListRow("Trade");
    OpenNew();
    Type(page->txtFirstname, "Ada");
    page->cboPriceList->setFocus();
    Pick(page->cboPriceList, "Trade");
    EXPECT_EQ(Stored("PriceListID FROM customer"), "1");
    page->cboPaymentMethod->setFocus();
    EXPECT_EQ(Stored("PriceListID FROM customer"), QString::number(trade));
    Pick(page->cboPaymentMethod, "Cash");
    EXPECT_EQ(Stored("PaymentMethod FROM invoice"), "N/A");
    Tab();
    EXPECT_EQ(Stored("PaymentMethod FROM invoice"), "Cash");
}

TEST_F(SaveTriggers, ATickIsSavedWhenTheFocusLeavesItsBoxAndNotBefore)
{
    OpenNew();
    page->txtCity->setFocus();
    for (auto [box, column] :
        {std::pair(page->chkPaid, "Paid"), std::pair(page->chkWarrantyInvoice, "WarrantyInvoice")}) {
        const QString stored = QStringLiteral("coalesce(%1, 0) <> 0 FROM invoice").arg(column);
        Click(box);
        EXPECT_EQ(Stored(stored), "0") << column;
        Tab();
        EXPECT_EQ(Stored(stored), "1") << column;
    }
}

TEST_F(SaveTriggers, ADateIsSavedAsSoonAsItChangesAndNoShippingDateIsNull)
{
    OpenNew();
    EXPECT_EQ(Stored("SubmittedDate FROM invoice"), "2026-03-14 10:30:00");
    auto* date = Find<QDateEdit>(page, "lblInvoiceDate_date");
    auto* shipped = Find<QCheckBox>(page, "dtShippedDate_check");

    date->setFocus();
    date->setSelectedSection(QDateTimeEdit::DaySection);
    Press(date, Qt::Key_Up);
    EXPECT_EQ(Stored("SubmittedDate FROM invoice"), "2026-03-15 00:00:00");
    EXPECT_EQ(Stored("ShippedDate FROM invoice"), "NULL");
    Click(shipped);
    EXPECT_TRUE(Stored("ShippedDate FROM invoice").startsWith("20"));
    Click(shipped);
    EXPECT_EQ(Stored("ShippedDate FROM invoice"), "NULL");
}

TEST_F(SaveTriggers, SwitchingToAnotherPanelSavesTheControlLeft)
{
    OpenNew();
    Type(page->txtFirstname, "Grace");
    page->hide();
    EXPECT_EQ(Stored("FirstName FROM customer"), "Grace");
}

TEST_F(SaveTriggers, AnAmountOfMoneyTakesItsCurrencyFormAndIsNotStored)
{
    OpenNew();
    for (auto [typed, shown] :
        {std::pair("1234.5", "$1,234.50"), std::pair("lots", "lots"), std::pair("1e300", "1e300")}) {
        Type(page->txtAmountPayed, typed);
        Tab();
        EXPECT_EQ(page->txtAmountPayed->text(), shown);
    }
}

TEST_F(SaveTriggers, ADiscountThatTheStatementCannotTakeEndsTheProgramBeforeTheInvoiceIsWritten)
{
    OpenNew();
    Tab();
    Type(page->lblInvoiceNo, "77");
    ExpectedEnd end;
    // A number to the screen's check, not one to the statement.
    page->txtDiscount->setText("$5");
    Tab();
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(Stored("InvoiceNo FROM invoice"), "00001");
    Click(page->cmdCloseInvoice);
    EXPECT_EQ(Stored("InvoiceNo FROM invoice"), "00001");
    EXPECT_EQ(timesLeft, 0);
}

} // namespace
