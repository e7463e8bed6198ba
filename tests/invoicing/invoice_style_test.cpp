#include "invoicing/config_invoice.h"
#include "invoicing/invoice_report_style.h"
#include "support/test.h"

namespace {
using InvoiceStyleForm = DatabaseTest;

void Open(std::function<void(frmConfigInvoice&)> visit)
{
    WhenFormShows<frmConfigInvoice>(std::move(visit));
    frmConfigInvoice(nullptr).ShowModal();
}
} // namespace

TEST_F(InvoiceStyleForm, StoresTheStyleAndShowsItAgain)
{
    Open([](frmConfigInvoice& form) {
        CheckForm(form);
        EXPECT_EQ(ControlNames(form.Controls()),
            QStringList(
                {"chkHideOurPrice Hide 'Our Price' column.", "chkHideTaxOnInvoice Hide tax information on invoices.",
                    "txtFontSize", "cmdOK OK", "cmdCancel &Cancel"}));
        EXPECT_FALSE(form.chkHideOurPrice->isChecked());
        EXPECT_EQ(form.txtFontSize->text(), "8.25");
        Click(form.chkHideTaxOnInvoice);
        Type(form.txtFontSize, "14");
        Click(form.cmdOK);
    });
    EXPECT_EQ(GetConfig("HideTaxOnInvoice", ""), "True");
    EXPECT_EQ(GetConfig("HideOurPriceOnInvoice", ""), "False");
    EXPECT_EQ(ReadInvoiceStyle().fontSize, 14);
    Open([](frmConfigInvoice& form) {
        EXPECT_TRUE(form.chkHideTaxOnInvoice->isChecked());
        EXPECT_EQ(form.txtFontSize->text(), "14");
        Click(form.chkHideOurPrice);
        Click(form.cmdCancel);
    });
    EXPECT_FALSE(ReadInvoiceStyle().hideOurPrice) << "Cancel stores nothing";
}

TEST_F(InvoiceStyleForm, AFontSizeThatIsNoNumberBecomesTheDefaultWithoutAWord)
{
    for (const char* text : {"abc", ""}) {
        Open([text](frmConfigInvoice& form) {
            Type(form.txtFontSize, text);
            Press(form.txtFontSize, Qt::Key_Return);
        });
        EXPECT_EQ(GetConfig("InvoiceFontSize", ""), "8.25");
    }
    SaveConfig("HideTaxOnInvoice", "perhaps");
    SaveConfig("HideOurPriceOnInvoice", "-1");
    EXPECT_FALSE(ReadInvoiceStyle().hideTax) << "no truth value counts as false";
    EXPECT_TRUE(ReadInvoiceStyle().hideOurPrice);
}
