#pragma once

#include "paper/report_design.h"

#include <QString>

/// The width that the texts of a detail field take, each on one line, in the type of its control: at most that of the
/// control.
int NeededWidth(Report& report, const QString& control);
/// The same for the caption of a label.
int CaptionWidth(Report& report, const QString& label);
