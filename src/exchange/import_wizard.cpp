#include "exchange/import_wizard.h"

#include "exchange/import_pages.h"
#include "exchange/import_preview.h"
#include "records/wizard.h"

namespace {

const WizardPages<ImportWizard> Pages{
    Page<frmWizImport_Welcome>,
    Page<frmWizImport_File>,
    Page<frmWizImport_Preview>,
    Page<frmWizImport_Complete>,
};

} // namespace

bool RunImportWizard(QWidget* parent)
{
    ImportWizard wizard;
    StartWizard(wizard);
    return ShowPages(Pages, wizard, parent);
}
