#pragma once

/// Each asks for a file and writes a table to it, in place of the file that was there. The status line tells the file;
/// that it could not be written is a message.
void ExportInvoices();
void ExportInventory();
void ExportCustomers();
/// As the others, but a failure is a RuntimeError.
void ExportTodaysInvoices();
