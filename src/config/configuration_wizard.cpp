#include "config/configuration_wizard.h"

#include "config/configuration_pages.h"
#include "records/wizard.h"

namespace {

const WizardPages<ConfigurationWizard> Pages{
    Page<frmWizConfig_Welcome>,
    Page<frmWizConfig_Business>,
    Page<frmWizConfig_Logo>,
    Page<frmWizConfig_Tax>,
    Page<frmWizConfig_Barcode>,
    Page<frmWizConfig_PickingList>,
    Page<frmWizConfig_Cats>,
    Page<frmWizConfig_Complete>,
};

} // namespace

bool RunConfigurationWizard(QWidget* parent)
{
    ConfigurationWizard wizard;
    StartWizard(wizard);
    if (!ReadConfiguration(wizard) || !ShowPages(Pages, wizard, parent))
        return false;
    StoreConfiguration(wizard);
    return true;
}
