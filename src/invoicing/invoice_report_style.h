#pragma once

#include <QString>

/// How the printed invoice looks, as the invoice style form stores it.
struct InvoiceStyle {
    bool hideTax = false;
    bool hideOurPrice = false;
    double fontSize = 8.25; ///< points, of the title and the date
};

inline const QString DefaultInvoiceFontSize = QStringLiteral("8.25");

/// A stored text that does not read as a truth value counts as false; a font size that is no number or not above 0 as
/// the default, and one beyond 72 points as 72.
InvoiceStyle ReadInvoiceStyle();
