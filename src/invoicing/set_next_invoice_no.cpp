#include "invoicing/set_next_invoice_no.h"

#include "base/numbers.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "db/connection.h"

frmSetNextInvoiceNo::frmSetNextInvoiceNo(QWidget* parent)
    : Form("frmSetNextInvoiceNo", tr("Set Next Invoice Number"), parent)
{
    setLayout(column({
        fields({{tr("Next Invoice Number:"), txtName}}),
        stretch(),
        row({stretch(), cmdOk, cmdCancel}),
    }));
    cmdOk->setText(tr("OK"));
    cmdOk->setDefault(true);
    cmdCancel->setText(tr("&Cancel"));
    SetCancelButton(cmdCancel);

    ShowNextNumber();

    On(cmdOk, &QPushButton::clicked, this, &frmSetNextInvoiceNo::Save);
}

void frmSetNextInvoiceNo::ShowNextNumber()
{
    const Recordset next = gConnection->Execute("SELECT invoiceno FROM nextinvoiceno");
    if (next.Eof())
        return;
    txtName->setText(NullToText(next["invoiceno"]));
    txtName->selectAll();
}

void frmSetNextInvoiceNo::Save()
{
    if (!IsNumeric(txtName->text())) {
        MsgBox(tr("Please enter a valid invoice number."), Icon::Critical);
        txtName->setFocus();
        return;
    }
    gConnection->Execute(Sql("UPDATE nextinvoiceno SET invoiceno = {text}").Raw("text", txtName->text()));
    accept();
}
