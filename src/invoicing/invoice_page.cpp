#include "invoicing/invoice_page.h"

#include "base/clock.h"
#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "controls/layout.h"
#include "records/lists.h"

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>

namespace {

ShownLine AddCells(const Recordset& line, TaxRateColumn& taxRates, GridFill& fill)
{
    enum { Id, Quantity, Number, Name, Amount, TaxRateName, TaxRatePercentage };
    // What another program left out counts as 0.
    const qint64 quantity = line.IsNull(Quantity) ? 0 : line.Long(Quantity);
    const Currency amount = line.IsNull(Amount) ? Currency() : line.Money(Amount);
    const double taxPercentage = line.IsNull(TaxRatePercentage) ? 0 : line[TaxRatePercentage].ToDouble();
    const Currency total = LineTotal(quantity, amount, taxPercentage);
    fill.Add(line.Text(Quantity));
    fill.Add(line.Text(Number));
    fill.Add(line.Text(Name));
    fill.Add(FormatCurrency(amount));
    fill.Add(taxRates.Text(line.Text(TaxRateName), taxPercentage));
    fill.Add(FormatCurrency(total));
    return {quantity, AsShown(total)};
}

} // namespace

void InvoicePage::ShowInvoicePage()
{
    m_lastCode.clear();
    gNewInvoice->CloseFilter();
    const qint64 priceList = cboPriceList->ListIndex() >= 0 ? cboPriceList->SelectedData() : 0;
    FillPriceListChoice();
    if (OpenInvoice::IsOpen()) {
        SetTitle(tr("Edit Invoice"));
        EditInvoice();
        // The page stays as it was where the invoice is gone, and so does the list that its customer is saved with.
        if (!OpenInvoice::Exists())
            SelectPriceList(cboPriceList, priceList);
    } else {
        SetTitle(tr("New Invoice"));
        CreateNewInvoice();
    }
    ShowWhetherItExists();
}

void InvoicePage::ShowSecondaryTax()
{
    lblLabels_26->setText(SecondaryTax::SecondaryTaxName + QLatin1Char(':'));
    SetPlainToolTip(lblLabels_26, SecondaryTax::SecondaryTaxName);
    lblLabels_26->setVisible(SecondaryTax::SecondaryTaxEnable);
    lblSecondTax->setVisible(SecondaryTax::SecondaryTaxEnable);
}

void InvoicePage::FillPriceListChoice()
{
    FillPriceLists(cboPriceList);
    cboPriceList->SetListIndex(0);
}

void InvoicePage::RefillPriceLists()
{
    if (!OpenInvoice::IsOpen())
        return;
    const qint64 chosen = cboPriceList->SelectedData();
    {
        // No list has been chosen that the lines would have to be read for: their selection stays.
        const QSignalBlocker unchosen(cboPriceList);
        FillPriceLists(cboPriceList);
        SelectPriceList(cboPriceList, chosen);
    }
    gNewInvoice->SetTitleOf("amount", cboPriceList->Text());
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
    SelectPriceList(cboPriceList, customer.priceListId);
}

void InvoicePage::ShowCustomerAnew()
{
    if (isVisible() && OpenInvoice::gCurrentCustomerId != -1)
        LoadCustomerDetailsIntoInvoice(OpenInvoice::gCurrentCustomerId);
}

void InvoicePage::RefreshNewInvoiceItemsList(int selectRow, qint64 selectId)
{
    m_file.Remember(*gConnection);
    m_linesOf = OpenInvoice::gCurrentInvoiceId;
    m_lines.clear();
    gNewInvoice->LoadRows(OpenInvoice::LinesStatement(), selectRow, selectId,
        [&](const Recordset& line, GridFill& fill) { m_lines.push_back(AddCells(line, m_taxRates, fill)); });
    ShowFigures();
    ShowWhetherItExists();
}

bool InvoicePage::ShowLine(qint64 lineId)
{
    const int row = gNewInvoice->RowOf(lineId);
    const bool isShown =
        gNewInvoice->LoadRow(OpenInvoice::LineStatement(lineId), [&](const Recordset& line, GridFill& fill) {
            const ShownLine shown = AddCells(line, m_taxRates, fill);
            if (row > 0)
                m_lines[size_t(row) - 1] = shown;
            else
                m_lines.push_back(shown);
        });
    if (!isShown)
        return false;
    gNewInvoice->SelectRow(std::min(1, gNewInvoice->Rows() - 1));
    ShowFigures();
    return true;
}

void InvoicePage::ShowFigures()
{
    RunningTotal running;
    for (const ShownLine& line : m_lines)
        running.Add(line.total);
    const InvoiceTotals totals = running.Totals();
    ShowTotals(totals.secondTax, totals.total);
    ShowScanLine();
}

void InvoicePage::ShowTotals(double secondTax, double total)
{
    lblSecondTax->Show(FormatCurrency(secondTax));
    lblTotal->Show(FormatCurrency(total));
}

/// Lines and saves are taken as ever; only they lead nowhere.
void InvoicePage::ShowWhetherItExists()
{
    m_gone->setVisible(OpenInvoice::IsOpen() && !OpenInvoice::Exists());
}
