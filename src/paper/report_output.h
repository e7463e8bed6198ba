#pragma once

#include "paper/report_layout.h"

#include <QString>

class QPrinter;

/// Prints the pages that the print dialog chose on `printer`: those of `layout`, or where `printer` holds other paper
/// the report laid out anew for it. False when the printer did not take the job.
bool PrintReport(ReportLayout& layout, QPrinter& printer);

/// Writes the report as a PDF whose text can be searched, with its title and language. False when the file cannot be
/// written; then nothing is left behind and a file that was there stays.
bool SaveReportAsPdf(ReportLayout& layout, const QString& path);
