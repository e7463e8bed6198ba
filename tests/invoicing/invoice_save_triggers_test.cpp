#include "invoice_page_fixture.h"

#include <QDateEdit>

namespace {

struct Typed {
    const char* control;
    const char* text;
    const char* column;
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
    const auto& [control, text, column] = GetParam();
    OpenNew();
    auto* box = Find<QWidget>(page, control);
    Type(box, text);
    EXPECT_NE(Stored(column), text);
    Tab();
    EXPECT_EQ(Stored(column), text);

    // The row exists by now, so the next leaving updates it.
    Type(box, "");
    Type(box, "7.5");
    BackTab();
    EXPECT_EQ(Stored(column), "7.5");
    EXPECT_EQ(Count("customer"), 1);
}

INSTANTIATE_TEST_SUITE_P(Controls, TextTriggers,
    ::testing::Values(Typed{"txtFirstname", "Zoë", "FirstName FROM customer"},
        Typed{"txtLastname", "O'Brien", "LastName FROM customer"},
        Typed{"txtBusinessName", "B & Sons", "BusinessName FROM customer"},
        Typed{"txtAddress1", "1 Quay", "Address1 FROM customer"},
        Typed{"txtAddress2", "Flat #3", "Address2 FROM customer"}, Typed{"txtCity", "Cork", "City FROM customer"},
        Typed{"txtState", "TX", "State FROM customer"}, Typed{"txtPostcode", "01234", "PostCode FROM customer"},
        Typed{"txtCountry", "Ireland", "Country FROM customer"}, Typed{"txtPhone", "555 0100", "Phone FROM customer"},
        Typed{"txtFax", "555 0101", "Fax FROM customer"}, Typed{"txtEmail", "a@b.example", "Email FROM customer"},
        Typed{"txtDiscount", "12.5", "Discount FROM customer"}, Typed{"txtNotes", "It's urgent", "Notes FROM invoice"},
        Typed{"lblInvoiceNo", "A'17", "InvoiceNo FROM invoice"}));

TEST_F(SaveTriggers, ListsAndTicksAreSavedWhenTheFocusLeavesThemAndNotBefore)
{
    const int trade = PriceListRow("Trade");
    OpenNew();
    Type(page->txtDiscount, "ten");
    page->cboPriceList->setFocus();
    EXPECT_EQ(page->txtDiscount->text(), "0") << "no number";
    Pick(page->cboPriceList, "Trade");
    EXPECT_EQ(Stored("PriceListID FROM customer"), "1");
    page->cboPaymentMethod->setFocus();
    EXPECT_EQ(Stored("PriceListID FROM customer"), QString::number(trade));
    Pick(page->cboPaymentMethod, "Cash");
    EXPECT_EQ(Stored("PaymentMethod FROM invoice"), "N/A");
    Tab();
    EXPECT_EQ(Stored("PaymentMethod FROM invoice"), "Cash");
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
    auto* date = Find<QDateEdit>(page, "lblInvoiceDate_date");
    auto* shipped = Find<QCheckBox>(page, "dtShippedDate_check");
    date->setFocus();
    date->setSelectedSection(QDateTimeEdit::DaySection);
    Press(date, Qt::Key_Up);
    EXPECT_EQ(Stored("SubmittedDate FROM invoice"), "2026-03-15 00:00:00");
    EXPECT_EQ(Stored("ShippedDate FROM invoice"), "NULL");
    Click(shipped);
    EXPECT_EQ(Stored("ShippedDate FROM invoice"), "2026-03-14 00:00:00");
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
    Click(page->cmdCloseInvoice);
    EXPECT_EQ(Stored("InvoiceNo FROM invoice"), "00001");
    EXPECT_EQ(timesLeft, 0);
}

} // namespace
