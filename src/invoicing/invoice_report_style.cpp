#include "invoicing/invoice_report_style.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/settings_store.h"

#include <QLocale>

#include <algorithm>

namespace {
bool StoredFlag(const QString& key)
{
    bool flag = false;
    Ignoring([&] { flag = CBool(GetConfig(key, TruthText(false))); });
    return flag;
}

// The default is stored with a point whatever the user's locale, and a German reading of it would be 825.
double FontSizeOf(const QString& text)
{
    if (!IsNumeric(text))
        return 0;
    bool isPlain = false;
    const double size = QLocale::c().toDouble(text, &isPlain);
    return isPlain ? size : CDbl(text);
}

double StoredFontSize()
{
    constexpr double LargestFontSize = 72;
    const double size = FontSizeOf(GetConfig(QStringLiteral("InvoiceFontSize"), DefaultInvoiceFontSize));
    return size > 0 ? std::min(size, LargestFontSize) : InvoiceStyle().fontSize;
}
} // namespace

InvoiceStyle ReadInvoiceStyle()
{
    return {StoredFlag(QStringLiteral("HideTaxOnInvoice")), StoredFlag(QStringLiteral("HideOurPriceOnInvoice")),
        StoredFontSize()};
}
