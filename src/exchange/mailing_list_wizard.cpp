#include "exchange/mailing_list_wizard.h"

#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "exchange/mailing_list.h"
#include "records/wizard.h"

namespace {

const WizardPages<MailingListWizard> Pages{
    Page<frmWizMailList_Welcome>,
    Page<frmWizMailList_File>,
    Page<frmWizMailList_Complete>,
};

} // namespace

QString MailingListWizard::MailListFileName;

frmWizMailList_Welcome::frmWizMailList_Welcome(MailingListWizard& wizard, QWidget* parent)
    : WelcomePage("frmWizMailList_Welcome", tr("Email Mailing List Wizard"),
        tr("Using this wizard you can create a mailing list of your customers."), wizard, parent)
{
}

frmWizMailList_File::frmWizMailList_File(MailingListWizard& wizard, QWidget* parent)
    : MessagePage("frmWizMailList_File", tr("Enter the Mailing List filename"),
        tr("Enter the filename you would like to populate with your email list."), wizard, parent)
{
    cmdBrowse->setText(tr("B&rowse"));
    SetContent(column({
        fields({{tr("Mailing List Filename:"), row({txtName, cmdBrowse})}}),
        stretch(),
    }));
    txtName->setText(MailingListWizard::MailListFileName);
    txtName->FocusAll();

    On(cmdBrowse, &QPushButton::clicked, this, [this] { Browse(); });
}

void frmWizMailList_File::Browse()
{
    const QString file = SaveFileName(tr("Save As"), tr("Text documents (*.txt)"), QString());
    if (!file.isEmpty())
        txtName->setText(file);
}

bool frmWizMailList_File::StoreAnswers()
{
    if (txtName->text().isEmpty()) {
        MsgBox(tr("No mailing list filename has been entered. Please enter a filename to continue."), Icon::Critical);
        txtName->setFocus();
        return false;
    }
    MailingListWizard::MailListFileName = txtName->text();
    return true;
}

frmWizMailList_Complete::frmWizMailList_Complete(MailingListWizard& wizard, QWidget* parent)
    : FinishPage("frmWizMailList_Complete", tr("Click Finish to complete your configuration."), wizard, parent)
{
}

void RunMailingListWizard(QWidget* parent)
{
    MailingListWizard wizard;
    StartWizard(wizard);
    if (!ShowPages(Pages, wizard, parent))
        return;
    const QString& file = MailingListWizard::MailListFileName;
    const Hourglass hourglass(frmWizMailList_Complete::tr("Writing the file..."));
    if (WriteMailingList(file))
        ShowSavedAs(file);
    else
        MsgBox(frmWizMailList_Complete::tr("Unable to write to file ") + file + QLatin1Char('.'), Icon::Critical);
}
