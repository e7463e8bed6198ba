#include "paper/column_fit.h"

#include "paper/report_band.h"
#include "paper/report_fonts.h"

#include <algorithm>
#include <cmath>

namespace {
int WidthWithin(const ReportControl& control, qreal width)
{
    return std::min(static_cast<int>(std::ceil(width)), control.width);
}
} // namespace

int NeededWidth(Report& report, const QString& controlName)
{
    const ReportControl& control = report.Control(controlName);
    const ReportTable& table = report.IsGrouped() ? report.rows->children : report.rows->parents;
    const int field = table.Field(control.field);
    ReportFonts fonts(report.fontFamily);
    const ReportTypeface& face = fonts.At(control.font);
    qreal widest = 0;
    for (int row = 0; row < table.Count() && widest < control.width; ++row)
        widest = std::max(widest, face.Advance(ReportValueText(table.At(row, field), control.format)));
    return WidthWithin(control, widest);
}

int CaptionWidth(Report& report, const QString& label)
{
    const ReportControl& control = report.Control(label);
    ReportFonts fonts(report.fontFamily);
    return WidthWithin(control, fonts.At(control.font).Advance(control.caption));
}
