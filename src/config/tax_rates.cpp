#include "config/tax_rates.h"

#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "controls/layout.h"

namespace {

QString NameWithPercentage(const Recordset& rate)
{
    return QStringLiteral("%1 (%2%)").arg(NullToText(rate["name"]), NullToText(rate["percentage"]));
}

} // namespace

const KeyTable& frmAddTaxRate::Table()
{
    static const KeyTable table{
        .name = "[taxrate]",
        .entries = "SELECT id, name, percentage FROM [taxrate] WHERE id<>1 ORDER BY name",
        .entryText = NameWithPercentage,
        .nothingToEdit = tr("No Tax Rate has been selected to edit. Please select a Tax Rate and try again."),
        .nothingToRemove = tr("Please select a Tax Rate to remove."),
        .uses = "SELECT COUNT(*) FROM item, taxrate WHERE item.taxrateid = taxrate.id AND taxrate.id = {id}",
        .inUse = tr("This Tax Rate is in use by one or more items and so cannot be deleted. To delete this "
                    "Tax Rate first remove the items and then try again."),
        .removeQuestion = tr("Are you sure you want to delete this Tax Rate?"),
        .remove = "DELETE FROM [taxrate] WHERE id = {id}",
        .form = "frmAddTaxRate",
        .formTitle = tr("Tax Rate Details"),
        .formInstructions = tr("Instructions - enter the Tax Rate name, tax percentage and then click OK."),
        .nameMissing = tr("Please enter a Tax Rate name to continue."),
        .storedRow = "SELECT name, percentage FROM taxrate WHERE id = {id}",
        .update = "UPDATE taxrate SET name = '{name}', percentage = {percentage} WHERE id = {id}",
    };
    return table;
}

qint32 frmAddTaxRate::CurrentTaxRateID = NewRow;

frmTaxRate::frmTaxRate(QWidget* parent)
    : KeyListForm("frmTaxRate",
        {tr("Configure Tax Rates"),
            tr("Instructions - configure the available Tax Rates. Each item can have any Tax Rate associated with it."),
            tr("Tax Rates:")},
        frmAddTaxRate::Table(), parent)
{
    chkEnableTax2->setText(tr("Enable Secondary Tax"));
    AddBelowList(column({
                     chkEnableTax2,
                     fields({
                         {tr("2nd Sales Tax Name (i.e. PST, VAT, GST etc):"), txtSalesTaxName2},
                         {tr("2nd Sales Tax Percentage:"), txtSalesTax2},
                     }),
                 }),
        {chkEnableTax2, txtSalesTaxName2, txtSalesTax2});
    ShowSecondaryTax();

    On(chkEnableTax2, &QCheckBox::toggled, this, &frmTaxRate::EnableBoxes);
}

void frmTaxRate::ShowDetails(qint64 id)
{
    frmAddTaxRate::CurrentTaxRateID = qint32(id);
    frmAddTaxRate(this).ShowModal();
}

void frmTaxRate::Reload()
{
    KeyListForm::Reload();
    ShowSecondaryTax();
}

void frmTaxRate::ShowSecondaryTax()
{
    chkEnableTax2->setChecked(SecondaryTax::SecondaryTaxEnable);
    txtSalesTaxName2->setText(SecondaryTax::SecondaryTaxName);
    txtSalesTax2->setText(CStr(SecondaryTax::SecondaryTaxPercentage));
    EnableBoxes();
}

void frmTaxRate::EnableBoxes()
{
    txtSalesTaxName2->setEnabled(chkEnableTax2->isChecked());
    txtSalesTax2->setEnabled(chkEnableTax2->isChecked());
}

void frmTaxRate::reject()
{
    Guarded([this] { StoreSecondaryTax(); });
    KeyListForm::reject();
}

void frmTaxRate::StoreSecondaryTax()
{
    gConnection->Execute(Sql("UPDATE settings SET SecondaryTaxEnable = {enable}, SecondaryTaxPercentage = "
                             "'{percentage}', SecondaryTaxName = '{name}'")
                             .Bool("enable", chkEnableTax2->isChecked())
                             .Text("percentage", txtSalesTax2->text())
                             .Text("name", txtSalesTaxName2->text()));
    LoadSecondaryTax();
}

frmAddTaxRate::frmAddTaxRate(QWidget* parent)
    : NameForm(Table(), CurrentTaxRateID, parent)
{
    AddField(tr("Percentage:"), txtPercentage);
    ShowStoredRow();
}

void frmAddTaxRate::ShowRow(const Recordset& row)
{
    NameForm::ShowRow(row);
    txtPercentage->setText(NullToText(row["percentage"]));
}

QString frmAddTaxRate::Percentage()
{
    if (!IsNumeric(txtPercentage->text()))
        txtPercentage->setText(QStringLiteral("0"));
    return txtPercentage->text();
}

void frmAddTaxRate::SetFields(AddRow& row)
{
    row.Set("Percentage", Percentage());
}

void frmAddTaxRate::Update(const QString& name)
{
    gConnection->Execute(
        Sql(Table().update).Text("name", name).Raw("percentage", Percentage()).Number("id", CurrentId()));
}
