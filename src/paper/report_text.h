#pragma once

#include "paper/report_layout.h"

#include <QString>

/// A line for each control under the name of its section: what pages are compared by.
QString PageText(const ReportPage& page);
/// What a page says, a line for each band: what screen readers are given.
QString SpokenText(const ReportPage& page);
