#pragma once

#include "controls/text_box.h"
#include "records/wizard_page.h"

/// What the mailing list wizard asks for.
struct MailingListWizard : WizardState {
    MailingListWizard()
        : WizardState(WizardState::MailingList)
    {
    }

    /// The file that the list goes to; offered again at the next run.
    static QString MailListFileName;
};

class frmWizMailList_Welcome : public WelcomePage {
    Q_OBJECT
public:
    frmWizMailList_Welcome(MailingListWizard& wizard, QWidget* parent);
};

/// Asks for the file.
class frmWizMailList_File : public MessagePage {
    Q_OBJECT
public:
    frmWizMailList_File(MailingListWizard& wizard, QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(QPushButton, cmdBrowse);

protected:
    bool StoreAnswers() override;

private:
    void Browse();
};

class frmWizMailList_Complete : public FinishPage {
    Q_OBJECT
public:
    frmWizMailList_Complete(MailingListWizard& wizard, QWidget* parent);
};

/// Writes the e-mail addresses of all customers to a text file of the user's choice.
void RunMailingListWizard(QWidget* parent);
