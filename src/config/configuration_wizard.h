#pragma once

#include <QWidget>

/// Asks for the business's contact details, its logo and its taxes, and stores them when the user finishes. True when
/// they were stored: the caller then lets the invoice page follow the secondary tax. Does nothing when `settings` has
/// no row.
bool RunConfigurationWizard(QWidget* parent);
