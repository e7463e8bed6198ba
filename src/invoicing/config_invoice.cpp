#include "invoicing/config_invoice.h"

#include "invoicing/invoice_report_style.h"
#include "platform/layout.h"
#include "platform/numbers.h"
#include "platform/settings_store.h"

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
    txtFontSize->setText(GetConfig("InvoiceFontSize", DefaultInvoiceFontSize));

    On(cmdOK, &QPushButton::clicked, [this] { Save(); });
}

void frmConfigInvoice::Save()
{
    SaveConfig("HideTaxOnInvoice", TruthText(chkHideTaxOnInvoice->isChecked()));
    SaveConfig("HideOurPriceOnInvoice", TruthText(chkHideOurPrice->isChecked()));
    if (!IsNumeric(txtFontSize->text()))
        txtFontSize->setText(DefaultInvoiceFontSize);
    SaveConfig("InvoiceFontSize", txtFontSize->text());
    accept();
}
