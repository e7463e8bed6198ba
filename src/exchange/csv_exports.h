#pragma once

#include <QString>

#include <string>
#include <string_view>

/// The tables as comma-separated text, in UTF-8: a header line, then a line for each record, all ended by CR LF. Dates
/// and numbers are in the user's regional formats. All throw RuntimeError when a statement fails.
std::string InvoicesCsv();
/// With the price in each price list behind the columns of the item. A price that is missing leaves no gap: those after
/// it move one column to the left.
std::string InventoryCsv();
std::string CustomersCsv();
/// All bookings, whatever their day.
std::string TodaysInvoicesCsv();

/// The value between double quotes; those inside are not doubled.
std::string QuoteCsvField(std::string_view value);

/// Writes such a text, in the encoding that the setting "Export Encoding" names, at first the system's. Throws
/// RuntimeError when the file cannot be written whole; nothing of it is there then.
void WriteCsv(const QString& fileName, const std::string& csv);
