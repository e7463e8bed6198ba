#include "invoicing/open_invoice.h"

#include "base/clock.h"
#include "base/dates.h"
#include "base/numbers.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection.h"
#include "invoicing/order_lines.h"

qint32 OpenInvoice::gCurrentInvoiceId = -1;
qint32 OpenInvoice::gCurrentCustomerId = -1;
qint32 OpenInvoice::m_createdId = -1;
QString OpenInvoice::m_createdNumber;

namespace {

bool IsTrue(const Value& value)
{
    return !value.IsNull() && value.ToBool();
}

QString NextInvoiceNo()
{
    const Recordset next = gConnection->Execute("SELECT invoiceno FROM NextInvoiceNo");
    return FormatNumber(NullToText(next["invoiceno"]), QStringLiteral("00000"));
}

qint32 AddInvoice(const QDateTime& submitted, const QString& invoiceNo)
{
    AddRow invoice(*gConnection, "Invoice");
    invoice.AddNew();
    invoice.Set("SubmittedDate", submitted);
    invoice.Set("InvoiceNo", invoiceNo);
    invoice.Set("StockReturned", false);
    invoice.Update();
    return qint32(invoice.Id());
}

/// The date between `#` signs, or the word null.
QString DateOrNull(const std::optional<QDate>& date)
{
    return date ? QLatin1Char('#') + DateToIso(date->startOfDay()) + QLatin1Char('#') : QStringLiteral("null");
}

} // namespace

QString OpenInvoice::Create(const QDateTime& submitted)
{
    m_createdNumber = NextInvoiceNo();
    gCurrentCustomerId = -1;
    gCurrentInvoiceId = m_createdId = AddInvoice(submitted, m_createdNumber);
    return m_createdNumber;
}

bool OpenInvoice::Exists()
{
    return !gConnection
                ->Execute(Sql("SELECT id FROM invoice WHERE id = {gCurrentInvoiceId}")
                              .Number("gCurrentInvoiceId", gCurrentInvoiceId))
                .Eof();
}

bool OpenInvoice::FindCustomer()
{
    const Recordset invoice = gConnection->Execute(Sql("SELECT customerid FROM invoice WHERE id = {gCurrentInvoiceId}")
                                                       .Number("gCurrentInvoiceId", gCurrentInvoiceId));
    if (invoice.Eof())
        return false;
    gCurrentCustomerId = invoice.IsNull(0) ? -1 : qint32(invoice.Long(0));
    return true;
}

InvoiceFields OpenInvoice::Load()
{
    const Recordset row = gConnection->Execute(
        Sql("SELECT id, WarrantyInvoice, StockReturned, notes, submitteddate, invoiceno, paymentmethod, shippeddate, "
            "paid FROM invoice WHERE id = {gCurrentInvoiceId}")
            .Number("gCurrentInvoiceId", gCurrentInvoiceId));
    InvoiceFields invoice;
    invoice.isWarranty = IsTrue(row["WarrantyInvoice"]);
    invoice.notes = NullToText(row["notes"]);
    invoice.paymentMethod = NullToText(row["paymentmethod"]);
    invoice.invoiceNo = NullToText(row["invoiceno"]);
    const Value submitted = row["submitteddate"];
    invoice.submitted = submitted.IsNull() ? Now().date() : submitted.ToDate().date();
    if (const Value shipped = row["shippeddate"]; !shipped.IsNull())
        invoice.shipped = shipped.ToDate().date();
    invoice.isPaid = IsTrue(row["paid"]);
    return invoice;
}

InvoiceCustomer OpenInvoice::LoadCustomer(qint32 customerId)
{
    const Recordset row = gConnection->Execute(
        Sql("SELECT ID, FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Fax, Email, "
            "SubmittedDate, BusinessName, Discount, PriceListID FROM Customer WHERE ID = {customerId}")
            .Number("customerId", customerId));
    InvoiceCustomer customer;
    if (row.Eof())
        return customer;
    customer.texts = ReadTexts(row);
    if (const Value discount = row["Discount"]; !discount.IsNull())
        customer.discount = discount.ToText();
    if (const Value priceList = row["PriceListID"]; !priceList.IsNull())
        customer.priceListId = priceList.ToLong();
    return customer;
}

Sql OpenInvoice::LinesStatement()
{
    return Sql("SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline "
               "WHERE invoiceid = {gCurrentInvoiceId};")
        .Number("gCurrentInvoiceId", gCurrentInvoiceId);
}

Sql OpenInvoice::LineStatement(qint64 lineId)
{
    return Sql("SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline "
               "WHERE id = {lineId}")
        .Number("lineId", lineId);
}

void OpenInvoice::Save(const InvoiceCustomer& customer, const InvoiceFields& invoice)
{
    InBatch(*gConnection, [&] {
        if (gCurrentCustomerId != -1)
            UpdateCustomer(customer);
        else
            gCurrentCustomerId = AddCustomer(customer);
        UpdateInvoice(invoice);
    });
}

void OpenInvoice::UpdateCustomer(const InvoiceCustomer& customer)
{
    const PartyTexts& texts = customer.texts;
    gConnection->ExecuteIfItChanges(
        Sql("UPDATE Customer SET FirstName = '{first}', LastName = '{last}', Address1 = '{address1}', "
            "Address2 = '{address2}', City = '{city}', State = '{state}', PostCode = '{postcode}', "
            "Country = '{country}', Phone = '{phone}', Fax = '{fax}', Email = '{email}', Discount = {discount}, "
            "PriceListID = {priceListId}, BusinessName = '{business}'  WHERE ID={gCurrentCustomerId};")
            .Text("first", TextOf(texts, "FirstName"))
            .Text("last", TextOf(texts, "LastName"))
            .Text("address1", TextOf(texts, "Address1"))
            .Text("address2", TextOf(texts, "Address2"))
            .Text("city", TextOf(texts, "City"))
            .Text("state", TextOf(texts, "State"))
            .Text("postcode", TextOf(texts, "PostCode"))
            .Text("country", TextOf(texts, "Country"))
            .Text("phone", TextOf(texts, "Phone"))
            .Text("fax", TextOf(texts, "Fax"))
            .Text("email", TextOf(texts, "Email"))
            .Raw("discount", customer.discount)
            .Number("priceListId", customer.priceListId)
            .Text("business", TextOf(texts, "BusinessName"))
            .Number("gCurrentCustomerId", gCurrentCustomerId));
}

qint32 OpenInvoice::AddCustomer(const InvoiceCustomer& customer)
{
    AddRow row(*gConnection, "Customer");
    row.AddNew();
    for (const auto& [column, text] : customer.texts)
        row.Set(column.toLatin1().constData(), text);
    row.Set("Discount", customer.discount);
    row.Set("PriceListID", customer.priceListId);
    row.Update();
    return qint32(row.Id());
}

void OpenInvoice::UpdateInvoice(const InvoiceFields& invoice)
{
    gConnection->ExecuteIfItChanges(
        Sql("UPDATE invoice SET CustomerID = {gCurrentCustomerId},PaymentMethod = '{method}',Paid = {paid},"
            "WarrantyInvoice = {warranty},InvoiceNo = '{invoiceNo}',SubmittedDate = #{date}#,"
            "ShippedDate = {shipped},Notes = '{notes}', Total2ndTax = '{secondTax}' WHERE id = {gCurrentInvoiceId}")
            .Number("gCurrentCustomerId", gCurrentCustomerId)
            .Raw("method", invoice.paymentMethod)
            .Bool("paid", invoice.isPaid)
            .Bool("warranty", invoice.isWarranty)
            .Text("invoiceNo", invoice.invoiceNo)
            .Date("date", invoice.submitted)
            .Raw("shipped", DateOrNull(invoice.shipped))
            .Text("notes", invoice.notes)
            .Text("secondTax", invoice.secondTax)
            .Number("gCurrentInvoiceId", gCurrentInvoiceId));
}

void OpenInvoice::Cancel(const QList<OrderLine>& lines)
{
    InBatch(*gConnection, [&] {
        for (const OrderLine& line : lines)
            DeleteOrderLine(line.id, line.quantity);
        gConnection->Execute(
            Sql("DELETE FROM invoice WHERE id = {gCurrentInvoiceId}").Number("gCurrentInvoiceId", gCurrentInvoiceId));
    });
    gCurrentInvoiceId = -1;
}

QString OpenInvoice::NumberTakenMeanwhile()
{
    // Who finishes first finds the next number as it was, and has the better right to it.
    if (gCurrentInvoiceId != m_createdId || NextInvoiceNo() == m_createdNumber)
        return {};
    bool isOurs = false;
    bool isAnothers = false;
    Recordset invoice = gConnection->Execute(
        Sql("SELECT id FROM invoice WHERE invoiceno = '{number}'").Text("number", m_createdNumber));
    for (; !invoice.Eof(); invoice.MoveNext())
        (invoice.Long(0) == gCurrentInvoiceId ? isOurs : isAnothers) = true;
    return isOurs && isAnothers ? m_createdNumber : QString();
}

QString OpenInvoice::Finish()
{
    QString taken = NumberTakenMeanwhile();
    gCurrentInvoiceId = -1;
    gCurrentCustomerId = -1;
    gConnection->Execute("UPDATE nextinvoiceno SET invoiceno = invoiceno + 1;");
    return taken;
}
