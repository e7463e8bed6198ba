#pragma once

#include "paper/report_layout.h"

#include <QString>

/// What a page says, a line for each control under the name of its section: what screen readers are given.
QString PageText(const ReportPage& page);
