#pragma once

#include "exchange/import_fields.h"
#include "records/wizard_state.h"

/// What the import wizard asks for.
struct ImportWizard : WizardState {
    ImportWizard();

    /// The file to import; offered again at the next run.
    static QString ImportFileName;

    QString ImportSeparator; ///< an entry of cboSep
    bool ImportFirstLineNames = true;
    QList<ImportField> ImportFields = BuildImportFields();
};
