#include "invoicing/invoice_totals.h"

#include "base/numbers.h"
#include "base/regional.h"
#include "base/regional_formats.h"
#include "config/secondary_tax.h"

Currency LineTotal(qint64 quantity, Currency amount, double taxPercentage)
{
    if (taxPercentage <= 0)
        return amount * quantity;
    const Currency tax = CCur(amount.ToDouble() * taxPercentage / 100);
    return (amount + tax) * quantity;
}

QString TaxRateText(const QString& name, double percentage)
{
    return name + QStringLiteral(" (") + CStr(percentage) + QStringLiteral("%)");
}

std::string_view TaxRateColumn::Text(std::string_view name, double percentage)
{
    const int formats = Formats().generation;
    if (formats != m_formats || name != m_name || percentage != m_percentage) {
        m_formats = formats;
        m_name = name;
        m_percentage = percentage;
        m_text = TaxRateText(QString::fromUtf8(m_name.data(), qsizetype(m_name.size())), percentage).toStdString();
    }
    return m_text;
}

double AsShown(Currency amount)
{
    return amount.RoundedHalfAway(CurrencyDigits()).ToDouble();
}

InvoiceTotals RunningTotal::Totals() const
{
    InvoiceTotals totals{0, m_total};
    if (SecondaryTax::SecondaryTaxEnable) {
        totals.secondTax = m_total * SecondaryTax::SecondaryTaxPercentage / 100;
        totals.total += totals.secondTax;
    }
    return totals;
}
