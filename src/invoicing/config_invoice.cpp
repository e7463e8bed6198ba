#include "invoicing/config_invoice.h"

#include "base/numbers.h"
#include "base/settings_store.h"
#include "controls/layout.h"
#include "invoicing/invoice_report_style.h"

frmConfigInvoice::frmConfigInvoice(QWidget* parent)
    : Form("frmConfigInvoice", tr("Invoice Style"), parent)
{
    setLayout(column({
        instructions(tr("Instructions - choose your invoice style and then click OK.")),
        chkHideOurPrice,
        chkHideTaxOnInvoice,
        fields({{tr("Font Size:"), txtFontSize}}),
        stretch(),
        row({stretch(), cmdOK, cmdCancel}),
    }));
    chkHideOurPrice->setText(tr("Hide 'Our Price' column."));
    chkHideTaxOnInvoice->setText(tr("Hide tax information on invoices."));
    cmdOK->setText(tr("OK"));
    cmdOK->setDefault(true);
    cmdCancel->setText(tr("&Cancel"));
    SetCancelButton(cmdCancel);

    const InvoiceStyle style = ReadInvoiceStyle();
    chkHideOurPrice->setChecked(style.hideOurPrice);
    chkHideTaxOnInvoice->setChecked(style.hideTax);
    txtFontSize->setText(GetConfig(QStringLiteral("InvoiceFontSize"), DefaultInvoiceFontSize));

    On(cmdOK, &QPushButton::clicked, this, [this] { Save(); });
}

void frmConfigInvoice::Save()
{
    SaveConfig(QStringLiteral("HideTaxOnInvoice"), TruthText(chkHideTaxOnInvoice->isChecked()));
    SaveConfig(QStringLiteral("HideOurPriceOnInvoice"), TruthText(chkHideOurPrice->isChecked()));
    if (!IsNumeric(txtFontSize->text()))
        txtFontSize->setText(DefaultInvoiceFontSize);
    SaveConfig(QStringLiteral("InvoiceFontSize"), txtFontSize->text());
    accept();
}
