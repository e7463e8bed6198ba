#pragma once

#include <QWidget>

/// Loads items from a CSV file of the user's choice. True when the user went through to the end; what was imported
/// before a Cancel stays.
bool RunImportWizard(QWidget* parent);
