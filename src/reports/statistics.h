#pragma once

#include <QDateTime>
#include <QString>

/// The figures about the invoices, as the screen shows them. Each runs its own statements on gConnection when it is
/// called, and throws RuntimeError when one fails or finds no row.

QString InvoicesToday();
/// The stored date that most invoices, or the fewest, share ("04-Jul-2003"); the first that the store returns of those
/// that tie. Two times of one day are two dates here.
QString DateOfMostInvoices();
QString DateOfLeastInvoices();
/// "Jan" to "Dec", all years together. A month without invoices is not the least popular one.
QString MostPopularMonth();
QString LeastPopularMonth();
/// First and last name of the customer with the most invoices.
QString MostRepeatingCustomer();
/// The invoices of the calendar month in which `moment` lies.
QString InvoicesInMonthOf(const QDateTime& moment);
QString TotalInvoices();

/// The invoices from the start of one day to the last minute of another, whose seconds no period counts.
QString InvoicesBetween(const QDate& first, const QDate& last);

/// Monday of the present week. Where the days of the week do not bear their English names it is not known: tomorrow.
QDate StartOfWeek();
