#include "records/wizard_state.h"

namespace {

struct Run {
    qint16 WizardPage = 1;
    bool WizardCancelled = false;
};
Run gImportOrConfiguration;
Run gWebOrdersOrMailingList;

bool gShowImportAndConfigurationWelcome = true;
bool gShowWebOrdersWelcome = true;
bool gShowMailingListWelcome = true;

constexpr WizardState State(Run& run, bool& showWelcome)
{
    return {run.WizardPage, run.WizardCancelled, showWelcome};
}

} // namespace

constinit const WizardState WizardState::Import = State(gImportOrConfiguration, gShowImportAndConfigurationWelcome);
constinit const WizardState WizardState::Configuration =
    State(gImportOrConfiguration, gShowImportAndConfigurationWelcome);
constinit const WizardState WizardState::WebOrders = State(gWebOrdersOrMailingList, gShowWebOrdersWelcome);
constinit const WizardState WizardState::MailingList = State(gWebOrdersOrMailingList, gShowMailingListWelcome);

void ShowAllWelcomePages()
{
    gShowImportAndConfigurationWelcome = true;
    gShowWebOrdersWelcome = true;
    gShowMailingListWelcome = true;
}

void StartWizard(const WizardState& wizard)
{
    wizard.WizardCancelled = false;
    wizard.WizardPage = wizard.ShowWelcome ? 1 : 2;
}
