#include "invoicing/invoice_page.h"

#include "base/clock.h"
#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "db/add_row.h"
#include "invoicing/current_invoice.h"
#include "invoicing/invoice_totals.h"
#include "records/lists.h"

#include <string>
#include <string_view>

namespace {

bool IsTrue(const Value& value)
{
    return !value.IsNull() && value.ToBool();
}

std::optional<QDateTime> DateOrNothing(const Value& value)
{
    if (value.IsNull())
        return std::nullopt;
    return value.ToDate();
}

/// The number that the next invoice takes, in five digits or more.
QString NextInvoiceNo()
{
    const Recordset next = gConnection->Execute("SELECT invoiceno FROM NextInvoiceNo");
    return FormatNumber(NullToText(next["invoiceno"]), QStringLiteral("00000"));
}

/// The tax column of one line after the other. Lines of an invoice share few rates, so the text is made anew only when
/// the rate changes.
class TaxRateColumn {
public:
    std::string_view Text(std::string_view name, double percentage)
    {
        if (m_text.empty() || name != m_name || percentage != m_percentage) {
            m_name = name;
            m_percentage = percentage;
            m_text = TaxRateText(QString::fromUtf8(m_name.data(), qsizetype(m_name.size())), percentage).toStdString();
        }
        return m_text;
    }

private:
    std::string m_name;
    double m_percentage = 0;
    std::string m_text;
};

/// -1 for an invoice that was never saved and so has no customer yet; nothing when the row is gone.
std::optional<qint32> CustomerOfOpenInvoice()
{
    const Recordset invoice = gConnection->Execute(Sql("SELECT customerid FROM invoice WHERE id = {gCurrentInvoiceId}")
                                                       .Number("gCurrentInvoiceId", gCurrentInvoiceId));
    if (invoice.Eof())
        return std::nullopt;
    return invoice.IsNull(0) ? -1 : qint32(invoice.Long(0));
}

} // namespace

void InvoicePage::ShowInvoicePage()
{
    FillPriceListChoice();
    if (gCurrentInvoiceId != -1) {
        SetTitle(tr("Edit Invoice"));
        EditInvoice();
    } else {
        SetTitle(tr("New Invoice"));
        CreateNewInvoice();
    }
}

void InvoicePage::ShowSecondaryTax()
{
    lblLabels_26->setText(SecondaryTaxName + QLatin1Char(':'));
    lblLabels_26->setToolTip(QStringLiteral("<span>%1</span>").arg(SecondaryTaxName.toHtmlEscaped()));
    lblSecondTax->setAccessibleName(SecondaryTaxName);
    lblLabels_26->setVisible(SecondaryTaxEnable);
    lblSecondTax->setVisible(SecondaryTaxEnable);
}

void InvoicePage::FillPriceListChoice()
{
    FillPriceLists(cboPriceList);
    cboPriceList->SetListIndex(0);
}

void InvoicePage::PriceListChosen()
{
    gNewInvoice->SetTitle(3, cboPriceList->Text(), CellAlign::RightCenter);
    RefreshNewInvoiceItemsList(1, 0);
}

void InvoicePage::CreateNewInvoice()
{
    EmptyCustomerBoxes();
    txtAmountPayed->clear();
    txtNotes->SetText({});
    cboPaymentMethod->SetListIndex(0);
    chkWarrantyInvoice->setChecked(false);
    const QDateTime now = Now();
    lblInvoiceDate->SetValue(now.date().startOfDay());
    lblInvoiceNo->setText(NextInvoiceNo());
    dtShippedDate->SetValue(std::nullopt);
    chkPaid->setChecked(false);
    gCurrentCustomerId = -1;
    gCurrentInvoiceId = AddInvoice(now);
    ShowTotals(0, 0);
    gNewInvoice->SetRows(1);
    gNewInvoice->SelectRow(0);
    txtFirstname->setFocus();
}

qint32 InvoicePage::AddInvoice(const QDateTime& submitted)
{
    AddRow invoice(*gConnection, "Invoice");
    invoice.AddNew();
    invoice.Set("SubmittedDate", submitted);
    invoice.Set("InvoiceNo", lblInvoiceNo->text());
    invoice.Set("StockReturned", false);
    invoice.Update();
    return qint32(invoice.Id());
}

void InvoicePage::EditInvoice()
{
    const std::optional<qint32> customerId = CustomerOfOpenInvoice();
    if (!customerId)
        return;
    gCurrentCustomerId = *customerId;
    LoadCustomerDetailsIntoInvoice(gCurrentCustomerId);
    LoadInvoiceFields();
    RefreshNewInvoiceItemsList(1, 0);
    txtFirstname->setFocus();
}

void InvoicePage::LoadInvoiceFields()
{
    const Recordset invoice = gConnection->Execute(
        Sql("SELECT id, WarrantyInvoice, StockReturned, notes, submitteddate, invoiceno, paymentmethod, shippeddate, "
            "paid FROM invoice WHERE id = {gCurrentInvoiceId}")
            .Number("gCurrentInvoiceId", gCurrentInvoiceId));
    chkWarrantyInvoice->setChecked(IsTrue(invoice["WarrantyInvoice"]));
    txtAmountPayed->clear();
    txtNotes->SetText(NullToText(invoice["notes"]));
    SelectComboByText(cboPaymentMethod, NullToText(invoice["paymentmethod"]));
    lblInvoiceNo->setText(NullToText(invoice["invoiceno"]));
    lblInvoiceDate->SetValue(invoice["submitteddate"].ToDate().date().startOfDay());
    dtShippedDate->SetValue(DateOrNothing(invoice["shippeddate"]));
    chkPaid->setChecked(IsTrue(invoice["paid"]));
}

std::array<InvoicePage::CustomerBox, 12> InvoicePage::CustomerBoxes() const
{
    return {
        {{txtFirstname, "FirstName"}, {txtLastname, "LastName"}, {txtAddress1, "Address1"}, {txtAddress2, "Address2"},
            {txtCity, "City"}, {txtState, "State"}, {txtPostcode, "PostCode"}, {txtCountry, "Country"},
            {txtPhone, "Phone"}, {txtFax, "Fax"}, {txtEmail, "Email"}, {txtBusinessName, "BusinessName"}}};
}

void InvoicePage::EmptyCustomerBoxes()
{
    for (const CustomerBox& entry : CustomerBoxes())
        entry.box->clear();
    txtDiscount->setText(QStringLiteral("0"));
}

void InvoicePage::LoadCustomerDetailsIntoInvoice(qint32 customerId)
{
    constexpr int DefaultPriceList = 1;
    const Recordset customer = gConnection->Execute(
        Sql("SELECT ID, FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Fax, Email, "
            "SubmittedDate, BusinessName, Discount, PriceListID FROM Customer WHERE ID = {customerId}")
            .Number("customerId", customerId));
    if (customer.Eof()) {
        EmptyCustomerBoxes();
        SelectComboByData(cboPriceList, DefaultPriceList);
        return;
    }
    for (const CustomerBox& entry : CustomerBoxes()) {
        entry.box->setText(NullToText(customer[entry.field]));
        entry.box->home(false); // a long text shows its beginning
    }
    const Value discount = customer["Discount"];
    txtDiscount->setText(discount.IsNull() ? QStringLiteral("0") : discount.ToText());
    const Value priceList = customer["PriceListID"];
    SelectComboByData(cboPriceList, priceList.IsNull() ? DefaultPriceList : priceList.ToLong());
}

void InvoicePage::RefreshNewInvoiceItemsList(int selectRow, qint64 selectId)
{
    RunningTotal running;
    TaxRateColumn taxRates;
    LoadList(gNewInvoice,
        Sql("SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline "
            "WHERE invoiceid = {gCurrentInvoiceId};")
            .Number("gCurrentInvoiceId", gCurrentInvoiceId),
        selectRow, selectId, [&running, &taxRates](const Recordset& line, GridFill& fill) {
            const Currency amount = line.Money(4);
            const double taxPercentage = line[6].ToDouble();
            const Currency lineTotal = LineTotal(line.Long(1), amount, taxPercentage);
            fill.Add(line.Text(1));
            fill.Add(line.Text(2));
            fill.Add(line.Text(3));
            fill.Add(FormatCurrency(amount));
            fill.Add(taxRates.Text(line.Text(5), taxPercentage));
            fill.Add(FormatCurrency(lineTotal));
            running.Add(lineTotal);
            return line.Long(0);
        });
    const InvoiceTotals totals = running.Totals();
    ShowTotals(totals.secondTax, totals.total);
}

void InvoicePage::ShowTotals(double secondTax, double total)
{
    lblSecondTax->setText(FormatCurrency(secondTax));
    lblTotal->setText(FormatCurrency(total));
}
