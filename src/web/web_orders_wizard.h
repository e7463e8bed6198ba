#pragma once

#include "controls/combo_box.h"
#include "controls/text_box.h"
#include "records/wizard.h"
#include "web/web_order_settings.h"

/// Where the web orders wizard stands, and its answers.
struct WebOrdersWizard : WizardState {
    WebOrderSettings answers;
};

/// Runs the wizard over the stored settings, stores its answers, and offers to create the web orders page. Does nothing
/// when `settings` has no row. Throws RuntimeError when a statement fails.
void RunWebOrdersWizard(QWidget* parent);

class frmWizOConfig_Welcome : public WelcomePage {
    Q_OBJECT
public:
    frmWizOConfig_Welcome(WebOrdersWizard& wizard, QWidget* parent);
};

class frmWizOConfig_Email : public MessagePage {
    Q_OBJECT
public:
    frmWizOConfig_Email(WebOrdersWizard& wizard, QWidget* parent);

    CONTROL(TextBox, txtName);

protected:
    bool StoreAnswers() override;

private:
    WebOrderSettings& m_answers;
};

/// Typing a custom provider's address chooses the custom provider.
class frmWizOConfig_Provider : public MessagePage {
    Q_OBJECT
public:
    /// Throws RuntimeError for a provider index that the list does not have; -1 selects nothing.
    frmWizOConfig_Provider(WebOrdersWizard& wizard, QWidget* parent);

    CONTROL(ComboBox, cboProvider);
    CONTROL(TextBox, txtCustom);

protected:
    bool StoreAnswers() override;

private:
    WebOrderSettings& m_answers;
};

class frmWizOConfig_Complete : public FinishPage {
    Q_OBJECT
public:
    frmWizOConfig_Complete(WebOrdersWizard& wizard, QWidget* parent);
};
