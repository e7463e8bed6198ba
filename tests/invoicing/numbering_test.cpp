#include "invoicing/set_next_invoice_no.h"

#include "support/form_check.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

namespace {
class Numbering : public DatabaseTest {
protected:
    QString NextNumber() const { return NullToText(gConnection->Execute("SELECT invoiceno FROM nextinvoiceno")[0]); }
    /// Types a number into the form and presses Enter; the form must have closed when `visit` is over.
    void Enter(const QString& number)
    {
        WhenFormShows<frmSetNextInvoiceNo>([&](frmSetNextInvoiceNo& form) {
            Type(form.txtName, number);
            Press(form.txtName, Qt::Key_Return);
        });
        frmSetNextInvoiceNo(nullptr).ShowModal();
    }
};
} // namespace

TEST_F(Numbering, ShowsTheNextNumberSelectedAndStoresAnother)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 42");
    WhenFormShows<frmSetNextInvoiceNo>([](frmSetNextInvoiceNo& form) {
        CheckForm(form);
        EXPECT_EQ(ControlNames(form.Controls()), QStringList({"txtName", "cmdOk OK", "cmdCancel &Cancel"}));
        EXPECT_EQ(form.windowTitle(), "Set Next Invoice Number");
        EXPECT_EQ(form.txtName->selectedText(), "42");
        Type(form.txtName, "7");
        Click(form.cmdOk);
    });
    frmSetNextInvoiceNo(nullptr).ShowModal();
    EXPECT_EQ(NextNumber(), "7");
}

TEST_F(Numbering, TextThatIsNoNumberIsRefusedAndTheFormStays)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 42");
    ScriptedAnswers answers;
    WhenFormShows<frmSetNextInvoiceNo>([&](frmSetNextInvoiceNo& form) {
        for (const char* text : {"abc", "", "12 items"}) {
            answers.ExpectMessage("Please enter a valid invoice number.", Icon::Critical);
            Type(form.txtName, text);
            Click(form.cmdOk);
            EXPECT_TRUE(form.isVisible());
            EXPECT_TRUE(form.txtName->hasFocus());
        }
        Click(form.cmdCancel);
    });
    frmSetNextInvoiceNo(nullptr).ShowModal();
    EXPECT_EQ(NextNumber(), "42");
}

TEST_F(Numbering, NegativeAndFractionalNumbersReachTheTable)
{
    Enter("-5");
    EXPECT_EQ(NextNumber(), "-5");
    Enter("43.6");
    EXPECT_EQ(NextNumber(), "43.6");
}

TEST_F(Numbering, CancelLeavesTheNumber)
{
    Run("UPDATE nextinvoiceno SET invoiceno = 42");
    WhenFormShows<frmSetNextInvoiceNo>([](frmSetNextInvoiceNo& form) {
        Type(form.txtName, "7");
        Press(form.txtName, Qt::Key_Escape);
    });
    frmSetNextInvoiceNo(nullptr).ShowModal();
    EXPECT_EQ(NextNumber(), "42");
}
