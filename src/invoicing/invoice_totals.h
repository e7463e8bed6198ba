#pragma once

#include "base/currency.h"

#include <QString>

#include <string>
#include <string_view>

/// The line's total with tax. A percentage above 0 gives a unit price with tax, rounded to currency before it is
/// multiplied; one of 0 or less adds no tax. Throws Overflow beyond the range of currency.
Currency LineTotal(qint64 quantity, Currency amount, double taxPercentage);

/// The tax column of a line: "VAT (17.5%)".
QString TaxRateText(const QString& name, double percentage);

/// The tax column of one line after the other, in UTF-8. Lines of an invoice share few rates, so the text is made anew
/// only when the rate changes.
class TaxRateColumn {
public:
    std::string_view Text(std::string_view name, double percentage);

private:
    std::string m_name;
    double m_percentage = 0;
    std::string m_text;
    int m_formats = -1; ///< their generation, which the text is written in
};

/// An amount as FormatCurrency shows it: at the locale's digits, rounded half away from zero.
double AsShown(Currency amount);

/// What a line adds to the figures of its invoice.
struct ShownLine {
    qint64 quantity = 0;
    double total = 0; ///< as it is shown
};

/// The figures under the lines, unrounded: they are rounded only where they are shown.
struct InvoiceTotals {
    double secondTax = 0;
    double total = 0; ///< with the secondary tax
};

/// Adds up an invoice as its reader would: from the figures that the lines show.
class RunningTotal {
public:
    void Add(double shownTotal) { m_total += shownTotal; }
    /// The totals with the secondary tax as it is set up now.
    InvoiceTotals Totals() const;

private:
    double m_total = 0;
};
