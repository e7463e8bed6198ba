#include "invoicing/invoice_page.h"

#include "base/clock.h"
#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "invoicing/invoice_totals.h"
#include "records/lists.h"

#include <iterator>

void InvoicePage::ShowInvoicePage()
{
    m_lastCode.clear();
    FillPriceListChoice();
    if (OpenInvoice::IsOpen()) {
        SetTitle(tr("Edit Invoice"));
        EditInvoice();
    } else {
        SetTitle(tr("New Invoice"));
        CreateNewInvoice();
    }
    ShowWhetherItExists();
}

void InvoicePage::ShowSecondaryTax()
{
    lblLabels_26->setText(SecondaryTax::SecondaryTaxName + QLatin1Char(':'));
    lblLabels_26->setToolTip(QStringLiteral("<span>%1</span>").arg(SecondaryTax::SecondaryTaxName.toHtmlEscaped()));
    lblSecondTax->setAccessibleName(SecondaryTax::SecondaryTaxName);
    lblLabels_26->setVisible(SecondaryTax::SecondaryTaxEnable);
    lblSecondTax->setVisible(SecondaryTax::SecondaryTaxEnable);
}

void InvoicePage::FillPriceListChoice()
{
    FillPriceLists(cboPriceList);
    cboPriceList->SetListIndex(0);
}

void InvoicePage::PriceListChosen()
{
    gNewInvoice->SetTitleOf("amount", cboPriceList->Text());
    RefreshNewInvoiceItemsList(1, 0);
}

void InvoicePage::CreateNewInvoice()
{
    ShowTexts({}, CustomerBoxes());
    txtDiscount->setText(QStringLiteral("0"));
    txtAmountPayed->clear();
    txtNotes->SetText({});
    cboPaymentMethod->SetListIndex(0);
    chkWarrantyInvoice->setChecked(false);
    const QDateTime now = Now();
    lblInvoiceDate->SetValue(now.date().startOfDay());
    ShowShippedDate(std::nullopt);
    chkPaid->setChecked(false);
    lblInvoiceNo->setText(OpenInvoice::Create(now));
    ShowTotals(0, 0);
    gNewInvoice->SetRows(1);
    gNewInvoice->SelectRow(0);
    txtFirstname->setFocus();
}

void InvoicePage::EditInvoice()
{
    if (!OpenInvoice::FindCustomer())
        return;
    LoadCustomerDetailsIntoInvoice(OpenInvoice::gCurrentCustomerId);
    ShowInvoice(OpenInvoice::Load());
    RefreshNewInvoiceItemsList(1, 0);
    txtFirstname->setFocus();
}

void InvoicePage::ShowInvoice(const InvoiceFields& invoice)
{
    chkWarrantyInvoice->setChecked(invoice.isWarranty);
    txtAmountPayed->clear();
    txtNotes->SetText(invoice.notes);
    for (size_t method = 0; method < std::size(PaymentMethods); ++method)
        if (invoice.paymentMethod == QLatin1String(PaymentMethods[method]))
            cboPaymentMethod->SetListIndex(int(method));
    lblInvoiceNo->setText(invoice.invoiceNo);
    lblInvoiceNo->home(false);
    lblInvoiceDate->SetValue(invoice.submitted.startOfDay());
    ShowShippedDate(invoice.shipped);
    chkPaid->setChecked(invoice.isPaid);
}

void InvoicePage::ShowShippedDate(const std::optional<QDate>& shipped)
{
    // What a tick brings up, where there is no date yet: not that of the invoice that showed before.
    dtShippedDate->SetValue(shipped.value_or(Now().date()).startOfDay());
    if (!shipped)
        dtShippedDate->SetValue(std::nullopt);
}

void InvoicePage::LoadCustomerDetailsIntoInvoice(qint32 customerId)
{
    const InvoiceCustomer customer = OpenInvoice::LoadCustomer(customerId);
    ShowTexts(customer.texts, CustomerBoxes());
    txtDiscount->setText(customer.discount);
    txtDiscount->home(false);
    SelectComboByData(cboPriceList, customer.priceListId);
}

void InvoicePage::RefreshNewInvoiceItemsList(int selectRow, qint64 selectId)
{
    RunningTotal running;
    m_pieces = 0;
    TaxRateColumn taxRates;
    gNewInvoice->LoadRows(OpenInvoice::LinesStatement(), selectRow, selectId,
        [this, &running, &taxRates](const Recordset& line, GridFill& fill) {
            enum { Id, Quantity, Number, Name, Amount, TaxRateName, TaxRatePercentage };
            const Currency amount = line.Money(Amount);
            const double taxPercentage = line[TaxRatePercentage].ToDouble();
            const Currency lineTotal = LineTotal(line.Long(Quantity), amount, taxPercentage);
            m_pieces += line.Long(Quantity);
            fill.Add(line.Text(Quantity));
            fill.Add(line.Text(Number));
            fill.Add(line.Text(Name));
            fill.Add(FormatCurrency(amount));
            fill.Add(taxRates.Text(line.Text(TaxRateName), taxPercentage));
            fill.Add(FormatCurrency(lineTotal));
            running.Add(lineTotal);
        });
    const InvoiceTotals totals = running.Totals();
    ShowTotals(totals.secondTax, totals.total);
    ShowWhetherItExists();
    ShowScanLine();
}

void InvoicePage::ShowTotals(double secondTax, double total)
{
    lblSecondTax->setText(FormatCurrency(secondTax));
    lblTotal->setText(FormatCurrency(total));
}

/// Lines and saves are taken as ever; only they lead nowhere.
void InvoicePage::ShowWhetherItExists()
{
    m_gone->setVisible(OpenInvoice::IsOpen() && !OpenInvoice::Exists());
}
