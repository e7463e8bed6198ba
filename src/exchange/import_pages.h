#pragma once

#include "controls/text_box.h"
#include "exchange/import_answers.h"
#include "records/wizard_page.h"

class frmWizImport_Welcome : public WelcomePage {
    Q_OBJECT
public:
    frmWizImport_Welcome(ImportWizard& wizard, QWidget* parent);
};

/// Asks for the file.
class frmWizImport_File : public MessagePage {
    Q_OBJECT
public:
    frmWizImport_File(ImportWizard& wizard, QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(QPushButton, cmdAdd);

protected:
    bool StoreAnswers() override;

private:
    void Browse();
    bool Refuse(const QString& reason);
};

class frmWizImport_Complete : public FinishPage {
    Q_OBJECT
public:
    frmWizImport_Complete(ImportWizard& wizard, QWidget* parent);
};
