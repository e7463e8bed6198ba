#pragma once

#include <QLabel>

/// Lets `label` show a name out of the data and a colon: as it is, wrapped, with no markup and no access key read into
/// it.
void ShowName(QLabel* label, const QString& name);
