#include "invoicing/set_next_invoice_no.h"
#include "support/test.h"

namespace {

class Numbering : public DatabaseTest {
protected:
    QString NextNumber() const { return NullToText(gConnection->Execute("SELECT invoiceno FROM nextinvoiceno")[0]); }
    /// Opens the form, types `number` and presses `key`; the form must have closed after that.
    void Enter(const QString& number, Qt::Key key)
    {
        WhenFormShows<frmSetNextInvoiceNo>([&](frmSetNextInvoiceNo& form) {
            EXPECT_EQ(form.txtName->selectedText(), NextNumber());
            Type(form.txtName, number);
            Press(form.txtName, key);
        });
        frmSetNextInvoiceNo(nullptr).ShowModal();
    }
};

TEST_F(Numbering, StoresWhateverIsANumberAndRefusesOtherTexts)
{
    for (const char* number : {"7", "-5", "43.6"}) {
        Enter(number, Qt::Key_Return);
        EXPECT_EQ(NextNumber(), number);
    }
    Enter("8", Qt::Key_Escape);

    ScriptedAnswers answers;
    WhenFormShows<frmSetNextInvoiceNo>([&](frmSetNextInvoiceNo& form) {
        CheckForm(form);
        EXPECT_EQ(ControlNames(form.Controls()), QStringList({"txtName", "cmdOk OK", "cmdCancel &Cancel"}));
        EXPECT_EQ(form.windowTitle(), "Set Next Invoice Number");
        for (const char* text : {"abc", "", "12 items"}) {
            answers.ExpectMessage("Please enter a valid invoice number.", Icon::Critical);
            Type(form.txtName, text);
            Click(form.cmdOk);
            EXPECT_TRUE(form.isVisible() && form.txtName->hasFocus());
        }
        Click(form.cmdCancel);
    });
    frmSetNextInvoiceNo(nullptr).ShowModal();
    EXPECT_EQ(NextNumber(), "43.6");
}

} // namespace
