#include "exchange/import_pages.h"

#include "controls/dialogs.h"
#include "controls/layout.h"
#include "controls/message_box.h"

#include <QFileInfo>

QString ImportWizard::ImportFileName;

namespace {

/// A folder is no file to import.
bool IsInItsFolder(const QString& file)
{
    return !file.endsWith(u'\\') && QFileInfo::exists(file) && !QFileInfo(file).isDir();
}

} // namespace

frmWizImport_Welcome::frmWizImport_Welcome(ImportWizard& wizard, QWidget* parent)
    : WelcomePage("frmWizImport_Welcome", tr("Inventory Import Wizard"),
        tr("Using this wizard you can import inventory information."), wizard, parent)
{
}

frmWizImport_File::frmWizImport_File(ImportWizard& wizard, QWidget* parent)
    : MessagePage("frmWizImport_File", tr("Choose the file to import"),
        tr("Enter the CSV file to import or click browse to locate it."), wizard, parent)
{
    cmdAdd->setText(tr("&Browse"));
    SetContent(column({
        fields({{tr("CSV file to import:"), row({txtName, cmdAdd})}}),
        stretch(),
    }));
    txtName->setText(ImportWizard::ImportFileName);
    txtName->FocusAll();

    On(cmdAdd, &QPushButton::clicked, this, [this] { Browse(); });
}

void frmWizImport_File::Browse()
{
    try {
        const QString file = SaveExistingFileName(tr("Choose the file to import"), tr("CSV (*.csv)"));
        if (!file.isEmpty())
            txtName->setText(file);
    } catch (const std::exception&) {
        MsgBox(tr("Unable to read file, please check you have permissions and try again."), Icon::Critical);
    }
}

bool frmWizImport_File::StoreAnswers()
{
    const QString file = txtName->text();
    if (file.isEmpty())
        return Refuse(tr("No file has been entered. Please enter a file to continue."));
    if (!IsInItsFolder(file))
        return Refuse(tr("Cannot open file. Please select a file to continue."));
    ImportWizard::ImportFileName = file;
    return true;
}

bool frmWizImport_File::Refuse(const QString& reason)
{
    MsgBox(reason, Icon::Critical);
    txtName->FocusAll();
    return false;
}

frmWizImport_Complete::frmWizImport_Complete(ImportWizard& wizard, QWidget* parent)
    : FinishPage(
        "frmWizImport_Complete", tr("Data has been imported. Click Finish to close the wizard."), wizard, parent)
{
}
