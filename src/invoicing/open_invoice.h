#pragma once

#include "parties/party_texts.h"
#include "sql/sql.h"

#include <QDateTime>

#include <optional>

/// The customer of an invoice, as the page shows and collects them.
struct InvoiceCustomer {
    PartyTexts texts; ///< by column, what the twelve boxes hold
    QString discount = QStringLiteral("0"); ///< a percentage, as typed
    qint64 priceListId = 1;
};

/// An invoice without its customer and lines.
struct InvoiceFields {
    QString invoiceNo;
    QDate submitted;
    std::optional<QDate> shipped;
    bool isWarranty = false;
    bool isPaid = false;
    QString paymentMethod;
    QString notes;
    QString secondTax; ///< currency text as it is shown; only written, since loading works it out anew
};

/// A line as the page lists it.
struct OrderLine {
    qint64 id = 0;
    qint32 quantity = 0;
};

/// The one invoice that is open, new or old: its rows and those of its customer, without the page that shows them. Its
/// lines come by AddNewOrderItemToDB and go by DeleteOrderLine. All of these throw RuntimeError when a statement fails;
/// what was written before it stays.
class OpenInvoice {
public:
    /// The rows of the open invoice and of its customer; -1 for none.
    static qint32 gCurrentInvoiceId;
    static qint32 gCurrentCustomerId;

    static bool IsOpen() { return gCurrentInvoiceId != -1; }

    /// Adds the Invoice row with the next number, which is only read, and opens it without a customer. Returns the
    /// number, in five digits or more.
    static QString Create(const QDateTime& submitted);

    /// Whether the row of the open invoice is still there. It may have been deleted in the history.
    static bool Exists();
    /// Takes over the open invoice's customer: -1 when it was never saved. False, having changed nothing, when the
    /// invoice is gone.
    static bool FindCustomer();
    /// The invoice as it was saved last; it must exist. One without a date gets that of today.
    static InvoiceFields Load();
    /// No texts, no discount and the first price list for a customer who is gone.
    static InvoiceCustomer LoadCustomer(qint32 customerId);
    /// The open invoice's lines: id, quantity, number, name, amount, and name and percentage of the tax rate.
    static Sql LinesStatement();
    /// The same of one line.
    static Sql LineStatement(qint64 lineId);

    /// Writes the customer, adding the row if the invoice has none yet, and the invoice; a row that holds all of it
    /// already is left alone. `customer.discount` goes into the statement as it is.
    static void Save(const InvoiceCustomer& customer, const InvoiceFields& invoice);

    /// Gives the goods of the lines back, deletes them and the invoice, and closes it. The customer's row stays, and
    /// the next number too.
    static void Cancel(const QList<OrderLine>& lines);
    /// Closes the invoice and raises the next number, for an old invoice too: nothing tells an old one from a new one.
    /// Returns the number that Create gave the invoice, when another one, written by another program at the same time,
    /// has gone out under it meanwhile; else "".
    static QString Finish();

private:
    static qint32 m_createdId;
    static QString m_createdNumber;

    static void UpdateCustomer(const InvoiceCustomer& customer);
    static qint32 AddCustomer(const InvoiceCustomer& customer);
    static QString NumberTakenMeanwhile();
    static void UpdateInvoice(const InvoiceFields& invoice);
};
