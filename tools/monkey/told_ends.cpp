#include "told_ends.h"

#include <QRegularExpression>

namespace {

struct ToldEnd {
    const char* text; ///< a pattern of the box's text
    const char* event; ///< part of what was done last
    const char* reason;
};

constexpr ToldEnd ToldEnds[] = {
    {"Syntax error.* LIKE '%", "", "an apostrophe in a search for customers"},
    {"Characters found after end of SQL statement", "frmFindCustomer", "an apostrophe in a search for customers"},
    {"Syntax error.*barcode = '", "", "an apostrophe in a bar code"},
    {"Characters found after end of SQL statement", "txtBarcode", "an apostrophe in a bar code"},
    {"Syntax error in date in query expression .*invoice\\.SubmittedDate", "",
        "invoices are looked for from or to a day alone"},
    {"Syntax error.* = \\$[0-9]", "", "a number with a sign of currency"},
    {"Numeric field overflow", "frmTaxRate", "the secondary tax is no number that the file can hold"},
    {"'6':  Overflow", "of frmMain", "a discount or a price is so large that no amount of a line holds it"},
    {"Type mismatch", "frmItemQuantity", "a line's new price is no number"},
};

} // namespace

QString ReasonToEnd(const QString& boxText, const QString& lastEvent)
{
    for (const ToldEnd& end : ToldEnds)
        if (boxText.contains(QRegularExpression(QLatin1String(end.text)))
            && lastEvent.contains(QLatin1String(end.event)))
            return QString::fromLatin1(end.reason);
    return {};
}
