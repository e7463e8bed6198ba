#include "invoice_page_fixture.h"

namespace {

class SaveTriggers : public InvoicePageTest {
protected:
    /// The value of a column of the only customer or of the invoice.
    QString Stored(const QString& column) const { return Single("SELECT " + column); }
};

TEST_F(SaveTriggers, TextsAreWrittenWhenTheFocusLeavesThem)
{
    OpenNew();
    QList<std::pair<QWidget*, QString>> boxes{{page->txtDiscount, "Discount FROM customer"},
        {page->txtNotes, "Notes FROM invoice"}, {page->lblInvoiceNo, "InvoiceNo FROM invoice"}};
    for (const PartyField& field : CustomerFields(*page))
        boxes.append({field.box, field.column + QStringLiteral(" FROM customer")});
    for (const auto& [box, column] : boxes) {
        for (const char* text : {"12.5", "7.5"}) {
            Type(box, text);
            EXPECT_NE(Stored(column), text) << column.toStdString();
            Tab();
            EXPECT_EQ(Stored(column), text) << column.toStdString();
        }
    }
    EXPECT_EQ(Count("customer"), 1);
    Type(page->txtFirstname, "Grace");
    page->hide();
    EXPECT_EQ(Stored("FirstName FROM customer"), "Grace") << "another panel takes the place";
}

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

TEST_F(SaveTriggers, ADateIsSavedAsSoonAsItChangesAndAnAmountOfMoneyTakesItsCurrencyFormAndIsNotStored)
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
