#pragma once

#include "paper/report_design.h"

#include <QWidget>

/// The stock lists: items to reorder, the same by a filter, and all items. Each opens in a preview that blocks nothing.
void ShowReorderReport();
/// Asks for the filter first; shows nothing when the question is closed without OK.
void ShowFilteredReorderReport(QWidget* parent);
void ShowStockLevelReport();

/// The reports with the rows that they have now. The filtered one takes the filter choice as it stands.
Report PrepareReorderReport();
Report PrepareFilteredReorderReport();
Report PrepareStockLevelReport();
