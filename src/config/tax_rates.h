#pragma once

#include "controls/number_box.h"
#include "controls/text_box.h"
#include "records/key_list_form.h"
#include "records/name_form.h"

#include <QCheckBox>

/// Edits the name and the percentage of a tax rate. A percentage that is no number is stored as 0.
class frmAddTaxRate : public NameForm {
    Q_OBJECT
public:
    /// The tax rate to edit, NewRow for a new one. The form puts the id of a rate it added here.
    static qint32 CurrentTaxRateID;
    static const KeyTable& Table();

    explicit frmAddTaxRate(QWidget* parent);

    CONTROL(NumberBox, txtPercentage);

protected:
    void ShowRow(const Recordset& row) override;
    void SetFields(AddRow& row) override;
    void Update(const QString& name) override;

private:
    QString Percentage();
};

/// Keeps the tax rates and the secondary tax. However it is closed, it stores the secondary tax and reads the triple
/// anew; whoever shows it lets the invoice page follow. Adding, editing or removing a rate brings the stored secondary
/// tax back into its boxes.
class frmTaxRate : public KeyListForm {
    Q_OBJECT
public:
    explicit frmTaxRate(QWidget* parent);

    CONTROL(QCheckBox, chkEnableTax2);
    CONTROL(TextBox, txtSalesTaxName2);
    CONTROL(NumberBox, txtSalesTax2);

    void reject() override;

protected:
    void ShowDetails(qint64 id) override;
    void Reload() override;

private:
    void ShowSecondaryTax();
    void EnableBoxes();
    void StoreSecondaryTax();
};
