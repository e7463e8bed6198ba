#include "base/dates.h"
#include "base/numbers.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "invoicing/current_invoice.h"
#include "invoicing/invoice_page.h"

namespace {

/// The date between `#` signs, or the word null.
QString DateOrNull(const std::optional<QDateTime>& date)
{
    return date ? QLatin1Char('#') + DateToIso(*date) + QLatin1Char('#') : QStringLiteral("null");
}

} // namespace

void InvoicePage::UpdateInvoiceEdit()
{
    // The focus also leaves a control of the page when the invoice has just ended and the page is put away. There is
    // nothing to save then, and no customer to add.
    if (gCurrentInvoiceId == -1)
        return;
    InBatch(*gConnection, [&] {
        CorrectDiscount();
        if (gCurrentCustomerId != -1)
            UpdateCustomer();
        else
            gCurrentCustomerId = AddCustomer();
        UpdateInvoice();
    });
}

void InvoicePage::CorrectDiscount()
{
    if (!IsNumeric(txtDiscount->text()))
        txtDiscount->setText(QStringLiteral("0"));
}

void InvoicePage::UpdateCustomer()
{
    gConnection->Execute(
        Sql("UPDATE Customer SET FirstName = '{first}', LastName = '{last}', Address1 = '{address1}', "
            "Address2 = '{address2}', City = '{city}', State = '{state}', PostCode = '{postcode}', "
            "Country = '{country}', Phone = '{phone}', Fax = '{fax}', Email = '{email}', Discount = {discount}, "
            "PriceListID = {priceListId}, BusinessName = '{business}'  WHERE ID={gCurrentCustomerId};")
            .Text("first", txtFirstname->text())
            .Text("last", txtLastname->text())
            .Text("address1", txtAddress1->text())
            .Text("address2", txtAddress2->text())
            .Text("city", txtCity->text())
            .Text("state", txtState->text())
            .Text("postcode", txtPostcode->text())
            .Text("country", txtCountry->text())
            .Text("phone", txtPhone->text())
            .Text("fax", txtFax->text())
            .Text("email", txtEmail->text())
            .Raw("discount", txtDiscount->text())
            .Number("priceListId", cboPriceList->SelectedData())
            .Text("business", txtBusinessName->text())
            .Number("gCurrentCustomerId", gCurrentCustomerId));
}

qint32 InvoicePage::AddCustomer()
{
    AddRow customer(*gConnection, "Customer");
    customer.AddNew();
    for (const CustomerBox& entry : CustomerBoxes())
        customer.Set(entry.field, entry.box->text());
    customer.Set("Discount", txtDiscount->text());
    customer.Set("PriceListID", cboPriceList->SelectedData());
    customer.Update();
    return qint32(customer.Id());
}

void InvoicePage::UpdateInvoice()
{
    gConnection->Execute(
        Sql("UPDATE invoice SET CustomerID = {gCurrentCustomerId},PaymentMethod = '{method}',Paid = {paid},"
            "WarrantyInvoice = {warranty},InvoiceNo = '{invoiceNo}',SubmittedDate = #{date}#,"
            "ShippedDate = {shipped},Notes = '{notes}', Total2ndTax = '{secondTax}' WHERE id = {gCurrentInvoiceId}")
            .Number("gCurrentCustomerId", gCurrentCustomerId)
            .Raw("method", cboPaymentMethod->Text())
            .Bool("paid", chkPaid->isChecked())
            .Bool("warranty", chkWarrantyInvoice->isChecked())
            .Text("invoiceNo", lblInvoiceNo->text())
            .Date("date", lblInvoiceDate->Value()->date())
            .Raw("shipped", DateOrNull(dtShippedDate->Value()))
            .Text("notes", txtNotes->Text())
            .Text("secondTax", lblSecondTax->text())
            .Number("gCurrentInvoiceId", gCurrentInvoiceId));
}
