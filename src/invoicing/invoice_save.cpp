#include "base/numbers.h"
#include "controls/focus.h"
#include "invoicing/invoice_page.h"

#include <QTextDocument>

QList<QWidget*> InvoicePage::ControlsSavedWhenLeft() const
{
    QList<QWidget*> controls{
        txtDiscount, txtNotes, lblInvoiceNo, cboPriceList, cboPaymentMethod, chkPaid, chkWarrantyInvoice};
    for (const PartyField& field : CustomerBoxes())
        controls.append(field.box);
    return controls;
}

void InvoicePage::ConnectSaves()
{
    for (QWidget* control : ControlsSavedWhenLeft())
        OnFocusLeft(control, [this] { UpdateInvoiceEdit(); });
    On(lblInvoiceDate, &DatePicker::Change, this, &InvoicePage::UpdateInvoiceEdit);
    On(dtShippedDate, &DatePicker::Change, this, &InvoicePage::UpdateInvoiceEdit);
}

void InvoicePage::UpdateInvoiceEdit()
{
    // The focus also leaves a control of the page when the invoice has just ended and the page is put away. There is
    // nothing to save then, and no customer to add.
    if (!OpenInvoice::IsOpen())
        return;
    CorrectDiscount();
    OpenInvoice::Save(CustomerOnPage(), InvoiceOnPage());
    for (QWidget* control : ControlsSavedWhenLeft())
        if (auto* box = qobject_cast<QLineEdit*>(control))
            box->setModified(false);
    ShowWhetherItExists();
}

void InvoicePage::SaveWhatIsBeingTyped()
{
    QWidget* focus = window()->focusWidget();
    if (!isVisible() || !focus)
        return;
    // A date saves itself as soon as its typing is over.
    for (DatePicker* date : {lblInvoiceDate, dtShippedDate})
        if (date->isAncestorOf(focus))
            date->Value();
    if (!ControlsSavedWhenLeft().contains(focus))
        return;
    const auto* box = qobject_cast<QLineEdit*>(focus);
    const bool isUntouched = box ? !box->isModified() : focus == txtNotes && !txtNotes->document()->isModified();
    if (!isUntouched)
        UpdateInvoiceEdit();
}

void InvoicePage::CorrectDiscount()
{
    if (!IsNumeric(txtDiscount->text()))
        txtDiscount->setText(QStringLiteral("0"));
}

InvoiceCustomer InvoicePage::CustomerOnPage() const
{
    return {TextsOf(CustomerBoxes()), txtDiscount->text(), cboPriceList->SelectedData()};
}

InvoiceFields InvoicePage::InvoiceOnPage() const
{
    InvoiceFields invoice;
    invoice.invoiceNo = lblInvoiceNo->text();
    invoice.submitted = lblInvoiceDate->Value()->date();
    if (const std::optional<QDateTime> shipped = dtShippedDate->Value())
        invoice.shipped = shipped->date();
    invoice.isWarranty = chkWarrantyInvoice->isChecked();
    invoice.isPaid = chkPaid->isChecked();
    if (const int method = cboPaymentMethod->ListIndex(); method >= 0)
        invoice.paymentMethod = QLatin1String(PaymentMethods[method]);
    invoice.notes = txtNotes->Text();
    invoice.secondTax = lblSecondTax->text();
    return invoice;
}
