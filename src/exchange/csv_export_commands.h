#pragma once

#include <QString>

/// Each asks for a file and writes a table to it, in place of the file that was there. They return the file's name; ""
/// when the user cancelled and when it could not be written, which is told.
QString ExportInvoices();
QString ExportInventory();
QString ExportCustomers();
/// As the others, but a failure is a RuntimeError.
QString ExportTodaysInvoices();
