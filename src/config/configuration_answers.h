#pragma once

#include "records/wizard_state.h"

#include <QString>

/// What the configuration wizard asks for.
struct ConfigurationWizard : WizardState {
    ConfigurationWizard()
        : WizardState(WizardState::Configuration)
    {
    }

    QString ConfigLogoFile;
    QString ConfigBusinessName;
    QString ConfigAddress1;
    QString ConfigAddress2;
    QString ConfigCity;
    QString ConfigState;
    QString ConfigPostCode;
    QString ConfigCountry;
    QString ConfigPhone;
    QString ConfigFax;
    QString ConfigTaxId; ///< of the first tax rate, "-1" when there is none
    QString ConfigTaxName;
    QString ConfigTaxPercent;
    QString ConfigSecondTaxName;
    bool ConfigSecondTaxEnable = false;
    bool ConfigHideTax = false;
};

/// Fills the answers with what is in force now. False when `settings` has no row to be configured.
bool ReadConfiguration(ConfigurationWizard& wizard);

/// Stores the answers in `settings`, the first tax rate, the secondary tax triple and the settings store. The logo is
/// copied into the program's folder under a new name each time, and the new name is stored also when the copy fails.
/// A tax rate is added when there is none yet and the answer has a name. Throws RuntimeError when a statement fails;
/// what was written before it stays.
void StoreConfiguration(const ConfigurationWizard& wizard);
