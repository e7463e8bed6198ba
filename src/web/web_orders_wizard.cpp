#include "web/web_orders_wizard.h"

#include "controls/layout.h"
#include "controls/message_box.h"
#include "web/web_orders_page.h"

namespace {

const WizardPages<WebOrdersWizard> Pages{
    Page<frmWizOConfig_Welcome>,
    Page<frmWizOConfig_Email>,
    Page<frmWizOConfig_Provider>,
    Page<frmWizOConfig_Complete>,
};

} // namespace

void RunWebOrdersWizard(QWidget* parent)
{
    StartWizard(WizardState::WebOrders);
    const std::optional<WebOrderSettings> stored = ReadWebOrderSettings();
    if (!stored)
        return;
    WebOrdersWizard wizard{WizardState::WebOrders, *stored};
    if (!ShowPages(Pages, wizard, parent))
        return;
    StoreWebOrderSettings(wizard.answers);
    const QString offer = frmWizOConfig_Complete::tr("Would you like to create a booking web page now?");
    if (MsgBox(offer, Icon::Question, Buttons::YesNoCancel) == Answer::Yes)
        CreateWebOrdersPage();
}

frmWizOConfig_Welcome::frmWizOConfig_Welcome(WebOrdersWizard& wizard, QWidget* parent)
    : WelcomePage("frmWizOConfig_Welcome", tr("Web Booking Configuration Wizard"),
        tr("Using this wizard you can configure your website to accept online bookings."), wizard, parent)
{
}

frmWizOConfig_Email::frmWizOConfig_Email(WebOrdersWizard& wizard, QWidget* parent)
    : MessagePage("frmWizOConfig_Email", tr("Enter your email booking address"),
        tr("Enter the email address that should recieve the bookings made from the website."), wizard, parent)
    , m_answers(wizard.answers)
{
    SetContent(column({
        fields({{tr("Booking email address:"), txtName}}),
        stretch(),
    }));
    txtName->setText(m_answers.email);
    txtName->FocusAll();
}

bool frmWizOConfig_Email::StoreAnswers()
{
    if (txtName->text().isEmpty()) {
        MsgBox(tr("No email address has been entered. Please enter an email address to continue."), Icon::Critical);
        txtName->setFocus();
        return false;
    }
    m_answers.email = txtName->text();
    return true;
}

frmWizOConfig_Provider::frmWizOConfig_Provider(WebOrdersWizard& wizard, QWidget* parent)
    : MessagePage("frmWizOConfig_Provider", tr("Choose your email provider"),
        tr("Select the email provider to use to send your email confirmations. If you are not sure then leave the "
           "default setting."),
        wizard, parent)
    , m_answers(wizard.answers)
{
    SetContent(column({
        fields({
            {tr("Email provider:"), cboProvider},
            {tr("Custom provider:"), txtCustom},
        }),
        stretch(),
    }));
    cboProvider->AddItem(tr("Response-o-Matic (default)"), BuiltInProvider);
    cboProvider->AddItem(tr("Custom..."), CustomProvider);
    cboProvider->SetListIndex(m_answers.providerIndex);
    txtCustom->setText(m_answers.customProvider);

    On(txtCustom, &QLineEdit::textChanged, this, [this] { cboProvider->SetListIndex(CustomProvider); });
}

bool frmWizOConfig_Provider::StoreAnswers()
{
    const bool customIsMissing = txtCustom->text().isEmpty() && cboProvider->ListIndex() == CustomProvider;
    if (customIsMissing
        && MsgBox(tr("No custom provider has been entered. Continue anyway?"), Icon::None, Buttons::YesNoCancel)
            != Answer::Yes) {
        txtCustom->setFocus();
        return false;
    }
    m_answers.providerIndex = cboProvider->ListIndex();
    m_answers.customProvider = txtCustom->text();
    return true;
}

frmWizOConfig_Complete::frmWizOConfig_Complete(WebOrdersWizard& wizard, QWidget* parent)
    : FinishPage("frmWizOConfig_Complete", tr("Click Finish to complete your configuration."), wizard, parent)
{
}
